#include "CorpusTokens.h"
#include "LmFiles.h"
#include "LmLog.h"
#include "LmToolkit.h"

#include <QHash>
#include <QIODevice>
#include <algorithm>

namespace lm {

namespace {

// The table size is only a hint; a silly one must not reserve gigabytes.
constexpr int largestTableHint = 1 << 20;

} // namespace

bool text2wfreq(QIODevice &text, QIODevice &frequencies, int initialTableSize, int verbosity)
{
    QHash<QByteArray, quint64> counts;
    counts.reserve(std::clamp(initialTableSize, 0, largestTableHint));
    quint64 tokens = 0;
    if (!forEachToken(text, [&](QByteArrayView token) {
            ++counts[token.toByteArray()];
            ++tokens;
        }))
        return false;
    if (counts.isEmpty()) {
        logError(QStringLiteral("text2wfreq: the text holds no words"));
        return false;
    }

    // In byte order, so that the same text always gives the same file.
    QByteArrayList words = counts.keys();
    std::sort(words.begin(), words.end());
    QByteArray lines;
    for (const QByteArray &word : std::as_const(words))
        lines += word + ' ' + QByteArray::number(counts.value(word)) + '\n';
    if (!writeAll(frequencies, lines, QStringLiteral("word frequencies")))
        return false;
    logProgress(
        verbosity,
        QStringLiteral("text2wfreq: %1 tokens, %2 distinct words").arg(tokens).arg(words.size()));
    return true;
}

} // namespace lm
