#include "content/QtPrinters.h"
#include "speech/VoPSRecognizer.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

QVariantMap wordResult(const QString &word, const QVariant &posterior)
{
    return {{u"word"_s, word}, {u"logProbability"_s, posterior}};
}

/// Word results from (word, score out of 100) pairs.
QList<QVariantMap> said(std::initializer_list<std::pair<const char *, double>> words)
{
    QList<QVariantMap> results;
    for (const auto &[word, score] : words)
        results.append(wordResult(QString::fromUtf8(word), score / 100.0));
    return results;
}

QVariantMap wordsScore(const QString &text)
{
    return {{u"words_score"_s, text}};
}

QVariantMap withAdvice(QVariantMap advices, const QString &key, const QString &text)
{
    advices.insert(key, text);
    return advices;
}

const QVariantMap noVoice{{u"no_voice"_s, u"No voice detected"_s}};
const QVariantMap noRightWord{{u"no_right_word"_s, u"No correct words detected"_s}};
const QString wrongSequence = u"wrong_sequence"_s;
const QString inWordSequence = u"Problems a bit in word sequence"_s;

/// x + x (1 - x / 100): the curve that lifts a raw score's middle.
constexpr double curved(double raw)
{
    return raw + raw * (1.0 - raw / 100.0);
}

} // namespace

// Every expected score below was worked out by hand from the rules: each matched word adds its
// score / the phrase's word count, each unmatched word takes 0.1 x 100 / (words said), misplaced
// words take 0.1 x floor(100 x misplaced / matched), then the curve, clamped to 0-100.
TEST(PhraseScore, Cases)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    QList<QVariantMap> nineExtras = said({{"ja", 5}});
    for (const char *extra : {"a", "b", "c", "d", "e", "f", "g", "h", "i"})
        nineExtras.append(wordResult(QString::fromLatin1(extra), 0.9));
    const struct {
        QList<QVariantMap> words;
        QString phrase;
        double score;
        QVariantMap advices; ///< not compared when empty
    } cases[] = {
        {said({{"<s>", 100}, {"guten", 80}, {"morgen", 60}, {"</s>", 100}}), u"Guten Morgen."_s,
         91.0, wordsScore(u"GUTEN:80;MORGEN:60"_s)},
        // 0.6f x 100 in single precision is 60.000004, and the text keeps the float's digits.
        {{wordResult(u"GUTEN"_s, 0.8f), wordResult(u"MORGEN"_s, 0.6f)},
         u"Guten Morgen."_s,
         91.0,
         wordsScore(u"GUTEN:80;MORGEN:60.000004"_s)},
        {said({{"guten", 50}, {"tag", 50}}), u"Guten Tag"_s, 75.0,
         wordsScore(u"GUTEN:50;TAG:50"_s)},
        {said({{"guten", 100}, {"tag", 100}}), u"Guten Tag"_s, 100.0, {}},
        // 5 - 9 extra-word points: below zero before the curve, 0 after it.
        {nineExtras, u"Ja"_s, 0.0, wordsScore(u"JA:5"_s)},
        {said({{"eins", 80}, {"zwei", 80}, {"drei", 80}}), u"eins zwei drei vier"_s, curved(60),
         wordsScore(u"EINS:80;ZWEI:80;DREI:80;VIER:0"_s)},
        // Five words, two unmatched: 0.1 x 100 x 2 / 5 = 4 points off.
        {said({{"eins", 80}, {"hallo", 80}, {"zwei", 80}, {"drei", 80}, {"bitte", 80}}),
         u"eins zwei drei vier"_s, curved(56), wordsScore(u"EINS:80;ZWEI:80;DREI:80;VIER:0"_s)},
        // JA JA NEIN in the phrase's order against JA NEIN: one misplaced of two, not more than
        // half, so no advice; 5 points off.
        {said({{"ja", 90}, {"nein", 90}}), u"Ja, ja, nein."_s, curved(55),
         wordsScore(u"JA:90;JA:90;NEIN:90"_s)},
        // Two misplaced of three is; floor(200 / 3) = 66 gives 6.6 points off.
        {said({{"ja", 100}, {"nein", 100}, {"danke", 100}}), u"Ja, ja, nein danke."_s, curved(68.4),
         withAdvice(wordsScore(u"JA:100;JA:100;NEIN:100;DANKE:100"_s), wrongSequence,
                    inWordSequence)},
        {said({{"morgen", 100}, {"guten", 100}}), u"Guten Morgen"_s, curved(90),
         withAdvice(wordsScore(u"GUTEN:100;MORGEN:100"_s), wrongSequence, inWordSequence)},
        // GUTEN GUTEN TAG loses its second GUTEN but keeps all three scores, so the word part is
        // (40 + 60) / 2 and TAG is credited with 60.
        {said({{"guten", 40}, {"guten", 60}, {"tag", 100}}), u"Guten Tag"_s, 75.0,
         wordsScore(u"GUTEN:40;TAG:60"_s)},
        // A A A A B with one A in the phrase: the A that slides into a removed slot is passed
        // over, so only the first and third go: A A B, one misplaced of three, 3.3 off.
        {said({{"ja", 10}, {"ja", 20}, {"ja", 30}, {"ja", 40}, {"nein", 50}}), u"Ja nein"_s,
         curved(26.7), wordsScore(u"JA:10;NEIN:30"_s)},
        // Each word has its own walk over what the previous walk left: A B A B loses its first
        // A, then the first B of B A B, leaving A B in order.
        {said({{"ja", 10}, {"nein", 20}, {"ja", 30}, {"nein", 40}}), u"Ja nein"_s, curved(15),
         wordsScore(u"JA:10;NEIN:20"_s)},
        {said({{"danke", 80}, {"danke", 60}}), u"Danke, danke!"_s, curved(70),
         wordsScore(u"DANKE:80;DANKE:80"_s)},
        {{wordResult(u"hello(2)"_s, 1.0)}, u"Hello!"_s, 100.0, wordsScore(u"HELLO:100"_s)},
        {{}, u"Hallo"_s, 0.0, noVoice},
        {said({{"<s>", 100}, {"<sil>", 90}, {"</s>", 100}}), u"Hallo"_s, 0.0, noVoice},
        {said({{"hallo", 90}}), u"Guten Morgen"_s, 0.0, noRightWord},
        // A cut before "(" at 0 leaves an empty word.
        {said({{"(2)", 90}, {"", 90}}), u"Guten Morgen"_s, 0.0, noRightWord},
        // Umlauts cut the phrase's word down to its ASCII tail, which the learner never says.
        {said({{"mueller", 90}, {"müller", 90}}), u"Müller"_s, 0.0, noRightWord},
        {said({{"hallo", 90}}), u"Привет!"_s, 0.0, noRightWord},
        {said({{"hallo", 90}}), u"?!"_s, 0.0, noRightWord},
        {said({{"hallo", 90}}), QString(), 0.0, noRightWord},
        // Broken posteriors stay in range: past 200 the curve turns below zero, and at infinity
        // it is not a number.
        {{wordResult(u"guten"_s, nan), wordResult(u"tag"_s, 1.0)}, u"Guten Tag"_s, 0.0, {}},
        {{wordResult(u"guten"_s, -infinity)}, u"Guten Tag"_s, 0.0, {}},
        {{wordResult(u"guten"_s, infinity)}, u"Guten Tag"_s, 0.0, {}},
        {{wordResult(u"guten"_s, 5.0), wordResult(u"tag"_s, 5.0)}, u"Guten Tag"_s, 0.0, {}},
        {{wordResult(u"guten"_s, u"viel"_s)}, u"Guten Tag"_s, 0.0, wordsScore(u"GUTEN:0;TAG:0"_s)},
    };
    int index = 0;
    for (const auto &c : cases) {
        QVariantMap advices;
        const float score = VoPSRecognizer::getScore(c.words, c.phrase, advices);
        EXPECT_NEAR(score, c.score, 1e-3) << "case " << index;
        if (!c.advices.isEmpty()) {
            EXPECT_EQ(advices, c.advices) << "case " << index;
        }
        ++index;
    }
}

TEST(PhraseScore, WordScoreIsThePosteriorTimes100)
{
    const auto withPosterior = [](const QVariant &posterior) {
        return VoPSRecognizer::getWordScore(wordResult(u"JA"_s, posterior));
    };
    EXPECT_EQ(withPosterior(0.875f), 87.5f);
    EXPECT_EQ(withPosterior(1), 100.0f);
    // Anything but a number counts as a posterior of 0.
    for (const QVariant &notANumber : {QVariant(u"0.5"_s), QVariant(true), QVariant()})
        EXPECT_EQ(withPosterior(notANumber), 0.0f);
    EXPECT_EQ(VoPSRecognizer::getWordScore({{u"word"_s, u"JA"_s}}), 0.0f);
}

TEST(PhraseScore, LongWordListsScore)
{
    QList<QVariantMap> words;
    for (int i = 0; i < 200'000; ++i)
        words.append(wordResult(i % 2 ? u"tag"_s : u"guten"_s, 1.0));
    QVariantMap advices;
    const float score = VoPSRecognizer::getScore(words, u"guten Tag, "_s.repeated(20'000), advices);
    EXPECT_GE(score, 0.0f);
    EXPECT_LE(score, 100.0f);
    EXPECT_EQ(advices.value(u"words_score"_s).toString().count(u';'), 40'000 - 1);
}

TEST(PhraseWords, AsciiRunsFollowedByASeparator)
{
    const struct {
        QString text;
        bool upper;
        QStringList words;
    } cases[] = {
        {u"Wie geht's?"_s, false, {u"Wie"_s, u"geht's"_s}},
        {u"Wie geht's?"_s, true, {u"WIE"_s, u"GEHT'S"_s}},
        // The last word needs no separator of its own.
        {u"guten Tag"_s, true, {u"GUTEN"_s, u"TAG"_s}},
        // A digit or a hyphen ends a run; only a run that a separator follows is a word.
        {u"um 3Uhr, U-Bahn!"_s, true, {u"UM"_s, u"UHR"_s, u"BAHN"_s}},
        // Only the ASCII tail after the last other letter counts.
        {u"Müller "_s, false, {u"ller"_s}},
        {u"Grüß Gott"_s, true, {u"GOTT"_s}},
        // Not even letters that fold to ASCII ones: the long s and the Kelvin sign.
        {u"Stra\u017Fe \u212Aatze"_s, false, {u"e"_s, u"atze"_s}},
        {u"?!., "_s, true, {}},
        {u"Привет, мир!"_s, true, {}},
        {u"(Hallo)"_s, true, {}},
        {u"12 34."_s, true, {}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(VoPSRecognizer::getAllWordFromText(c.text, c.upper), c.words)
            << qUtf8Printable(c.text);
}
