#include "audio/SoundOutput.h"
#include "audio/StretchedStream.h"
#include "audio/TempoAudioPlayer.h"
#include "support/TestPaths.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
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
