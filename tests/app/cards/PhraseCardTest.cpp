#include "app/PhraseCardVC.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/CourseFixture.h"
#include "content/UserInfoFile.h"
#include "stubs/AudioPlayerStub.h"

#include <QSettings>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

// The sample course: category "10" holds "Guten Morgen!" and "Wie geht's?", "2" one phrase
// and "9" none.
class PhraseCardTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        CourseFixture::appCourse();
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        QSettings().clear();
        Preferences::instance().setLanguageType(u"en"_s);
    }

    static qint64 listens() { return userInfoInt(UserInfoKey::listenCount); }

    static QString voice(const QString &category, int index)
    {
        return soundPath(*loadPhrases(category)->at(index));
    }

    static void expectButtons(const PhraseCardVC &card, const char *last, const char *next)
    {
        EXPECT_EQ(card.lastItemImage(), QLatin1StringView(last));
        EXPECT_EQ(card.lastItemEnabled(), card.lastItemImage() == u"btn-last"_s);
        EXPECT_EQ(card.nextItemImage(), QLatin1StringView(next));
        EXPECT_EQ(card.nextItemEnabled(), card.nextItemImage() == u"btn-next"_s);
    }

    AudioPlayerStubFactory players;
};

} // namespace

TEST_F(PhraseCardTest, StepsThroughTheCategoryAndGreysTheButtonsAtItsEnds)
{
    PhraseCardVC card;
    card.open(u"10"_s, 0);
    EXPECT_EQ(card.title(), u"Greetings"_s);
    EXPECT_EQ(card.phraseCount(), 2);
    EXPECT_EQ(card.currentIndex(), 0);
    EXPECT_EQ(card.phraseText(), u"Guten Morgen!"_s);
    EXPECT_EQ(card.translation(), u"Good morning!"_s);
    expectButtons(card, "btn-last2", "btn-next");

    QSignalSpy shown(&card, &PhraseCardVC::phraseChanged);
    card.nextItem();
    EXPECT_EQ(card.currentIndex(), 1);
    EXPECT_EQ(card.phraseText(), u"Wie geht's?"_s);
    EXPECT_EQ(card.translation(), u"Wie geht's?"_s) << "no translation: the German text";
    expectButtons(card, "btn-last", "btn-next2");

    card.nextItem();
    EXPECT_EQ(card.currentIndex(), 1);
    expectButtons(card, "btn-last", "btn-next2");

    card.lastItem();
    EXPECT_EQ(card.currentIndex(), 0);
    expectButtons(card, "btn-last2", "btn-next");
    card.lastItem();
    EXPECT_EQ(card.currentIndex(), 0);
    EXPECT_EQ(shown.count(), 2);

    // A phrase is heard each time it is shown; pressing against an end shows nothing new.
    EXPECT_EQ(players.requested,
              (QStringList{voice(u"10"_s, 0), voice(u"10"_s, 1), voice(u"10"_s, 0)}));
    EXPECT_EQ(listens(), 3);
}

TEST_F(PhraseCardTest, OnePhraseCategoryCannotStepEitherWay)
{
    PhraseCardVC card;
    card.open(u"2"_s, 0);
    EXPECT_EQ(card.phraseText(), u"Einen Kaffee bitte!"_s) << "the German entry wins";
    expectButtons(card, "btn-last2", "btn-next2");
    card.nextItem();
    card.lastItem();
    expectButtons(card, "btn-last2", "btn-next2");
    EXPECT_EQ(listens(), 1);
}

TEST_F(PhraseCardTest, EveryPlayIsCountedAndHeardAtTheLearnersSpeed)
{
    Preferences::instance().setPlaySpeed(0.6F);
    PhraseCardVC card;
    card.open(u"10"_s, 1);
    expectButtons(card, "btn-last", "btn-next2");
    ASSERT_NE(players.last, nullptr);
    EXPECT_TRUE(players.last->isPlaying());
    EXPECT_FLOAT_EQ(players.last->rate(), 0.6F);
    EXPECT_EQ(players.last->numberOfLoops(), 0);
    EXPECT_FLOAT_EQ(players.last->volume(), 1.0F);

    for (int press = 0; press < 3; ++press)
        card.play();
    EXPECT_EQ(listens(), 1 + 3);
    EXPECT_EQ(players.requested.size(), 4);

    card.stopPlaying();
    EXPECT_FALSE(players.last->isPlaying());
}

TEST_F(PhraseCardTest, MissingRecordingIsSilentButStillCountedAsAListen)
{
    players.unplayable = {voice(u"10"_s, 0)};
    PhraseCardVC card;
    card.open(u"10"_s, 0);
    card.play();
    card.stopPlaying();
    EXPECT_EQ(card.phraseText(), u"Guten Morgen!"_s);
    EXPECT_EQ(listens(), 2);
}

TEST_F(PhraseCardTest, NothingToShowGivesAnEmptyCardThatIgnoresItsButtons)
{
    const std::pair<QString, int> openings[] = {
        {u"11"_s, 0}, {u"9"_s, 0}, {u"10"_s, 2}, {u"10"_s, -1}};
    for (const auto &[category, index] : openings) {
        PhraseCardVC card;
        card.open(category, index);
        EXPECT_FALSE(card.hasPhrase()) << qPrintable(category) << " " << index;
        EXPECT_EQ(card.currentIndex(), -1);
        EXPECT_TRUE(card.phraseText().isEmpty());
        EXPECT_TRUE(card.image().isEmpty());
        expectButtons(card, "btn-last2", "btn-next2");
        card.play();
        card.nextItem();
        card.lastItem();
        EXPECT_FALSE(card.hasPhrase());
    }
    EXPECT_TRUE(players.requested.isEmpty());
    EXPECT_EQ(listens(), 0);
}

TEST_F(PhraseCardTest, ReopeningAtAnotherPhraseSetsBothButtonsAfresh)
{
    PhraseCardVC card;
    card.open(u"10"_s, 1);
    card.open(u"11"_s, 0);
    expectButtons(card, "btn-last2", "btn-next2");
    card.open(u"10"_s, 0);
    expectButtons(card, "btn-last2", "btn-next");
}

TEST_F(PhraseCardTest, LookButtonHidesAndShowsTheGermanText)
{
    PhraseCardVC card;
    card.open(u"10"_s, 0);
    QSignalSpy toggled(&card, &PhraseCardVC::phraseHiddenChanged);
    EXPECT_FALSE(card.phraseHidden());
    EXPECT_EQ(card.lookImage(), u"btn-look"_s);
    card.toggleLook();
    EXPECT_TRUE(card.phraseHidden());
    EXPECT_EQ(card.lookImage(), u"btn-no-look"_s);
    card.toggleLook();
    EXPECT_FALSE(card.phraseHidden());
    EXPECT_EQ(card.lookImage(), u"btn-look"_s);
    EXPECT_EQ(toggled.count(), 2);
    EXPECT_EQ(listens(), 1) << "looking is not listening";
}

TEST_F(PhraseCardTest, TextsFollowTheLearnersLanguage)
{
    PhraseCardVC card;
    card.open(u"10"_s, 0);
    QSignalSpy translation(&card, &PhraseCardVC::translationChanged);
    QSignalSpy title(&card, &PhraseCardVC::titleChanged);
    Preferences::instance().setLanguageType(u"fr"_s);
    EXPECT_EQ(translation.count(), 1);
    EXPECT_EQ(title.count(), 1);
    EXPECT_EQ(card.translation(), u"Bonjour !"_s);
    EXPECT_EQ(card.title(), u"Salutations"_s);
}

TEST_F(PhraseCardTest, PictureIsShownOnlyWhenTheCourseHasOne)
{
    PhraseCardVC card;
    card.open(u"10"_s, 1);
    EXPECT_TRUE(card.image().isEmpty());

    const QString picture = imagePath(*loadPhrases(u"10"_s)->at(0));
    CourseFixture::appCourse().writeFile(
        QDir(CourseFixture::appCourse().root()).relativeFilePath(picture), "jpeg");
    card.lastItem();
    EXPECT_EQ(card.image(), QUrl::fromLocalFile(picture));
}
