#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <optional>

/**
 * @brief Digests, Base64 and strict UTF-8 over text.
 *
 * Digests and Base64 work on the UTF-8 bytes of the text and give lower-case hexadecimal.
 */
namespace TextHelpers {

[[nodiscard]] QString md5(const QString &text);
[[nodiscard]] QString sha256(const QString &text);
/// SHA-1 of the first N UTF-8 bytes, N being the text's length in UTF-16 units: for non-ASCII
/// text only a prefix is hashed. Kept on purpose, since stored digests depend on it.
[[nodiscard]] QString sha1(const QString &text);

[[nodiscard]] QString base64Encode(const QString &text);
/// No text when the input is not valid Base64 or the decoded bytes are not UTF-8.
[[nodiscard]] std::optional<QString> base64Decode(const QString &text);

/// The first group of every match of the pattern, left to right, in the text with one blank
/// appended (so that a pattern ending in a separator also finds the last word); upper-cased
/// with full Unicode rules when asked.
[[nodiscard]] QStringList wordsMatching(const QRegularExpression &pattern, const QString &text,
                                        bool uppercased);

/// The bytes of standard Base64 text; no bytes on any character outside the alphabet.
[[nodiscard]] std::optional<QByteArray> base64Bytes(const QString &text);
/// The text of UTF-8 bytes; no text when the bytes are not valid UTF-8.
[[nodiscard]] std::optional<QString> fromUtf8Strict(const QByteArray &bytes);

} // namespace TextHelpers
