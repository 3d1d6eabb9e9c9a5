#include "app/CategoryViewController.h"
#include "app/Preferences.h"
#include "content/CourseFixture.h"
#include "stubs/AudioPlayerStub.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class CategoryPlayerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        CourseFixture::appCourse();
        QSettings().clear();
    }

    AudioPlayerStubFactory players;
};

} // namespace

TEST_F(CategoryPlayerTest, PlaysTheCategorysRecordingsAndMarksThePhrasePlaying)
{
    CategoryViewController screen;
    screen.setCategoryId(u"10"_s);
    VoPlayerBox &player = *screen.player();
    const QString root = CourseFixture::appCourse().root();
    EXPECT_EQ(player.audioFileList(),
              (QStringList{root + u"/10/voices/12.mp3"_s, root + u"/10/voices/13.mp3"_s}));
    EXPECT_EQ(screen.playingIndex(), -1);
    EXPECT_TRUE(player.nextEnabled());
    EXPECT_FALSE(player.lastEnabled());

    QSignalSpy playing(&screen, &CategoryViewController::playingIndexChanged);
    player.play(true);
    EXPECT_EQ(screen.playingIndex(), 0);
    player.play(true);
    EXPECT_EQ(screen.playingIndex(), 0) << "paused, still the phrase under way";
    player.play(true);
    players.last->finishPlaying();
    EXPECT_EQ(screen.playingIndex(), 1);
    players.last->finishPlaying();
    EXPECT_EQ(screen.playingIndex(), -1) << "the run is over";
    player.playItem(1);
    player.stop();
    EXPECT_EQ(screen.playingIndex(), -1);
    EXPECT_EQ(playing.count(), 6) << "off between phrases, on again";

    // During the pause before a phrase, that phrase is marked already.
    screen.setItemDelay(1);
    player.playItem(1);
    EXPECT_TRUE(player.waitingToStart());
    EXPECT_EQ(screen.playingIndex(), 1);
    player.stop();

    // Another category stops the sound and starts from its first phrase.
    player.play(true);
    screen.setCategoryId(u"2"_s);
    EXPECT_EQ(player.playStatus(), VoPlayerBox::Stopped);
    EXPECT_EQ(player.audioFileList(), QStringList{root + u"/2/voices/20.mp3"_s});
    EXPECT_EQ(player.currItemIndex(), 0);
}

TEST_F(CategoryPlayerTest, RepeatAndDelayChoicesReachThePlayer)
{
    CategoryViewController screen;
    screen.setCategoryId(u"10"_s);
    VoPlayerBox &player = *screen.player();
    EXPECT_EQ(screen.repeatCount(), 1);
    EXPECT_EQ(screen.itemDelay(), 0);

    for (int count : CategoryViewController::repeatChoices()) {
        screen.setRepeatCount(count);
        player.playItem(0);
        EXPECT_EQ(players.last->numberOfLoops() + 1, count) << "sounds " << count << " times";
    }
    screen.setRepeatCount(2);
    screen.setRepeatCount(-1);
    EXPECT_EQ(screen.repeatCount(), 5) << "not offered";

    QSignalSpy delay(&screen, &CategoryViewController::itemDelayChanged);
    screen.setItemDelay(3);
    screen.setItemDelay(4);
    screen.setItemDelay(-2);
    EXPECT_EQ(screen.itemDelay(), 3);
    EXPECT_EQ(player.timeOfItemdelay(), 3);
    EXPECT_EQ(delay.count(), 1);
}

TEST_F(CategoryPlayerTest, SpeedComesFromAndGoesToTheSetting)
{
    Preferences::instance().setPlaySpeed(1.4F);
    CategoryViewController screen;
    screen.setCategoryId(u"10"_s);
    VoPlayerBox &player = *screen.player();
    EXPECT_FLOAT_EQ(player.playRate(), 1.4F);

    player.play(true);
    EXPECT_FLOAT_EQ(players.last->rate(), 1.4F);
    player.speedDown();
    EXPECT_FLOAT_EQ(Preferences::instance().playSpeed(), 1.2F);
    for (int press = 0; press < 6; ++press)
        player.speedDown();
    EXPECT_LT(player.playRate(), 0.2F);
    EXPECT_FLOAT_EQ(Preferences::instance().playSpeed(), 0.2F) << "the rate heard, never below";
}
