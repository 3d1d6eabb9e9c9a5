#include "FloatText.h"
#include "RecognizerWords.h"
#include "SpeechLog.h"
#include "VoPSRecognizer.h"
#include "content/VoLog.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <cmath>

// Built with -ffp-contract=off (see scoring.cmake): every rounding step below is
// part of the score, and a compiler that fused a multiply and an add on its own would make the
// same recording score differently on another processor. The one fused step is written out.

namespace {

using WordCounts = QList<std::pair<QString, int32_t>>;

bool isFiller(const QString &word)
{
    return word == QLatin1String("<s>") || word == QLatin1String("</s>") ||
           word == QLatin1String("<sil>");
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Float:
    case QMetaType::Double:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

WordCounts countWords(const QStringList &words)
{
    WordCounts counts;
    QHash<QString, qsizetype> slotOf;
    for (const QString &word : words) {
        const auto slot = slotOf.constFind(word);
        if (slot == slotOf.cend()) {
            slotOf.insert(word, counts.size());
            counts.append({word, 1});
        } else {
            ++counts[*slot].second;
        }
    }
    return counts;
}

/// The learner's words (fillers dropped, pronunciation variants folded) and their scores.
struct RecognisedWords {
    QStringList words;
    QList<float> scores;
};

RecognisedWords recognisedWords(const QList<QVariantMap> &wordsInfo)
{
    RecognisedWords recognised;
    for (const QVariantMap &result : wordsInfo) {
        QString word = result.value(QStringLiteral("word")).toString();
        if (isFiller(word))
            continue;
        // "HELLO(2)" is the dictionary's second pronunciation of HELLO.
        const qsizetype variant = word.indexOf(QLatin1Char('('));
        if (variant >= 0)
            word.truncate(variant);
        recognised.words.append(word.toUpper());
        recognised.scores.append(VoPSRecognizer::getWordScore(result));
    }
    return recognised;
}

/**
 * Drops the matched words that the learner said more often than the phrase holds them. One
 * index walk per word, in order of first use, over the list as the earlier walks left it. The
 * index moves on after a removal too, so the word that slides into the freed slot is kept
 * without a look, and the scores are not touched, so later words take earlier words' scores.
 * Both quirks shape every score the app has given and are kept. Compacting in place removes
 * exactly what removing at the index would, without moving the tail once per removal.
 */
void removeSurplus(QStringList &matched, const QStringList &phraseWords)
{
    QHash<QString, int32_t> phraseCounts;
    for (const auto &[word, count] : countWords(phraseWords))
        phraseCounts.insert(word, count);

    for (const auto &[word, count] : countWords(matched)) {
        int32_t surplus = count - phraseCounts.value(word);
        if (surplus < 1)
            continue;
        qsizetype kept = 0;
        for (qsizetype i = 0; i < matched.size(); ++i) {
            if (surplus >= 1 && matched[i] == word) {
                --surplus;
                if (++i == matched.size())
                    break;
            }
            matched[kept++] = matched[i];
        }
        matched.resize(kept);
    }
}

/// The positions at which the phrase's matched words, in the phrase's order, differ from M.
uint32_t misplacedCount(const QStringList &phraseWords, const QStringList &matched)
{
    const QSet<QString> said(matched.cbegin(), matched.cend());
    uint32_t misplaced = 0;
    qsizetype position = 0;
    for (const QString &word : phraseWords) {
        if (position == matched.size())
            break;
        if (!said.contains(word))
            continue;
        if (word != matched[position])
            ++misplaced;
        ++position;
    }
    return misplaced;
}

/// "WORD:score;..." over the phrase's words; a phrase word takes the score at the index of its
/// first match in M, which after a surplus removal may be another word's.
QString wordsScoreText(const QStringList &phraseWords, const QStringList &matched,
                       const QList<float> &matchedScores)
{
    QHash<QString, qsizetype> firstMatch;
    for (qsizetype j = matched.size() - 1; j >= 0; --j)
        firstMatch.insert(matched[j], j);
    QStringList entries;
    entries.reserve(phraseWords.size());
    for (const QString &word : phraseWords) {
        const auto match = firstMatch.constFind(word);
        entries.append(word + QLatin1Char(':') +
                       (match == firstMatch.cend() ? QStringLiteral("0")
                                                   : shortestFloatText(matchedScores[*match])));
    }
    return entries.join(QLatin1Char(';'));
}

} // namespace

float VoPSRecognizer::getScore(const QList<QVariantMap> &wordsInfo, const QString &standardSentence,
                               QVariantMap &advices)
{
    const auto [recognised, recognisedScores] = recognisedWords(wordsInfo);
    if (recognised.isEmpty()) {
        advices.insert(QStringLiteral("no_voice"),
                       QCoreApplication::translate("VoPSRecognizer", "No voice detected"));
        return 0.0f;
    }

    const QStringList phraseWords = getAllWordFromText(standardSentence, true);
    const QSet<QString> inPhrase(phraseWords.cbegin(), phraseWords.cend());
    QStringList matched;
    QList<float> matchedScores;
    qsizetype unmatchedCount = 0;
    for (qsizetype i = 0; i < recognised.size(); ++i) {
        if (inPhrase.contains(recognised[i])) {
            matched.append(recognised[i]);
            matchedScores.append(recognisedScores[i]);
        } else {
            ++unmatchedCount;
        }
    }
    removeSurplus(matched, phraseWords);
    if (matched.isEmpty()) {
        advices.insert(QStringLiteral("no_right_word"),
                       QCoreApplication::translate("VoPSRecognizer", "No correct words detected"));
        return 0.0f;
    }

    // The surplus removal shortens M only, so matchedScores is at least as long as M.
    const auto phraseWordCount = static_cast<float>(phraseWords.size());
    float wordPart = 0.0f;
    for (qsizetype j = 0; j < matched.size(); ++j)
        wordPart += matchedScores[j] / phraseWordCount;

    // In double, with the single-precision 0.1 widened (0.10000000149011612).
    const double extraWordPenalty = (-100.0 / static_cast<double>(recognised.size())) *
                                    static_cast<double>(unmatchedCount) * static_cast<double>(0.1f);
    const auto withExtraWords =
        static_cast<float>(static_cast<double>(wordPart) + extraWordPenalty);

    // Unsigned 32-bit: the product wraps and the quotient truncates.
    const uint32_t misplaced = misplacedCount(phraseWords, matched);
    const auto matchedCount = static_cast<uint32_t>(matched.size());
    if (misplaced > matchedCount / 2)
        advices.insert(
            QStringLiteral("wrong_sequence"),
            QCoreApplication::translate("VoPSRecognizer", "Problems a bit in word sequence"));
    const float withOrder =
        withExtraWords + static_cast<float>(misplaced * 100u / matchedCount) * -0.1f;

    // Lifts the middle of the range: 50 becomes 75, 100 stays 100.
    const float curved = std::fmaf(withOrder, 1.0f - withOrder / 100.0f, withOrder);
    // Comparisons rather than std::clamp, so that a NaN from a broken posterior scores 0.
    float score = curved > 0.0f ? curved : 0.0f;
    score = score < 100.0f ? score : 100.0f;

    advices.insert(QStringLiteral("words_score"),
                   wordsScoreText(phraseWords, matched, matchedScores));
    VoLog::write(lcSpeech(), VoLog::Progress,
                 QStringLiteral("\n the score is %1").arg(static_cast<double>(score), 0, 'f', 6));
    return score;
}

QStringList VoPSRecognizer::getAllWordFromText(const QString &text, bool uppercased)
{
    QStringList words = recognizerWords(text, uppercased);
    // Joining a long word list would cost more than the scoring; only when the line is shown.
    if (lcSpeech().isInfoEnabled())
        VoLog::write(lcSpeech(), VoLog::Progress,
                     QStringLiteral("\n the text including the words: (%1)")
                         .arg(words.join(QStringLiteral(", "))));
    return words;
}

QList<std::pair<QString, int32_t>> VoPSRecognizer::getWordsCount(const QString &text)
{
    return countWords(getAllWordFromText(text, true));
}

float VoPSRecognizer::getWordScore(const QVariantMap &wordResult)
{
    // The recogniser stores a float, a word list read from JSON a double. Scaling the value as
    // it came and rounding once equals the single-precision product for a float (the exact
    // product fits a double) and keeps a written 0.6 at 60 rather than 60.000004.
    const QVariant posterior = wordResult.value(QStringLiteral("logProbability"));
    if (!isNumber(posterior))
        return 0.0f;
    return static_cast<float>(posterior.toDouble() * 100.0);
}
