#include "speech/verify/ReadingVerifier.h"

#include "content/AppCommon.h"
#include "speech/PhraseAssessment.h"
#include "speech/SpeechTestSupport.h"
#include "speech/verify/SoundSpelling.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

PhraseInfo &coursePhrase(const QString &category, const QString &text)
{
    setResourceRoot(TestPaths::course());
    for (PhraseInfo *phrase : *loadPhrases(category)) {
        if (foreignText(*phrase) == text)
            return *phrase;
    }
    ADD_FAILURE() << "no phrase " << qPrintable(text);
    return *loadPhrases(category)->first();
}

PhraseAssessment assess(PhraseInfo &voice, const QString &text, const QString &ipa)
{
    return assessRecording(text, ipa, soundPath(voice), TestPaths::acousticModel());
}

} // namespace

TEST(ReadingVerifier, JudgesItsOwnPhraseAlikeEveryTimeAndTellsAnotherPhraseApart)
{
    PhraseInfo &rolls = coursePhrase(u"4"_s, u"Ich hätte gern vier Brötchen."_s);
    const PhraseAssessment own = assess(rolls, foreignText(rolls), rolls.phon);
    ASSERT_TRUE(own.succeeded()) << qPrintable(own.error);
    const ReadingVerification &check = own.verification;
    ASSERT_TRUE(check.succeeded) << qPrintable(check.note);
    ASSERT_TRUE(check.aligned);
    ASSERT_EQ(check.words.size(), 5);
    // The words the recogniser's split cuts at the umlaut are judged whole.
    EXPECT_EQ(check.words[1].word, u"hätte"_s);
    EXPECT_EQ(check.words[4].word, u"Brötchen"_s);
    for (const WordVerification &word : check.words) {
        EXPECT_TRUE(word.judged) << qPrintable(word.word);
        EXPECT_NE(word.verdict, WordVerdict::Missing) << qPrintable(word.word);
        EXPECT_LE(word.startFrame, word.endFrame);
    }
    EXPECT_GE(own.mark, 8);

    // The same recording against a phrase of another category.
    PhraseInfo &doctor = coursePhrase(u"8"_s, u"Ich brauche einen Arzt."_s);
    const PhraseAssessment other = assess(rolls, foreignText(doctor), doctor.phon);
    ASSERT_TRUE(other.verification.succeeded);
    EXPECT_LE(other.mark, 2);
    EXPECT_LT(other.verification.count(WordVerdict::HeardWell), 2);

    // Judged again by a verifier of its own, the reading gets the same verdicts and goodness;
    // inside five seconds of silence each side, its frames move and its verdicts stay.
    const std::vector<int16_t> reading = decodedSamples(soundPath(rolls));
    ASSERT_FALSE(reading.empty());
    std::vector<int16_t> padded(5 * 16000, 0);
    padded.insert(padded.end(), reading.begin(), reading.end());
    padded.resize(padded.size() + 5 * 16000, 0);
    const QTemporaryDir folder;
    const PhraseModel model =
        generatePhraseModel(foreignText(rolls), folder.path(), TestPaths::acousticModel());
    ReadingVerifier verifier(TestPaths::acousticModel());
    const ReadingVerification plain =
        verifier.verify(foreignText(rolls), rolls.phon, model.dictionaryPath, reading);
    const ReadingVerification quiet =
        verifier.verify(foreignText(rolls), rolls.phon, model.dictionaryPath, padded);
    ASSERT_TRUE(quiet.aligned);
    ASSERT_EQ(quiet.words.size(), check.words.size());
    ASSERT_EQ(plain.words.size(), check.words.size());
    for (qsizetype i = 0; i < check.words.size(); ++i) {
        EXPECT_EQ(plain.words[i].verdict, check.words[i].verdict) << i;
        EXPECT_EQ(plain.words[i].goodness, check.words[i].goodness) << i;
        EXPECT_EQ(quiet.words[i].verdict, check.words[i].verdict) << i;
        EXPECT_NEAR(quiet.words[i].startFrame, check.words[i].startFrame + 500, 3) << i;
    }
}

TEST(ReadingVerifier, AWeakSoundIsNamedByItsLettersAndIpa)
{
    const QStringList phones{u"B"_s, u"R"_s, u"ER"_s, u"T"_s, u"SH"_s, u"AH"_s, u"N"_s};
    EXPECT_EQ(SoundSpelling::lettersOfPhones(u"Brötchen"_s, phones),
              (QStringList{u"B"_s, u"r"_s, u"ö"_s, u"t"_s, u"ch"_s, u"e"_s, u"n"_s}));
    EXPECT_EQ(SoundSpelling::ipaOfPhones(u"ˈbʁøːtçən"_s, phones),
              (QStringList{u"b"_s, u"ʁ"_s, u"øː"_s, u"t"_s, u"ç"_s, u"ə"_s, u"n"_s}));
    // "z" and "tz" spell two phones; a silent "h" lengthens the vowel.
    EXPECT_EQ(SoundSpelling::lettersOfPhones(u"zahlen"_s,
                                             {u"T"_s, u"S"_s, u"AA"_s, u"L"_s, u"AH"_s, u"N"_s}),
              (QStringList{u"z"_s, u"z"_s, u"ah"_s, u"l"_s, u"e"_s, u"n"_s}));
    // More phones than the word can spell: no letters rather than wrong ones.
    EXPECT_EQ(SoundSpelling::lettersOfPhones(u"a"_s, {u"AA"_s, u"B"_s, u"K"_s, u"D"_s, u"G"_s}),
              QStringList(5));
}

TEST(ReadingVerifier, FallsBackToTheRecognisersMarkWhenNothingCanBeChecked)
{
    PhraseInfo &rolls = coursePhrase(u"4"_s, u"Ich hätte gern vier Brötchen."_s);
    // No word of it has a pronunciation.
    const PhraseAssessment unknown = assess(rolls, u"ẞẞẞ qqqx."_s, {});
    ASSERT_TRUE(unknown.succeeded());
    EXPECT_FALSE(unknown.verification.succeeded);
    EXPECT_EQ(unknown.mark, static_cast<int>(unknown.score / 10.0F));
}
