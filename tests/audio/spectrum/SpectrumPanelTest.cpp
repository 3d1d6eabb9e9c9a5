#include "audio/VoSpectrumPanel.h"
#include "stubs/AudioPlayerStub.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// A spectrum of `frames` columns, every bin at half the maximum.
AudioPowerSpectrumInfo evenSpectrum(uint64_t frames)
{
    AudioPowerSpectrumInfo spectrum;
    spectrum.frameCount = frames;
    spectrum.rowCount = frames;
    spectrum.powerData.assign(frames * AudioPowerSpectrumInfo::bins, 1.0);
    spectrum.maxPower = 2.0;
    return spectrum;
}

class SpectrumPanelTest : public ::testing::Test {
protected:
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

    AudioPlayerStubFactory players;
    VoSpectrumPanel panel;
};

TEST_F(SpectrumPanelTest, WideSpectrumTurnsWholePagesAndAnIdleOneStandsStill)
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
    // While another panel runs, the cursor stands still.
    panel.setNeedRun(false);
    playTo(5.0);
    EXPECT_FLOAT_EQ(panel.playProgress(), 0.1F);
    EXPECT_NEAR(panel.contentX(), 100.0, 0.01);
    panel.setNeedRun(true);
    playTo(5.0);
    EXPECT_FLOAT_EQ(panel.playProgress(), 0.5F);
}

// The owner hears of each start; at the end the cursor rests a second, then returns home.
TEST_F(SpectrumPanelTest, StartTellsTheOwnerEndReturnsHomeASecondLaterStopAtOnce)
{
    show(1000, 300.0);
    QSignalSpy started(&panel, &VoSpectrumPanel::playPreHandle);
    playTo(9.0);
    ASSERT_EQ(started.count(), 1);
    EXPECT_EQ(started.first().at(1).value<VoSpectrumPanel *>(), &panel);
    ASSERT_GT(panel.contentX(), 0.0);

    QElapsedTimer wall;
    wall.start();
    players.last->finishPlaying();
    EXPECT_GT(panel.playProgress(), 0.0F);
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel.playProgress() == 0.0F; }, 2000));
    EXPECT_GE(wall.elapsed(), 900);
    EXPECT_EQ(panel.contentX(), 0.0);
    EXPECT_EQ(panel.playerBox()->playStatus(), VoPlayerBox::Finished);

    // A stop, or the owner's reset, puts cursor and bar back at once.
    playTo(4.0);
    panel.stopPlay();
    EXPECT_EQ(panel.playProgress(), 0.0F);
    EXPECT_EQ(panel.contentX(), 0.0);
    playTo(4.0);
    panel.initPlay();
    EXPECT_EQ(panel.playProgress(), 0.0F);
    EXPECT_EQ(panel.playerBox()->playStatus(), VoPlayerBox::Finished);
    EXPECT_EQ(panel.playerBox()->playImage(), QStringLiteral("vo_play"));
}

// Bins at half the maximum are mid grey: floor(255 / 2) darkens white to 128. The played columns
// (progress x width of them) let the background through at half cover; the grey stays.
TEST_F(SpectrumPanelTest, PictureIsTheSpectrumWithThePlayedPartHalfCovered)
{
    show(100, 300.0);
    EXPECT_EQ(panel.playerBox()->audioFileList(), QStringList{QStringLiteral("/course/take.mp3")});
    playTo(5.0);
    const QImage image = panel.image();
    ASSERT_EQ(image.size(), QSize(100, 128));
    for (const int row : {0, 64, 127})
        for (const auto &[column, alpha] : {std::pair{0, 127}, {49, 127}, {50, 255}, {99, 255}})
            EXPECT_EQ(qAlpha(image.pixel(column, row)), alpha) << column << "," << row;
    EXPECT_EQ(qRed(image.pixel(10, 5)), 128);
    EXPECT_EQ(qRed(image.pixel(90, 5)), 128);
    // A recording the recogniser found nothing in has no picture.
    panel.setSpectrum(QStringLiteral("/course/take.mp3"), AudioPowerSpectrumInfo{});
    EXPECT_TRUE(panel.image().isNull());
}

} // namespace
