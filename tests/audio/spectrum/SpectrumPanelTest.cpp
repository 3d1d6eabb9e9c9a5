#include "EvenSpectrum.h"
#include "audio/VoSpectrumPanel.h"
#include "stubs/AudioPlayerStub.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class SpectrumPanelTest : public ::testing::Test {
protected:
    AudioPlayerStubFactory players;
    VoSpectrumPanel panel;

    void show(uint64_t frames, qreal containerWidth)
    {
        panel.setSpectrum(QStringLiteral("/course/take.mp3"), evenSpectrum(frames));
        panel.setContainerWidth(containerWidth);
    }

    /// Starts the panel's player and moves it to a point of a 10-second recording.
    void playTo(double seconds)
    {
        if (panel.playerBox()->playStatus() != VoPlayerBox::Playing) {
            panel.playerBox()->play(true);
            ASSERT_NE(players.last, nullptr);
            players.last->setDuration(10.0);
        }
        players.last->setCurrentTime(seconds);
        panel.playerBox()->tick();
    }
};

TEST_F(SpectrumPanelTest, WideSpectrumTurnsWholePagesNarrowOneNeverScrolls)
{
    show(1000, 300.0);
    ASSERT_EQ(panel.spectrumWidth(), 1000);
    playTo(2.0); // x = 200: still on the first page
    EXPECT_EQ(panel.contentX(), 0.0);
    EXPECT_FLOAT_EQ(panel.playProgress(), 0.2F);
    playTo(3.01); // x = 301: past the right edge, the position becomes the left edge
    EXPECT_NEAR(panel.contentX(), 301.0, 0.01);
    playTo(6.0); // 600 < 301 + 300: same page
    EXPECT_NEAR(panel.contentX(), 301.0, 0.01);
    playTo(6.5);
    EXPECT_NEAR(panel.contentX(), 650.0, 0.01);
    playTo(1.0); // back before the page: jumps back to the position
    EXPECT_NEAR(panel.contentX(), 100.0, 0.01);

    VoSpectrumPanel narrow;
    narrow.setSpectrum(QStringLiteral("/course/short.mp3"), evenSpectrum(250));
    narrow.setContainerWidth(300.0);
    narrow.playerBox()->play(true);
    players.last->setDuration(2.5);
    for (const double seconds : {0.5, 1.5, 2.49}) {
        players.last->setCurrentTime(seconds);
        narrow.playerBox()->tick();
        EXPECT_EQ(narrow.contentX(), 0.0);
    }
}

TEST_F(SpectrumPanelTest, CursorStandsStillWhileAnotherPanelRuns)
{
    show(1000, 300.0);
    playTo(2.0);
    panel.setNeedRun(false);
    playTo(5.0);
    EXPECT_FLOAT_EQ(panel.playProgress(), 0.2F);
    EXPECT_EQ(panel.contentX(), 0.0);
    panel.setNeedRun(true);
    playTo(5.0);
    EXPECT_FLOAT_EQ(panel.playProgress(), 0.5F);
}

TEST_F(SpectrumPanelTest, StartingTellsTheOwnerAndTheEndReturnsHomeASecondLater)
{
    show(1000, 300.0);
    QSignalSpy started(&panel, &VoSpectrumPanel::playPreHandle);
    playTo(9.0);
    ASSERT_EQ(started.count(), 1);
    EXPECT_EQ(started.first().at(1).value<VoSpectrumPanel *>(), &panel);
    ASSERT_GT(panel.contentX(), 0.0);

    players.last->finishPlaying();
    EXPECT_GT(panel.playProgress(), 0.0F); // rests at the end for a moment, without blocking
    QTest::qWait(700);
    EXPECT_GT(panel.playProgress(), 0.0F);
    QTRY_COMPARE_WITH_TIMEOUT(panel.playProgress(), 0.0F, 1000);
    EXPECT_EQ(panel.contentX(), 0.0);
    EXPECT_EQ(panel.playerBox()->playStatus(), VoPlayerBox::Finished);
}

TEST_F(SpectrumPanelTest, StopAndInitPlayResetCursorAndBar)
{
    show(1000, 300.0);
    playTo(4.0);
    panel.stopPlay();
    EXPECT_EQ(panel.playProgress(), 0.0F);
    EXPECT_EQ(panel.contentX(), 0.0);

    playTo(4.0);
    ASSERT_EQ(panel.playerBox()->playStatus(), VoPlayerBox::Playing);
    panel.initPlay();
    EXPECT_EQ(panel.playProgress(), 0.0F);
    EXPECT_EQ(panel.playerBox()->playStatus(), VoPlayerBox::Finished);
    EXPECT_EQ(panel.playerBox()->playImage(), QStringLiteral("vo_play"));
}

TEST_F(SpectrumPanelTest, PictureFollowsTheSpectrumAndItsProgress)
{
    EXPECT_TRUE(panel.image().isNull());
    show(100, 300.0);
    EXPECT_EQ(panel.image().size(), QSize(100, 128));
    EXPECT_EQ(panel.playerBox()->audioFileList(), QStringList{QStringLiteral("/course/take.mp3")});
    playTo(5.0);
    EXPECT_EQ(qAlpha(panel.image().pixel(49, 0)), 127);
    EXPECT_EQ(qAlpha(panel.image().pixel(50, 0)), 255);
}

} // namespace
