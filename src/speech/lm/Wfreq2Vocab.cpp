#include "CorpusTokens.h"
#include "LmFiles.h"
#include "LmLog.h"
#include "LmToolkit.h"
#include "VocabularyFile.h"

#include <QHash>
#include <QIODevice>
#include <algorithm>

namespace lm {

namespace {

// The record count is only a hint; a silly one must not reserve gigabytes.
constexpr int largestRecordHint = 1 << 20;

struct Frequency {
    QByteArray word;
    quint64 count{0};
};

// "word count" pairs; the lines are read as a token stream, so a line with a missing or extra
// field shows up as a count that is not a number.
std::optional<QHash<QByteArray, quint64>> readFrequencies(QIODevice &frequencies, int records)
{
    QHash<QByteArray, quint64> counts;
    counts.reserve(std::clamp(records, 0, largestRecordHint));
    QByteArray word;
    bool damaged = false;
    const bool read = forEachToken(frequencies, [&](QByteArrayView token) {
        if (damaged)
            return;
        if (word.isEmpty()) {
            word = token.toByteArray();
            return;
        }
        bool isCount = false;
        const quint64 count = token.toByteArray().toULongLong(&isCount);
        if (!isCount) {
            logError(QStringLiteral("wfreq2vocab: \"%1\" after \"%2\" is not a count")
                         .arg(QString::fromUtf8(token.toByteArray()), QString::fromUtf8(word)));
            damaged = true;
            return;
        }
        counts[word] += count;
        word.clear();
    });
    if (!read || damaged)
        return std::nullopt;
    if (!word.isEmpty()) {
        logError(QStringLiteral("wfreq2vocab: the last word \"%1\" has no count")
                     .arg(QString::fromUtf8(word)));
        return std::nullopt;
    }
    return counts;
}

} // namespace

bool wfreq2vocab(QIODevice &frequencies, QIODevice &vocabulary, int cutoff, int vocabularySize,
                 int records, int verbosity)
{
    const auto counts = readFrequencies(frequencies, records);
    if (!counts)
        return false;

    std::vector<Frequency> kept;
    for (auto it = counts->cbegin(); it != counts->cend(); ++it) {
        if (cutoff >= 0 && it.value() <= static_cast<quint64>(cutoff))
            continue;
        if (it.key().startsWith(commentPrefix)) {
            logError(QStringLiteral("wfreq2vocab: \"%1\" would read as a comment line of the "
                                    "vocabulary; it is left out and counts as unknown")
                         .arg(QString::fromUtf8(it.key())));
            continue;
        }
        kept.push_back({it.key(), it.value()});
    }
    // The most frequent words win the size limit; ties go to the earlier word in byte order.
    std::sort(kept.begin(), kept.end(), [](const Frequency &a, const Frequency &b) {
        return a.count != b.count ? a.count > b.count : a.word < b.word;
    });
    if (vocabularySize >= 0 && kept.size() > static_cast<size_t>(vocabularySize))
        kept.resize(static_cast<size_t>(vocabularySize));
    if (kept.empty()) {
        logError(QStringLiteral("wfreq2vocab: no word is left for the vocabulary"));
        return false;
    }

    QByteArrayList words;
    words.reserve(static_cast<qsizetype>(kept.size()));
    for (const Frequency &frequency : kept)
        words += frequency.word;
    std::sort(words.begin(), words.end());
    QByteArray text =
        commentPrefix + QByteArray(" Vocabulary of ") + QByteArray::number(words.size()) +
        " words in byte order, made from word frequencies by Tolvane.\n" + commentPrefix +
        QByteArray(" A word's id is its line among the words, counted from 1.\n");
    for (const QByteArray &word : std::as_const(words))
        text += word + '\n';
    if (!writeAll(vocabulary, text, QStringLiteral("vocabulary")))
        return false;
    logProgress(
        verbosity,
        QStringLiteral("wfreq2vocab: %1 of %2 words kept").arg(words.size()).arg(counts->size()));
    return true;
}

} // namespace lm
