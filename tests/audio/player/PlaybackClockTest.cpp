#include "audio/PlaybackClock.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

// A clock of a three-second file whose time the test moves.
class PlaybackClockTest : public ::testing::Test {
protected:
    void advance(std::chrono::milliseconds step) { now += step; }

    std::chrono::nanoseconds now{5s};
    PlaybackClock clock{3.0, [this] {
                            return now;
                        }};
};

TEST_F(PlaybackClockTest, FileTimeMovesAtTheRateAcrossChanges)
{
    clock.setRate(0.5F);
    clock.start();
    advance(1000ms);
    EXPECT_DOUBLE_EQ(clock.currentTime(), 0.5);
    clock.setRate(2.0F);
    advance(250ms);
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.0);
    EXPECT_EQ(clock.remaining(), 1000ms);
}

TEST_F(PlaybackClockTest, PauseHoldsTheTimeAndStartGoesOn)
{
    clock.start();
    advance(1200ms);
    clock.pause();
    advance(5000ms);
    EXPECT_FALSE(clock.isRunning());
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.2);
    clock.start();
    advance(300ms);
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.5);
}

// Time runs over every play; the file time folds back at each new play and stays at the end.
TEST_F(PlaybackClockTest, ExtraPlaysFoldIntoFileTime)
{
    clock.setExtraPlays(2);
    EXPECT_DOUBLE_EQ(clock.totalTime(), 9.0);
    clock.start();
    advance(7500ms);
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.5);
    EXPECT_FALSE(clock.atEnd());
    advance(5000ms);
    EXPECT_TRUE(clock.atEnd());
    EXPECT_DOUBLE_EQ(clock.currentTime(), 3.0);
    EXPECT_EQ(clock.remaining(), 0ms);
}

TEST_F(PlaybackClockTest, SettingTheTimeKeepsThePlayUnderWay)
{
    clock.setExtraPlays(1);
    clock.start();
    advance(4000ms);
    clock.setCurrentTime(0.0);
    EXPECT_DOUBLE_EQ(clock.playThroughTime(), 3.0);
    clock.setCurrentTime(99.0);
    EXPECT_DOUBLE_EQ(clock.currentTime(), 3.0);
    EXPECT_TRUE(clock.atEnd());
    clock.seek(-1.0);
    EXPECT_DOUBLE_EQ(clock.playThroughTime(), 0.0);
}

} // namespace
