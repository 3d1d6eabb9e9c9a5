#include "audio/PlaySound.h"

#include "app/Preferences.h"
#include "stubs/AudioPlayerStub.h"

#include <gtest/gtest.h>

namespace {

class PlaySoundTest : public ::testing::Test {
protected:
    ~PlaySoundTest() override { Preferences::instance().setPlaySpeed(1.0F); }

    AudioPlayerStubFactory players;
    const QString path = QStringLiteral("/course/1/voices/101.mp3");
};

TEST_F(PlaySoundTest, PlaysAtThePreferredSpeedWithTheLoopsAtFullVolume)
{
    Preferences::instance().setPlaySpeed(1.4F);
    const auto player = playSound(path, 2);
    ASSERT_TRUE(player);
    ASSERT_EQ(player.get(), players.last);
    EXPECT_EQ(players.requested, QStringList{path});
    EXPECT_FLOAT_EQ(players.last->rate(), 1.4F);
    EXPECT_EQ(players.last->numberOfLoops(), 2);
    EXPECT_FLOAT_EQ(players.last->volume(), 1.0F);
    EXPECT_TRUE(players.last->isPlaying());
}

TEST_F(PlaySoundTest, SpeedOfZeroOrBelowPlaysAtOne)
{
    for (const float speed : {0.0F, -0.6F}) {
        Preferences::instance().setPlaySpeed(speed);
        const auto player = playSound(path, 0);
        ASSERT_TRUE(player);
        EXPECT_FLOAT_EQ(player->rate(), 1.0F);
    }
}

TEST_F(PlaySoundTest, UnplayableFileGivesNoPlayer)
{
    players.unplayable.append(path);
    EXPECT_EQ(playSound(path, 0), nullptr);
}

} // namespace
