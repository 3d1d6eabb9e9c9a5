#include "WordResults.h"
#include "content/QtPrinters.h"
#include "speech/VoPSRecognizer.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct Scored {
    float score{-1.0f};
    QVariantMap advices;
};

Scored scored(const QList<QVariantMap> &words, const QString &phrase)
{
    Scored result;
    result.score = VoPSRecognizer::getScore(words, phrase, result.advices);
    return result;
}

QVariantMap wordsScore(const QString &text)
{
    return {{u"words_score"_s, text}};
}

} // namespace

TEST(PhraseScore, GutenMorgenScores91)
{
    const Scored written = scored({wordResult(u"<s>"_s, 1.0), wordResult(u"guten"_s, 0.8),
                                   wordResult(u"morgen"_s, 0.6), wordResult(u"</s>"_s, 1.0)},
                                  u"Guten Morgen."_s);
    EXPECT_EQ(written.score, 91.0f);
    EXPECT_EQ(written.advices, wordsScore(u"GUTEN:80;MORGEN:60"_s));

    // The recogniser's posteriors are floats: 0.6f x 100 in single precision is 60.000004,
    // and the text keeps the digits that tell that float apart.
    const Scored recognised =
        scored({wordResult(u"GUTEN"_s, 0.8f), wordResult(u"MORGEN"_s, 0.6f)}, u"Guten Morgen."_s);
    EXPECT_EQ(recognised.score, 91.0f);
    EXPECT_EQ(recognised.advices, wordsScore(u"GUTEN:80;MORGEN:60.000004"_s));
}

TEST(PhraseScore, WordScoreIsThePosteriorTimes100)
{
    const auto withPosterior = [](const QVariant &posterior) {
        return VoPSRecognizer::getWordScore(wordResult(u"JA"_s, posterior));
    };
    EXPECT_EQ(withPosterior(0.875f), 87.5f);
    EXPECT_EQ(withPosterior(1), 100.0f);
    EXPECT_EQ(withPosterior(0.6f), 0.6f * 100.0f);
    EXPECT_EQ(withPosterior(0.6), 60.0f);
    // Anything but a number counts as a posterior of 0.
    EXPECT_EQ(withPosterior(u"0.5"_s), 0.0f);
    EXPECT_EQ(withPosterior(true), 0.0f);
    EXPECT_EQ(withPosterior(QVariant()), 0.0f);
    EXPECT_EQ(VoPSRecognizer::getWordScore({{u"word"_s, u"JA"_s}}), 0.0f);
}

TEST(PhraseScore, CurveLiftsTheMiddleAndClamps)
{
    EXPECT_EQ(scored(saidWords({{"guten", 50}, {"tag", 50}}), u"Guten Tag"_s).score, 75.0f);
    EXPECT_EQ(scored(saidWords({{"guten", 100}, {"tag", 100}}), u"Guten Tag"_s).score, 100.0f);
    // 5 - 9 extra-word points: below zero before the curve, 0 after it.
    EXPECT_EQ(scored(saidWords({{"ja", 5},
                                {"a", 90},
                                {"b", 90},
                                {"c", 90},
                                {"d", 90},
                                {"e", 90},
                                {"f", 90},
                                {"g", 90},
                                {"h", 90},
                                {"i", 90}}),
                     u"Ja"_s)
                  .score,
              0.0f);
}

TEST(PhraseScore, ExtraWordsCostATenthOfTheirShareOf100)
{
    const QString phrase = u"eins zwei drei vier"_s;
    const Scored exact = scored(saidWords({{"eins", 80}, {"zwei", 80}, {"drei", 80}}), phrase);
    EXPECT_NEAR(exact.score, 84.0, 1e-4); // 60 before the curve

    // Five words, two unmatched: 0.1 x 100 x 2 / 5 = 4 points off before the curve.
    const Scored extra =
        scored(saidWords({{"eins", 80}, {"hallo", 80}, {"zwei", 80}, {"drei", 80}, {"bitte", 80}}),
               phrase);
    EXPECT_NEAR(extra.score, 56.0 + 56.0 * 0.44, 1e-4);
    EXPECT_EQ(extra.advices, wordsScore(u"EINS:80;ZWEI:80;DREI:80;VIER:0"_s));
}

TEST(PhraseScore, OrderCheckCountsMisplacedWords)
{
    // The phrase's matched words in its order, JA JA NEIN, against JA NEIN: one misplaced of
    // two, which is not more than half; 5 points off.
    const Scored oneOfTwo = scored(saidWords({{"ja", 90}, {"nein", 90}}), u"Ja, ja, nein."_s);
    EXPECT_FALSE(oneOfTwo.advices.contains(u"wrong_sequence"_s));
    EXPECT_NEAR(oneOfTwo.score, 55.0 + 55.0 * 0.45, 1e-4);

    // Two misplaced of three is; floor(200 / 3) = 66 gives 6.6 points off.
    const Scored twoOfThree =
        scored(saidWords({{"ja", 100}, {"nein", 100}, {"danke", 100}}), u"Ja, ja, nein danke."_s);
    EXPECT_EQ(twoOfThree.advices.value(u"wrong_sequence"_s), u"Problems a bit in word sequence"_s);
    EXPECT_NEAR(twoOfThree.score, 68.4 + 68.4 * 0.316, 1e-3);

    const Scored swapped = scored(saidWords({{"morgen", 100}, {"guten", 100}}), u"Guten Morgen"_s);
    EXPECT_TRUE(swapped.advices.contains(u"wrong_sequence"_s));
    EXPECT_NEAR(swapped.score, 90.0 + 90.0 * 0.1, 1e-4);
}

TEST(PhraseScore, SurplusWordsLeaveTheirScoresBehind)
{
    // M = GUTEN GUTEN TAG, S = 40 60 100: M loses its second GUTEN but S keeps all three, so
    // the word part is (40 + 60) / 2 and TAG is credited with 60.
    const Scored repeated =
        scored(saidWords({{"guten", 40}, {"guten", 60}, {"tag", 100}}), u"Guten Tag"_s);
    EXPECT_EQ(repeated.score, 75.0f);
    EXPECT_EQ(repeated.advices, wordsScore(u"GUTEN:40;TAG:60"_s));

    // A A A A B with one A in the phrase: the A that slides into a removed slot is passed over,
    // so only the first and third go and M = A A B.
    const Scored runs = scored(
        saidWords({{"ja", 10}, {"ja", 20}, {"ja", 30}, {"ja", 40}, {"nein", 50}}), u"Ja nein"_s);
    EXPECT_EQ(runs.advices, wordsScore(u"JA:10;NEIN:30"_s));
    EXPECT_NEAR(runs.score, 26.7 + 26.7 * 0.733, 1e-3); // 30 - 3.3 for one misplaced of three

    // Each word has its own walk over what the previous walk left: A B A B loses its first A,
    // then the first B of B A B, leaving A B in order.
    const Scored alternating =
        scored(saidWords({{"ja", 10}, {"nein", 20}, {"ja", 30}, {"nein", 40}}), u"Ja nein"_s);
    EXPECT_EQ(alternating.advices, wordsScore(u"JA:10;NEIN:20"_s));
    EXPECT_NEAR(alternating.score, 15.0 + 15.0 * 0.85, 1e-4);
}

TEST(PhraseScore, RepeatedPhraseWordsAreEachScored)
{
    const Scored twice = scored(saidWords({{"danke", 80}, {"danke", 60}}), u"Danke, danke!"_s);
    EXPECT_EQ(twice.advices, wordsScore(u"DANKE:80;DANKE:80"_s));
    EXPECT_NEAR(twice.score, 70.0 + 70.0 * 0.3, 1e-4);
}

TEST(PhraseScore, FillersAndPronunciationVariants)
{
    const Scored variant = scored({wordResult(u"hello(2)"_s, 1.0)}, u"Hello!"_s);
    EXPECT_EQ(variant.score, 100.0f);
    EXPECT_EQ(variant.advices, wordsScore(u"HELLO:100"_s));

    const QVariantMap noVoice{{u"no_voice"_s, u"No voice detected"_s}};
    for (const QList<QVariantMap> &silence :
         {QList<QVariantMap>{},
          QList<QVariantMap>{wordResult(u"<s>"_s, 1.0), wordResult(u"<sil>"_s, 0.9),
                             wordResult(u"</s>"_s, 1.0)}}) {
        const Scored silent = scored(silence, u"Hallo"_s);
        EXPECT_EQ(silent.score, 0.0f);
        EXPECT_EQ(silent.advices, noVoice);
    }
}

TEST(PhraseScore, NothingMatchedScoresZero)
{
    const QVariantMap noRightWord{{u"no_right_word"_s, u"No correct words detected"_s}};
    const QList<std::pair<QList<QVariantMap>, QString>> cases{
        {saidWords({{"hallo", 90}}), u"Guten Morgen"_s},
        // The decoder never says these, but a cut before "(" at 0 leaves an empty word.
        {saidWords({{"(2)", 90}, {"", 90}}), u"Guten Morgen"_s},
        // Umlauts cut the phrase's word down to its ASCII tail, which the learner never says.
        {saidWords({{"mueller", 90}, {"müller", 90}}), u"Müller"_s},
        {saidWords({{"hallo", 90}}), u"Привет!"_s},
        {saidWords({{"hallo", 90}}), u"?!"_s},
        {saidWords({{"hallo", 90}}), QString()},
    };
    for (const auto &[words, phrase] : cases) {
        const Scored none = scored(words, phrase);
        EXPECT_EQ(none.score, 0.0f) << qUtf8Printable(phrase);
        EXPECT_EQ(none.advices, noRightWord) << qUtf8Printable(phrase);
    }
}

TEST(PhraseScore, BrokenPosteriorsStayInRange)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const QString phrase = u"Guten Tag"_s;
    EXPECT_EQ(scored({wordResult(u"guten"_s, nan), wordResult(u"tag"_s, 1.0)}, phrase).score, 0.0f);
    EXPECT_EQ(scored({wordResult(u"guten"_s, -infinity)}, phrase).score, 0.0f);
    // Past 200 the curve turns below zero, and at infinity it is not a number.
    EXPECT_EQ(scored({wordResult(u"guten"_s, infinity)}, phrase).score, 0.0f);
    EXPECT_EQ(scored({wordResult(u"guten"_s, 5.0), wordResult(u"tag"_s, 5.0)}, phrase).score, 0.0f);
    EXPECT_EQ(scored({wordResult(u"guten"_s, u"viel"_s)}, phrase).advices,
              wordsScore(u"GUTEN:0;TAG:0"_s));
}

TEST(PhraseScore, LongWordListsScore)
{
    QList<QVariantMap> words;
    for (int i = 0; i < 200'000; ++i)
        words.append(wordResult(i % 2 ? u"tag"_s : u"guten"_s, 1.0));
    const Scored many = scored(words, u"guten Tag, "_s.repeated(20'000));
    EXPECT_GE(many.score, 0.0f);
    EXPECT_LE(many.score, 100.0f);
    EXPECT_EQ(many.advices.value(u"words_score"_s).toString().count(u';'), 40'000 - 1);
}
