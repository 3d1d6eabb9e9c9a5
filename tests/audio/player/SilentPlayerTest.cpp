#include "ToneFolder.h"
#include "audio/TempoAudioPlayer.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// The player as it runs where no sound device exists: the time is real, so the files are short.
class SilentPlayerTest : public ::testing::Test {
protected:
    std::unique_ptr<TempoAudioPlayer> open(double seconds)
    {
        return TempoAudioPlayer::open(tones.tone(seconds), SoundDestination::nowhere);
    }

    ToneFolder tones;
};

TEST_F(SilentPlayerTest, TimeAdvancesAtTheRate)
{
    const auto player = open(1.0);
    ASSERT_TRUE(player);
    EXPECT_NEAR(player->duration(), 1.0, 1e-9);
    player->setRate(2.0F);
    player->play();
    QElapsedTimer wall;
    wall.start();
    QTest::qWait(60);
    const double before = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    const double time = player->currentTime();
    const double after = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    EXPECT_TRUE(player->isPlaying());
    EXPECT_GE(time, 2.0 * before - 0.01);
    EXPECT_LE(time, 2.0 * after + 0.01);
}

// Two loops are two extra plays: 3 x 0.2 s of file at rate 2 end after 0.3 s, once.
TEST_F(SilentPlayerTest, FinishesOnceAfterTheLoopsAtTheRate)
{
    const auto player = open(0.2);
    ASSERT_TRUE(player);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    player->setNumberOfLoops(2);
    player->setRate(2.0F);
    QElapsedTimer wall;
    wall.start();
    player->play();
    ASSERT_TRUE(finished.wait(2000));
    EXPECT_GE(wall.elapsed(), 295);
    EXPECT_EQ(finished.first().first().toBool(), true);
    EXPECT_FALSE(player->isPlaying());
    EXPECT_DOUBLE_EQ(player->currentTime(), player->duration());
    QTest::qWait(50);
    EXPECT_EQ(finished.size(), 1);
}

TEST_F(SilentPlayerTest, PauseHoldsTimeAndSeekGoesBackToTheStart)
{
    const auto player = open(1.0);
    ASSERT_TRUE(player);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    player->play();
    QTest::qWait(40);
    player->pause();
    const double held = player->currentTime();
    EXPECT_GT(held, 0.0);
    EXPECT_FALSE(player->isPlaying());
    QTest::qWait(50);
    EXPECT_DOUBLE_EQ(player->currentTime(), held);

    player->setCurrentTime(0.0);
    EXPECT_DOUBLE_EQ(player->currentTime(), 0.0);
    // Near the end, it finishes from there.
    player->setCurrentTime(0.97);
    player->play();
    ASSERT_TRUE(finished.wait(2000));
    EXPECT_EQ(finished.size(), 1);
}

// A finished player plays again from the top, and stop() keeps its place like pause().
TEST_F(SilentPlayerTest, PlayAfterTheEndStartsAgain)
{
    const auto player = open(0.4);
    ASSERT_TRUE(player);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    player->setRate(2.0F);
    player->play();
    ASSERT_TRUE(finished.wait(2000));
    player->play();
    EXPECT_TRUE(player->isPlaying());
    EXPECT_LT(player->currentTime(), 0.4);
    player->stop();
    const double stopped = player->currentTime();
    EXPECT_FALSE(player->isPlaying());
    EXPECT_LT(stopped, 0.4);
    player->play();
    EXPECT_GE(player->currentTime(), stopped);
}

TEST_F(SilentPlayerTest, RateAndVolumeStayWithinTheirBounds)
{
    const auto player = open(0.1);
    ASSERT_TRUE(player);
    player->setRate(3.0F);
    EXPECT_FLOAT_EQ(player->rate(), 2.0F);
    player->setRate(0.1F);
    EXPECT_FLOAT_EQ(player->rate(), 0.2F);
    player->setVolume(1.5F);
    EXPECT_FLOAT_EQ(player->volume(), 1.0F);
    player->setVolume(-1.0F);
    EXPECT_FLOAT_EQ(player->volume(), 0.0F);
    player->setNumberOfLoops(3);
    EXPECT_EQ(player->numberOfLoops(), 3);
}

} // namespace
