#include "CorpusTokens.h"

#include "LmLog.h"

#include <QByteArray>
#include <QIODevice>

namespace lm {

namespace {

constexpr qint64 chunkBytes = 64 * 1024;

// NUL too: SphinxBase reads the model's words as C strings, and a word cut short at a NUL
// breaks its n-gram tables (it crashed reading such a model).
bool isSeparator(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\v' || byte == '\f' ||
           byte == '\r' || byte == '\0';
}

} // namespace

bool forEachToken(QIODevice &text, const std::function<void(QByteArrayView)> &onToken)
{
    if (!text.isReadable()) {
        logError(QStringLiteral("Cannot read the text: it is not open for reading"));
        return false;
    }
    QByteArray chunk(chunkBytes, Qt::Uninitialized);
    QByteArray pending; // the start of a token cut off by the end of the previous chunk
    for (;;) {
        const qint64 size = text.read(chunk.data(), chunkBytes);
        if (size < 0) {
            logError(QStringLiteral("Cannot read the text: %1").arg(text.errorString()));
            return false;
        }
        if (size == 0)
            break;
        const char *bytes = chunk.constData();
        qint64 start = 0;
        for (qint64 i = 0; i < size; ++i) {
            if (!isSeparator(bytes[i]))
                continue;
            if (!pending.isEmpty()) {
                pending.append(bytes + start, i - start);
                onToken(pending);
                pending.clear();
            } else if (i > start) {
                onToken(QByteArrayView(bytes + start, i - start));
            }
            start = i + 1;
        }
        pending.append(bytes + start, size - start);
    }
    if (!pending.isEmpty())
        onToken(pending);
    return true;
}

} // namespace lm
