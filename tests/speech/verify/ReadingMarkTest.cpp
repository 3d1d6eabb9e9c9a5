#include "speech/verify/ReadingMark.h"

#include <gtest/gtest.h>

namespace {

/// A check of an aligned reading whose words got these verdicts.
ReadingVerification checked(std::initializer_list<WordVerdict> verdicts, double goodness)
{
    ReadingVerification check;
    check.succeeded = true;
    check.aligned = true;
    check.goodness = goodness;
    for (const WordVerdict verdict : verdicts) {
        WordVerification word;
        word.verdict = verdict;
        check.words.append(word);
    }
    return check;
}

constexpr auto well = WordVerdict::HeardWell;
constexpr auto unclear = WordVerdict::Unclear;
constexpr auto missing = WordVerdict::Missing;
constexpr double fittedWell = ReadingMark::phraseGoodness + 5.0;
constexpr double fittedBadly = ReadingMark::phraseGoodness - 5.0;

} // namespace

TEST(ReadingMark, WordsHeardWellRaiseTheMarkAndNeverLowerIt)
{
    // Four words: 3 heard well and 1 unclear are 3.5 of 4, 8 of 10 rounded down.
    EXPECT_EQ(ReadingMark::mark(0.0F, checked({well, well, well, unclear}, fittedWell)), 8);
    // The recogniser's mark stands when it is the higher.
    EXPECT_EQ(ReadingMark::mark(95.0F, checked({well, well, well, unclear}, fittedWell)), 9);

    // Raising any one word's verdict, one step at a time, never lowers the mark, whatever the
    // recogniser said and however well the whole fitted.
    const WordVerdict order[] = {missing, unclear, well};
    for (const float score : {0.0F, 35.0F, 99.0F}) {
        for (const double goodness : {fittedWell, fittedBadly}) {
            for (int a = 0; a < 3; ++a) {
                for (int b = 0; b < 3; ++b) {
                    for (int c = 0; c + 1 < 3; ++c) {
                        const int before = ReadingMark::mark(
                            score, checked({order[a], order[b], order[c]}, goodness));
                        const int after = ReadingMark::mark(
                            score, checked({order[a], order[b], order[c + 1]}, goodness));
                        EXPECT_LE(before, after) << score << ' ' << goodness << ' ' << a << b << c;
                    }
                }
            }
        }
    }
}

TEST(ReadingMark, SpeechThatIsNotThePhraseGetsAtMostTwo)
{
    // The recogniser found most of the phrase's words in something else.
    EXPECT_EQ(ReadingMark::mark(90.0F, checked({well, unclear, missing, missing}, fittedBadly)), 2);
    ReadingVerification unaligned = checked({missing, missing}, -100.0);
    unaligned.aligned = false;
    EXPECT_EQ(ReadingMark::mark(90.0F, unaligned), 2);
    EXPECT_EQ(ReadingMark::mark(10.0F, unaligned), 1);
    // A one-word phrase found in a part of a longer utterance.
    ReadingVerification partOfSomethingElse = checked({well}, fittedWell);
    partOfSomethingElse.unmatchedSpeech = 0.6;
    EXPECT_EQ(ReadingMark::mark(100.0F, partOfSomethingElse), 2);
    // Every word missing: nothing of the phrase was said.
    EXPECT_EQ(ReadingMark::mark(70.0F, checked({missing, missing, missing}, fittedWell)), 0);
    // A phrase that fitted well as a whole is not held down for a few unclear words.
    EXPECT_EQ(ReadingMark::mark(0.0F, checked({well, unclear, unclear, unclear}, fittedWell)), 6);
}

TEST(ReadingMark, WithoutACheckTheRecognisersMarkStands)
{
    ReadingVerification failed;
    failed.note = QStringLiteral("the checking decoder could not start");
    EXPECT_EQ(ReadingMark::mark(79.9F, failed), 7);
    // Words that could not be judged count neither way.
    ReadingVerification unjudged = checked({missing}, -100.0);
    unjudged.words[0].judged = false;
    EXPECT_EQ(ReadingMark::mark(100.0F, unjudged), 10);
    EXPECT_EQ(ReadingMark::mark(100.0F, checked({well, missing}, fittedWell)), 10);
}
