#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>
#include <pocketsphinx.h>
#include <vector>

/**
 * @brief The package a decoder is started from: the option texts, the same texts as the C
 * argument vector the option parser reads, and the option definitions they are parsed against.
 *
 * The vector points into the package's own UTF-8 copies, so the package moves but never copies.
 */
struct DecoderArguments {
    QStringList commandArray;
    /// One pointer per option text, in order, with no program name in front: the parser starts
    /// at the first entry.
    std::vector<char *> argv;
    /// The decoder library's own option table, then "-argfile", then the empty terminator.
    std::vector<arg_t> definitions;

    DecoderArguments() = default;
    DecoderArguments(DecoderArguments &&) = default;
    DecoderArguments &operator=(DecoderArguments &&) = default;
    DecoderArguments(const DecoderArguments &) = delete;
    DecoderArguments &operator=(const DecoderArguments &) = delete;

    [[nodiscard]] int argc() const { return static_cast<int>(argv.size()); }

    /// Null when the list holds fewer than 3 texts.
    [[nodiscard]] static std::optional<DecoderArguments>
    fromCommandArray(const QStringList &commandArray, bool secondItemIsEmpty);

private:
    std::vector<QByteArray> m_texts;
};

/// A copy of the decoder library's option definitions with "-argfile" and the terminator added.
[[nodiscard]] std::vector<arg_t> decoderOptionDefinitions();
