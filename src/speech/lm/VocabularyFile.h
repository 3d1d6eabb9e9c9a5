#pragma once

#include <QByteArrayList>
#include <QHash>
#include <QString>
#include <optional>

namespace lm {

/// Position of a word in the vocabulary file, counted from 1; 0 stands for every other word.
using WordId = quint32;

/// Lines of a word-list file (vocabulary, context cues) that start with this are comments.
inline constexpr char commentPrefix[] = "##";

/**
 * Words of a word-list file in file order: every white-space separated token of the lines that
 * are not comments. Logs and gives nothing when the file cannot be read.
 */
[[nodiscard]] std::optional<QByteArrayList> readWordList(const QString &path, const QString &what);

/// @brief A vocabulary as the n-gram steps use it: id n is words[n - 1].
struct Vocabulary {
    QByteArrayList words;
    QHash<QByteArray, WordId> ids;

    /// Logs and gives nothing when the file cannot be read, lists no word or lists one twice.
    [[nodiscard]] static std::optional<Vocabulary> read(const QString &path);
    [[nodiscard]] WordId idOf(const QByteArray &word) const { return ids.value(word, 0); }
};

} // namespace lm
