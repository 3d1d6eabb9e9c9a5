#include "AudioFixtures.h"
#include "RecorderHarness.h"
#include "audio/AudioInput.h"
#include "stubs/AudioPlayerStub.h"

#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

using namespace AudioFixtures;

namespace {

class RecorderRulesTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        harness.setInput(
            harness.writeWav(QStringLiteral("tone.wav"), 16000, 1, tone(16000, 0.2, 440.0, {1.0})));
    }

    float pollOnce()
    {
        harness.recorder.levelPoll();
        return harness.levels.takeLast().first().toFloat();
    }

    RecorderHarness harness;
};

TEST_F(RecorderRulesTest, LevelIsPeakOfChannelZeroInDecibels)
{
    EXPECT_EQ(VoAudioRecorder::powerFromPeak(0.0F), -160.0F);
    EXPECT_EQ(VoAudioRecorder::powerFromPeak(1.0F), 0.0F);
    EXPECT_NEAR(VoAudioRecorder::powerFromPeak(0.5F), -6.02F, 0.01F);

    // A full-scale tone on the left, silence on the right: the left channel is the one metered.
    harness.setInput(harness.writeWav(QStringLiteral("left.wav"), 44100, 2,
                                      tone(44100, 0.1, 440.0, {1.0, 0.0})));
    harness.recorder.recordPushed(harness.path(QStringLiteral("level.caf")));
    ASSERT_TRUE(harness.waitDelivered());
    EXPECT_NEAR(pollOnce(), 0.0F, 0.1F);
    EXPECT_FLOAT_EQ(harness.recorder.timeInterval(), 0.05F);
    // Nothing heard since the last poll is silence.
    EXPECT_EQ(pollOnce(), -160.0F);
    harness.recorder.stopPushed();
    ASSERT_TRUE(harness.waitFinished());

    harness.setInput(
        harness.writeWav(QStringLiteral("silence.wav"), 16000, 1, tone(16000, 0.1, 440.0, {0.0})));
    harness.recorder.recordPushed(harness.path(QStringLiteral("silence.caf")));
    ASSERT_TRUE(harness.waitDelivered(2));
    EXPECT_EQ(pollOnce(), -160.0F);
    harness.recorder.stopPushed();
    ASSERT_TRUE(harness.waitFinished(2));
}

TEST_F(RecorderRulesTest, TimerPollsOnlyWhileRecording)
{
    harness.recorder.recordPushed(harness.path(QStringLiteral("timer.caf")));
    ASSERT_TRUE(harness.levels.wait(1000));
    EXPECT_FLOAT_EQ(harness.levels.last().at(1).toFloat(), 0.05F);
    harness.recorder.stopPushed();
    ASSERT_TRUE(harness.waitFinished());
    harness.levels.clear();
    QTest::qWait(150);
    EXPECT_EQ(harness.levels.count(), 0);
}

TEST_F(RecorderRulesTest, RecordWhileRecordingChangesNothing)
{
    const QString first = harness.path(QStringLiteral("first.caf"));
    harness.recorder.recordPushed(first);
    ASSERT_TRUE(harness.waitDelivered());
    harness.recorder.recordPushed(harness.path(QStringLiteral("second.caf")));
    EXPECT_TRUE(harness.recorder.isRecording());
    EXPECT_EQ(harness.recorder.recordedFilePath(), first);

    harness.recorder.stopPushed();
    EXPECT_FALSE(harness.recorder.isRecording());
    ASSERT_TRUE(harness.waitFinished());
    QTest::qWait(50);
    EXPECT_EQ(harness.finished.count(), 1);
    EXPECT_FALSE(QFile::exists(harness.path(QStringLiteral("second.caf"))));
    EXPECT_EQ(decodedSamples(first).size(), 3200U);
}

TEST_F(RecorderRulesTest, StopWithNothingRunningDoesNothing)
{
    harness.recorder.stopPushed();
    QTest::qWait(50);
    EXPECT_EQ(harness.finished.count(), 0);
    EXPECT_FALSE(harness.recorder.isRecording());
}

TEST_F(RecorderRulesTest, Caf2Mp3NeverChangesTheFileName)
{
    const QString target = harness.path(QStringLiteral("kept.caf"));
    harness.recorder.setCAF2MP3(true);
    ASSERT_TRUE(harness.record(target));
    EXPECT_FALSE(harness.recorder.CAF2MP3());
    EXPECT_EQ(harness.recorder.recordedFilePath(), target);
    EXPECT_TRUE(QFile::exists(target));
    EXPECT_FALSE(QFile::exists(harness.path(QStringLiteral("kept.mp3"))));
}

TEST_F(RecorderRulesTest, RestartOverwritesTheFile)
{
    const QString target = harness.path(QStringLiteral("again.caf"));
    ASSERT_TRUE(harness.record(target));
    EXPECT_GT(peak(decodedSamples(target)), 30000);

    harness.setInput(
        harness.writeWav(QStringLiteral("quiet.wav"), 16000, 1, tone(16000, 0.1, 440.0, {0.0})));
    ASSERT_TRUE(harness.record(target));
    const auto samples = decodedSamples(target);
    EXPECT_EQ(samples.size(), 1600U);
    EXPECT_EQ(peak(samples), 0);
}

TEST_F(RecorderRulesTest, PlaybackWaitsForTheRecordingToBeClosed)
{
    AudioPlayerStubFactory players;
    const QString target = harness.path(QStringLiteral("play.caf"));
    harness.recorder.recordPushed(target);
    ASSERT_TRUE(harness.waitDelivered());
    harness.recorder.playPushed(target);
    EXPECT_FALSE(harness.recorder.isRecording());
    ASSERT_TRUE(harness.waitFinished());
    ASSERT_EQ(players.requested, QStringList{target});
    ASSERT_NE(harness.recorder.player(), nullptr);
    EXPECT_TRUE(harness.recorder.player()->isPlaying());

    // Recording stops the playback.
    harness.recorder.recordPushed(harness.path(QStringLiteral("next.caf")));
    EXPECT_FALSE(harness.recorder.player()->isPlaying());
    harness.recorder.stopPushed();
    ASSERT_TRUE(harness.waitFinished(2));
}

TEST_F(RecorderRulesTest, FolderThatCannotBeCreatedIsReported)
{
    QFile blocker(harness.path(QStringLiteral("blocker")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    LogCapture log;
    harness.recorder.recordPushed(harness.path(QStringLiteral("blocker/record/x.caf")));
    ASSERT_TRUE(harness.waitFinished());
    EXPECT_FALSE(harness.finished.first().first().toBool());
    EXPECT_FALSE(harness.recorder.isRecording());
    ASSERT_EQ(harness.failed.count(), 1);
    EXPECT_TRUE(harness.recorder.errorText().contains(QStringLiteral("cannot be created")));
    EXPECT_EQ(log.lines().size(), 1);
}

/// A microphone that hears a little and is then unplugged.
class UnpluggedInput final : public AudioInput {
public:
    QString start() override
    {
        QMetaObject::invokeMethod(
            this,
            [this] {
                Q_EMIT frames(QByteArray(1600 * 2, '\0'));
                Q_EMIT failed(QStringLiteral("the microphone was unplugged"));
            },
            Qt::QueuedConnection);
        return {};
    }
    void stop() override {}
    [[nodiscard]] QAudioFormat format() const override
    {
        QAudioFormat format;
        format.setSampleRate(16000);
        format.setChannelCount(1);
        format.setSampleFormat(QAudioFormat::Int16);
        return format;
    }
};

TEST(RecorderInputFailure, UnpluggedDeviceEndsTheRecordingWithWhatWasHeard)
{
    RecorderHarness harness([] { return std::make_unique<UnpluggedInput>(); });
    const QString target = harness.path(QStringLiteral("cut.caf"));
    LogCapture log;
    harness.recorder.recordPushed(target);
    ASSERT_TRUE(harness.waitFinished());
    EXPECT_FALSE(harness.finished.first().first().toBool());
    EXPECT_FALSE(harness.recorder.isRecording());
    EXPECT_EQ(harness.recorder.errorText(), QStringLiteral("the microphone was unplugged"));
    EXPECT_EQ(decodedSamples(target).size(), 1600U);
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(RecorderInputFailure, NoInputReportsAndLeavesNoFile)
{
    RecorderHarness harness([] { return std::unique_ptr<AudioInput>(); });
    const QString target = harness.path(QStringLiteral("none.caf"));
    QFile old(target);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.close();
    harness.recorder.recordPushed(target);
    ASSERT_TRUE(harness.waitFinished());
    EXPECT_EQ(harness.failed.count(), 1);
    EXPECT_FALSE(QFile::exists(target));
}

} // namespace
