#include "audio/AudioInput.h"
#include "audio/SoundOutput.h"
#include "audio/StretchedStream.h"
#include "audio/TempoAudioPlayer.h"
#include "audio/VoAudioRecorder.h"
#include "support/TestPaths.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A device's output that only notes what it was told, and can be unplugged.
class FakeOutput final : public SoundOutput {
public:
    void play() override { ++plays; }
    void pause() override {}
    void seek(double seconds) override { seekedTo = seconds; }
    void setRate(float) override {}
    void setVolume(float) override {}
    void setExtraPlays(int) override {}
    void unplug() { Q_EMIT lost(); }

    int plays{0};
    double seekedTo{-1.0};
};

/// The system's devices, one per output asked for, in turn; none once the list is used up.
struct FakeDeviceList {
    explicit FakeDeviceList(int devices)
    {
        for (int i = 0; i < devices; ++i)
            outputs.push_back(new FakeOutput);
        setDeviceOutputMaker([this](std::unique_ptr<StretchedStream>) {
            std::unique_ptr<SoundOutput> next;
            if (!outputs.empty()) {
                next.reset(outputs.front());
                used.push_back(outputs.front());
                outputs.pop_front();
            }
            return next;
        });
    }
    ~FakeDeviceList()
    {
        setDeviceOutputMaker({});
        qDeleteAll(outputs);
    }
    std::deque<FakeOutput *> outputs;
    std::vector<FakeOutput *> used;
};

/// A microphone that says `seconds` of 16 kHz mono sound, then is unplugged.
class UnpluggedInput final : public AudioInput {
public:
    explicit UnpluggedInput(double seconds)
        : m_seconds(seconds)
    {}
    QString start() override
    {
        QTimer::singleShot(0, this, [this] {
            const auto samples = static_cast<qsizetype>(m_seconds * 16000);
            QByteArray pcm(samples * 2, '\0');
            for (qsizetype i = 0; i < samples; ++i)
                reinterpret_cast<qint16 *>(pcm.data())[i] = static_cast<qint16>(i % 200 * 100);
            Q_EMIT frames(pcm);
            Q_EMIT failed(u"unplugged"_s);
        });
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

private:
    double m_seconds;
};

QString courseRecording()
{
    return TestPaths::course() + u"/1/voices/101.mp3"_s;
}

} // namespace

// Unplugged mid-play, the sound moves to the next device at the place it had reached; with no
// device left it goes on silently and still ends when the recording would have.
TEST(DeviceChange, PlaybackMovesToTheNextDeviceThenGoesOnSilently)
{
    FakeDeviceList devices(2);
    const auto player = TempoAudioPlayer::open(courseRecording(), SoundDestination::defaultDevice);
    ASSERT_TRUE(player);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    QElapsedTimer clock;
    clock.start();
    player->play();
    ASSERT_EQ(devices.used.size(), 1U);
    QTest::qWait(300);

    devices.used.at(0)->unplug();
    ASSERT_EQ(devices.used.size(), 2U);
    EXPECT_EQ(devices.used.at(1)->plays, 1);
    EXPECT_NEAR(devices.used.at(1)->seekedTo, 0.3, 0.15);

    devices.used.at(1)->unplug();
    EXPECT_TRUE(player->isPlaying());
    ASSERT_TRUE(finished.wait(static_cast<int>(player->duration() * 1000) + 5000));
    EXPECT_TRUE(finished.at(0).at(0).toBool());
    EXPECT_GE(clock.elapsed(), static_cast<qint64>(player->duration() * 1000) - 50);
}

// A take cut short by an unplugged microphone is kept when it holds half a second; a shorter one
// is dropped with a message asking for another. A microphone plugged in later records at once.
TEST(DeviceChange, AnUnpluggedMicrophoneKeepsALongTakeAndAsksAgainAfterAShortOne)
{
    const QTemporaryDir folder;
    std::deque<std::function<std::unique_ptr<AudioInput>()>> inputs{
        [] { return std::unique_ptr<AudioInput>(); }, // nothing plugged in yet
        [] { return std::make_unique<UnpluggedInput>(0.2); },
        [] { return std::make_unique<UnpluggedInput>(0.8); },
    };
    VoAudioRecorder recorder([&inputs] {
        auto make = inputs.front();
        inputs.pop_front();
        return make();
    });
    QSignalSpy finished(&recorder, &VoAudioRecorder::recorderDidFinishRecording);
    const QString take = folder.filePath(u"take.wav"_s);

    for (const auto &[seconds, kept] : {std::pair{0.0, false}, {0.2, false}, {0.8, true}}) {
        SCOPED_TRACE(seconds);
        recorder.recordPushed(take);
        ASSERT_TRUE(finished.wait(5000) || !finished.isEmpty());
        EXPECT_EQ(finished.takeLast().at(0).toBool(), kept);
        EXPECT_EQ(QFile::exists(take), kept);
        EXPECT_FALSE(recorder.isRecording());
        if (!kept) {
            EXPECT_FALSE(recorder.errorText().isEmpty());
        }
    }
    EXPECT_NEAR(static_cast<double>(QFile(take).size() - 44) / 32000.0, 0.8, 0.05);
}
