#include "TextHelpers.h"

#include <QCryptographicHash>
#include <QStringDecoder>

namespace TextHelpers {

namespace {
QString hexDigest(const QByteArray &bytes, QCryptographicHash::Algorithm algorithm)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, algorithm).toHex());
}
} // namespace

QString md5(const QString &text)
{
    return hexDigest(text.toUtf8(), QCryptographicHash::Md5);
}

QString sha256(const QString &text)
{
    return hexDigest(text.toUtf8(), QCryptographicHash::Sha256);
}

QString sha1(const QString &text)
{
    return hexDigest(text.toUtf8().left(text.size()), QCryptographicHash::Sha1);
}

QString base64Encode(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toBase64());
}

std::optional<QString> base64Decode(const QString &text)
{
    auto bytes = base64Bytes(text);
    return bytes ? fromUtf8Strict(*bytes) : std::nullopt;
}

QStringList wordsMatching(const QRegularExpression &pattern, const QString &text, bool uppercased)
{
    QStringList words;
    const QString terminated = text + QLatin1Char(' ');
    for (auto it = pattern.globalMatch(terminated); it.hasNext();) {
        const QString found = it.next().captured(1);
        words.append(uppercased ? found.toUpper() : found);
    }
    return words;
}

std::optional<QByteArray> base64Bytes(const QString &text)
{
    auto decoded =
        QByteArray::fromBase64Encoding(text.toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return std::move(*decoded);
}

std::optional<QString> fromUtf8Strict(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace TextHelpers
