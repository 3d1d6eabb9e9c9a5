#include "AudioFixtures.h"
#include "audio/AudioInput.h"
#include "audio/FileAudioInput.h"
#include "audio/MicrophonePermission.h"
#include "audio/VoAudioRecorder.h"
#include "audio/VoAudioUtil.h"
#include "stubs/AudioPlayerStub.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <gtest/gtest.h>
#include <sndfile.h>

using namespace AudioFixtures;
using namespace Qt::StringLiterals;

namespace {

/// A recorder whose microphone is a sound file (or what `make` returns), in a temporary folder,
/// with the waits the tests need: the input has delivered its whole file, the file is closed.
class RecorderHarness {
public:
    explicit RecorderHarness(AudioInputFactory make = {})
        : recorder(make ? std::move(make) : [this]() -> std::unique_ptr<AudioInput> {
            auto input = std::make_unique<FileAudioInput>(m_input);
            // Queued to the test's thread, where the count is read.
            QObject::connect(input.get(), &FileAudioInput::allDelivered, &m_context,
                             [this] { ++m_delivered; });
            return input;
        })
    {}

    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    /// The input of the next recordings.
    void setInput(int rate, int channels, const std::vector<int32_t> &interleaved)
    {
        m_input = path("input") + QString::number(++m_inputs) + QStringLiteral(".wav");
        EXPECT_TRUE(
            writeSound(m_input, SF_FORMAT_WAV | SF_FORMAT_PCM_16, rate, channels, interleaved));
    }
    bool waitDelivered(int count = 1)
    {
        return QTest::qWaitFor([&] { return m_delivered >= count; }, 10000);
    }
    bool waitFinished(int count = 1)
    {
        return QTest::qWaitFor([&] { return finished.count() >= count; }, 10000);
    }
    /// Records the whole input file to `target` and returns once the file is closed.
    bool record(const QString &target)
    {
        const auto before = static_cast<int>(finished.count());
        recorder.recordPushed(target);
        if (!waitDelivered(m_delivered + 1))
            return false;
        recorder.stopPushed();
        return waitFinished(before + 1);
    }

    VoAudioRecorder recorder;
    QSignalSpy finished{&recorder, &VoAudioRecorder::recorderDidFinishRecording};
    QSignalSpy failed{&recorder, &VoAudioRecorder::recordingFailed};
    QSignalSpy levels{&recorder, &VoAudioRecorder::periodicTimeObserver};

private:
    QTemporaryDir m_folder;
    QString m_input;
    QObject m_context;
    int m_delivered{0};
    int m_inputs{0};
};

std::vector<int16_t> decodedSamples(const QString &path)
{
    AudioDataInfo record;
    if (VoAudioUtil::decodeAudioDataFromFile(path, record) != 0)
        return {};
    return VoAudioUtil::getAudioDataShortForByte(record);
}

// A stereo input: the level is the peak of channel 0 in decibels, 20 log10(0.8), polled while
// recording; the recording is 16 kHz mono with the channels averaged, (0.8 + 0.4) / 2.
TEST(RecorderRules, MetersChannelZeroAndRecordsTheChannelsAveragedAt16kHz)
{
    RecorderHarness harness;
    harness.setInput(44100, 2, tone(44100, 0.5, 440.0, {0.8, 0.4}));
    const QString target = harness.path("stereo.caf");
    harness.recorder.recordPushed(target);
    ASSERT_TRUE(harness.levels.wait(1000));
    ASSERT_TRUE(harness.waitDelivered());
    // The recorder's own poll may have taken the peak before the test's.
    harness.recorder.levelPoll();
    float loudest = VoAudioRecorder::silencePower;
    for (const QList<QVariant> &level : std::as_const(harness.levels))
        loudest = std::max(loudest, level.first().toFloat());
    EXPECT_NEAR(loudest, -1.94F, 0.1F);
    // Nothing heard since the last poll is silence.
    harness.recorder.levelPoll();
    EXPECT_EQ(harness.levels.last().first().toFloat(), -160.0F);

    harness.recorder.stopPushed();
    ASSERT_TRUE(harness.waitFinished());
    EXPECT_TRUE(harness.finished.first().first().toBool());
    harness.levels.clear();
    QTest::qWait(150);
    EXPECT_EQ(harness.levels.count(), 0) << "no polls once stopped";
    const auto samples = decodedSamples(target);
    EXPECT_NEAR(static_cast<double>(samples.size()), 8000.0, 16.0);
    EXPECT_NEAR(measuredFrequency(samples, 16000), 440.0, 2.0);
    EXPECT_NEAR(peak(samples), 0.6 * 32767, 0.02 * 32767);
}

// One recording at a time: a second start and a play wait for the first to be closed, the first
// also makes its folder, and the next one replaces its file and silences the playback.
TEST(RecorderRules, OneRecordingAtATimePlaybackWaitsForItAndTheNextReplacesTheFile)
{
    AudioPlayerStubFactory players;
    RecorderHarness harness;
    harness.setInput(16000, 1, tone(16000, 0.2, 440.0, {1.0}));
    harness.recorder.stopPushed();
    const QString first = harness.path("record/first.caf");
    harness.recorder.recordPushed(first);
    ASSERT_TRUE(harness.waitDelivered());
    harness.recorder.recordPushed(harness.path("second.caf"));
    EXPECT_TRUE(harness.recorder.isRecording());
    harness.recorder.playPushed(first);
    EXPECT_FALSE(harness.recorder.isRecording());
    EXPECT_TRUE(players.requested.isEmpty());
    ASSERT_TRUE(harness.waitFinished());
    ASSERT_EQ(players.requested, QStringList{first});
    ASSERT_NE(harness.recorder.player(), nullptr);
    EXPECT_TRUE(harness.recorder.player()->isPlaying());
    QTest::qWait(50);
    EXPECT_EQ(harness.finished.count(), 1) << "neither the early stop nor the second start ran";
    EXPECT_FALSE(QFile::exists(harness.path("second.caf")));
    EXPECT_EQ(decodedSamples(first).size(), 3200U);

    harness.setInput(16000, 1, tone(16000, 0.1, 440.0, {0.0}));
    ASSERT_TRUE(harness.record(first));
    EXPECT_FALSE(harness.recorder.player()->isPlaying());
    const auto samples = decodedSamples(first);
    EXPECT_EQ(samples.size(), 1600U);
    EXPECT_EQ(peak(samples), 0);
}

// A start that fails ends the recording at once, says why, and leaves no file of that name.
TEST(RecorderFailure, StartsThatFailAreReported)
{
    RecorderHarness blocked;
    blocked.setInput(16000, 1, tone(16000, 0.1, 440.0, {1.0}));
    ASSERT_TRUE(writeBytes(blocked.path("blocker"), "a file where a folder should be"));
    blocked.recorder.recordPushed(blocked.path("blocker/record/x.caf"));
    ASSERT_TRUE(blocked.waitFinished());
    EXPECT_FALSE(blocked.finished.first().first().toBool());
    EXPECT_FALSE(blocked.recorder.isRecording());
    ASSERT_EQ(blocked.failed.count(), 1);
    EXPECT_TRUE(blocked.recorder.errorText().contains(QStringLiteral("cannot be created")));

    // Without a microphone, an older file does not pass for the new recording.
    RecorderHarness none([] { return std::unique_ptr<AudioInput>(); });
    const QString old = none.path("none.caf");
    ASSERT_TRUE(writeBytes(old, "an older recording"));
    none.recorder.recordPushed(old);
    ASSERT_TRUE(none.waitFinished());
    EXPECT_EQ(none.failed.count(), 1);
    EXPECT_FALSE(none.recorder.isRecording());
    EXPECT_FALSE(QFile::exists(old));
}

// A microphone plugged in after a failed start records at once; one unplugged mid-take keeps a
// take of half a second or more, and drops a shorter one with a message to record again.
TEST(RecorderFailure, UnpluggedMicrophoneKeepsALongTakeAndAsksAgainAfterAShortOne)
{
    const QTemporaryDir folder;
    std::atomic<int> takes = 0; // counted on the recording thread
    RecorderHarness harness([&]() -> std::unique_ptr<AudioInput> {
        const int take = ++takes;
        if (take == 1)
            return nullptr; // nothing plugged in yet
        const QString heard = folder.filePath(QString::number(take) + u".wav"_s);
        EXPECT_TRUE(writeSound(heard, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1,
                               tone(16000, take == 2 ? 0.2 : 0.8, 440.0, {0.5})));
        auto input = std::make_unique<FileAudioInput>(heard);
        QObject::connect(input.get(), &FileAudioInput::allDelivered, input.get(),
                         [raw = input.get()] { Q_EMIT raw->failed(u"unplugged"_s); });
        return input;
    });
    const QString target = harness.path("cut.caf");
    int ended = 0;
    for (const bool kept : {false, false, true}) {
        harness.recorder.recordPushed(target);
        ASSERT_TRUE(harness.waitFinished(++ended));
        EXPECT_EQ(harness.finished.last().first().toBool(), kept) << ended;
        EXPECT_FALSE(harness.recorder.isRecording());
        EXPECT_EQ(QFile::exists(target), kept) << ended;
    }
    EXPECT_TRUE(harness.recorder.errorText().contains(u"record again"_s));
    EXPECT_EQ(decodedSamples(target).size(), 12800U);
}

TEST(MicrophonePermission, MissingDeviceCountsAsDenied)
{
    bool present = false;
    MicrophonePermission permission([&] { return present; }, [] {});
    QSignalSpy changed(&permission, &MicrophonePermission::deniedChanged);
    EXPECT_TRUE(permission.check());
    EXPECT_TRUE(permission.isDenied());
    EXPECT_TRUE(permission.canOpenSettings());
    present = true;
    EXPECT_FALSE(permission.check());
    EXPECT_FALSE(permission.isDenied());
    EXPECT_EQ(changed.count(), 2);

    // Without a sound settings program the button is absent, and a press does nothing.
    MicrophonePermission bare([] { return false; }, {});
    EXPECT_FALSE(bare.canOpenSettings());
    bare.openSettings();
}

} // namespace
