#include "FuzzSupport.h"
#include "content/TextHelpers.h"
#include "content/VoAppCommon.h"
#include "speech/RecognizerWords.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/VoPSRecognizer.h"
#include "speech/WordOrder.h"

#include <QSet>
#include <algorithm>

// The word splits that phrase texts go through: the quizzes', the recogniser's, the model
// generator's clean-up, and the one order both sides of the dictionary lookup sort by.

namespace {

// Only the separators every Unicode table agrees on: the check must not depend on Qt's version.
bool isQuizSeparator(QChar c)
{
    return QStringLiteral(" \t\n\r.,!?\u3001\u3002").contains(c);
}

// Words are found in the text left to right, none empty, none holding a separator.
void checkQuizWords(const QString &text)
{
    const QStringList words = VoAppCommon::getAllWordFromText(text, false);
    qsizetype from = 0;
    for (const QString &word : words) {
        fuzz::check(!word.isEmpty() && std::none_of(word.cbegin(), word.cend(), isQuizSeparator));
        from = text.indexOf(word, from);
        fuzz::check(from >= 0);
        from += word.size();
    }
    const QStringList upper = VoAppCommon::getAllWordFromText(text, true);
    fuzz::check(upper.size() == words.size());
    for (qsizetype i = 0; i < words.size(); ++i)
        fuzz::check(upper[i] == words[i].toUpper());
}

bool isRecognizerLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'\'';
}

// The acoustic model knows English phones only: its words are ASCII letters and apostrophes.
void checkRecognizerWords(const QString &text)
{
    const QStringList words = VoPSRecognizer::getAllWordFromText(text, true);
    for (const QString &word : words)
        fuzz::check(!word.isEmpty() && std::all_of(word.cbegin(), word.cend(), isRecognizerLetter));
    fuzz::check(recognizerWords(text, false).size() == words.size());

    const auto counts = VoPSRecognizer::getWordsCount(text);
    QSet<QString> distinct;
    qsizetype total = 0;
    for (const auto &[word, count] : counts) {
        fuzz::check(count > 0 && !distinct.contains(word) && words.contains(word));
        distinct.insert(word);
        total += count;
    }
    fuzz::check(total == words.size());
}

// A comparison std::sort can trust: irreflexive, antisymmetric, transitive over the words.
void checkWordOrder(QStringList words)
{
    for (const QString &a : std::as_const(words)) {
        fuzz::check(compareWords(a, a) == 0);
        for (const QString &b : std::as_const(words))
            fuzz::check((compareWords(a, b) < 0) == (compareWords(b, a) > 0));
    }
    std::sort(words.begin(), words.end(), wordLessThan);
    for (qsizetype i = 1; i < words.size(); ++i)
        fuzz::check(!wordLessThan(words[i], words[i - 1]));
}

void checkTrainerSplits(const QString &text)
{
    const QStringList entries = text.split(QLatin1Char('\n'));
    const QStringList compacted = VoLanguageModelTrainer::compactWhitespaceOfArrayEntries(entries);
    fuzz::check(compacted.size() == entries.size());
    for (const QString &entry : compacted)
        fuzz::check(!entry.startsWith(QLatin1Char(' ')) && !entry.endsWith(QLatin1Char(' ')) &&
                    !entry.contains(QStringLiteral("  ")));
    VoLanguageModelTrainer trainer;
    const QStringList words = trainer.cleanDictionaryWordArray(compacted);
    fuzz::check(QSet<QString>(words.cbegin(), words.cend()).size() == words.size());
    for (qsizetype i = 1; i < words.size(); ++i)
        fuzz::check(!wordLessThan(words[i], words[i - 1]));
}

void checkTextHelpers(const QByteArray &bytes, const QString &text)
{
    if (const auto strict = TextHelpers::fromUtf8Strict(bytes)) {
        // The decoder drops a leading byte-order mark; every other byte is kept.
        const QByteArray bom("\xEF\xBB\xBF");
        fuzz::check(strict->toUtf8() == bytes || bom + strict->toUtf8() == bytes);
    }
    const auto decoded = TextHelpers::base64Decode(TextHelpers::base64Encode(text));
    fuzz::check(decoded && (*decoded == text || QChar(0xFEFF) + *decoded == text));
    fuzz::check(TextHelpers::sha1(text).size() == 40 && TextHelpers::md5(text).size() == 32);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::setUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Longer texts only cost time: every check is at least linear, the order check quadratic.
    if (size > 4096)
        return 0;
    const QByteArray bytes = fuzz::bytesOf(data, size);
    const QString text = QString::fromUtf8(bytes);
    checkQuizWords(text);
    checkRecognizerWords(text);
    QStringList words = VoAppCommon::getAllWordFromText(text, false);
    words.resize(std::min<qsizetype>(words.size(), 16));
    checkWordOrder(words);
    checkTrainerSplits(text);
    checkTextHelpers(bytes, text);
    return 0;
}
