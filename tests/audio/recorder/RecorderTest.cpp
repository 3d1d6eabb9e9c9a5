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
#include <gtest/gtest.h>
#include <numeric>
#include <sndfile.h>
#include <tuple>

using namespace AudioFixtures;

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
    /// Makes a 16-bit WAV file of the samples the input of the next recordings.
    void setInput(int rate, int channels, const std::vector<int32_t> &interleaved)
    {
        m_input = path("input") + QString::number(++m_inputs) + QStringLiteral(".wav");
        EXPECT_TRUE(
            writeSound(m_input, SF_FORMAT_WAV | SF_FORMAT_PCM_16, rate, channels, interleaved));
    }
    /// Waits until the input has delivered its whole file, `count` files in all.
    bool waitDelivered(int count = 1)
    {
        return QTest::qWaitFor([&] { return m_delivered >= count; }, 10000);
    }
    /// Waits until `count` recordings in all have reported their end.
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

// Whatever the input offers, the recording is 16 kHz mono ALAC in a CAF file with the channels
// averaged, its folder made if need be.
TEST(RecordingRoundTrip, InputsBecome16kHzMonoAtTheirPitchAndLevel)
{
    const struct {
        const char *target;
        int rate;
        std::vector<double> gains;
    } cases[] = {{"record/phrase.caf", 16000, {0.5}}, {"stereo.caf", 44100, {0.8, 0.4}}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.target);
        RecorderHarness harness;
        const auto channels = static_cast<int>(c.gains.size());
        harness.setInput(c.rate, channels, tone(c.rate, 0.5, 440.0, c.gains));
        const QString target = harness.path(c.target);
        ASSERT_TRUE(harness.record(target));
        EXPECT_TRUE(harness.finished.first().first().toBool());

        SF_INFO info{};
        SNDFILE *file = sf_open(QFile::encodeName(target).constData(), SFM_READ, &info);
        ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
        sf_close(file);
        EXPECT_EQ(std::tuple(info.format, info.samplerate, info.channels),
                  std::tuple(SF_FORMAT_CAF | SF_FORMAT_ALAC_16, 16000, 1));
        const auto samples = decodedSamples(target);
        EXPECT_NEAR(static_cast<double>(samples.size()), 8000.0, 16.0);
        EXPECT_NEAR(measuredFrequency(samples, 16000), 440.0, 2.0);
        const double level = std::reduce(c.gains.begin(), c.gains.end()) / channels;
        EXPECT_NEAR(peak(samples), level * 32767, 0.02 * 32767);
    }
}

TEST(RecorderRules, LevelIsThePeakOfChannelZeroInDecibelsPolledWhileRecording)
{
    EXPECT_EQ(VoAudioRecorder::powerFromPeak(0.0F), -160.0F);
    EXPECT_EQ(VoAudioRecorder::powerFromPeak(1.0F), 0.0F);
    EXPECT_NEAR(VoAudioRecorder::powerFromPeak(0.5F), -6.02F, 0.01F);

    // A full-scale tone on the left, silence on the right: the left channel is the one metered.
    RecorderHarness harness;
    harness.setInput(44100, 2, tone(44100, 0.1, 440.0, {1.0, 0.0}));
    harness.recorder.recordPushed(harness.path("level.caf"));
    ASSERT_TRUE(harness.levels.wait(1000));
    ASSERT_TRUE(harness.waitDelivered());
    // The recorder's own poll may have taken the peak before the test's.
    harness.recorder.levelPoll();
    float loudest = VoAudioRecorder::silencePower;
    for (const QList<QVariant> &level : std::as_const(harness.levels))
        loudest = std::max(loudest, level.first().toFloat());
    EXPECT_NEAR(loudest, 0.0F, 0.1F);
    // Nothing heard since the last poll is silence.
    harness.recorder.levelPoll();
    EXPECT_EQ(harness.levels.last().first().toFloat(), -160.0F);

    harness.recorder.stopPushed();
    ASSERT_TRUE(harness.waitFinished());
    harness.levels.clear();
    QTest::qWait(150);
    EXPECT_EQ(harness.levels.count(), 0) << "no polls once stopped";
}

TEST(RecorderRules, OneRecordingAtATimeAndTheNextReplacesTheFile)
{
    RecorderHarness harness;
    harness.setInput(16000, 1, tone(16000, 0.2, 440.0, {1.0}));
    harness.recorder.stopPushed();
    const QString first = harness.path("first.caf");
    harness.recorder.recordPushed(first);
    ASSERT_TRUE(harness.waitDelivered());
    harness.recorder.recordPushed(harness.path("second.caf"));
    EXPECT_TRUE(harness.recorder.isRecording());
    harness.recorder.stopPushed();
    EXPECT_FALSE(harness.recorder.isRecording());
    ASSERT_TRUE(harness.waitFinished());
    QTest::qWait(50);
    EXPECT_EQ(harness.finished.count(), 1) << "neither the early stop nor the second start ran";
    EXPECT_FALSE(QFile::exists(harness.path("second.caf")));
    EXPECT_EQ(decodedSamples(first).size(), 3200U);
    EXPECT_GT(peak(decodedSamples(first)), 30000);

    harness.setInput(16000, 1, tone(16000, 0.1, 440.0, {0.0}));
    ASSERT_TRUE(harness.record(first));
    const auto samples = decodedSamples(first);
    EXPECT_EQ(samples.size(), 1600U);
    EXPECT_EQ(peak(samples), 0);
}

TEST(RecorderRules, PlaybackWaitsForTheRecordingToBeClosedAndRecordingStopsIt)
{
    AudioPlayerStubFactory players;
    RecorderHarness harness;
    harness.setInput(16000, 1, tone(16000, 0.2, 440.0, {1.0}));
    const QString target = harness.path("play.caf");
    harness.recorder.recordPushed(target);
    ASSERT_TRUE(harness.waitDelivered());
    harness.recorder.playPushed(target);
    EXPECT_FALSE(harness.recorder.isRecording());
    EXPECT_TRUE(players.requested.isEmpty());
    ASSERT_TRUE(harness.waitFinished());
    ASSERT_EQ(players.requested, QStringList{target});
    ASSERT_NE(harness.recorder.player(), nullptr);
    EXPECT_TRUE(harness.recorder.player()->isPlaying());

    harness.recorder.recordPushed(harness.path("next.caf"));
    EXPECT_FALSE(harness.recorder.player()->isPlaying());
    harness.recorder.stopPushed();
    ASSERT_TRUE(harness.waitFinished(2));
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

TEST(RecorderFailure, UnpluggedDeviceEndsTheRecordingWithWhatWasHeard)
{
    RecorderHarness harness([] { return std::make_unique<UnpluggedInput>(); });
    const QString target = harness.path("cut.caf");
    harness.recorder.recordPushed(target);
    ASSERT_TRUE(harness.waitFinished());
    EXPECT_FALSE(harness.finished.first().first().toBool());
    EXPECT_FALSE(harness.recorder.isRecording());
    EXPECT_EQ(harness.recorder.errorText(), QStringLiteral("the microphone was unplugged"));
    EXPECT_EQ(decodedSamples(target).size(), 1600U);
}

TEST(MicrophonePermission, MissingDeviceCountsAsDenied)
{
    bool present = false;
    int opened = 0;
    MicrophonePermission permission([&] { return present; }, [&] { ++opened; });
    QSignalSpy changed(&permission, &MicrophonePermission::deniedChanged);
    EXPECT_TRUE(permission.check());
    EXPECT_TRUE(permission.isDenied());
    EXPECT_EQ(permission.message(), QStringLiteral("Microphone Access Denied"));
    EXPECT_TRUE(permission.canOpenSettings());
    permission.openSettings();
    EXPECT_EQ(opened, 1);
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
