#include "AudioFixtures.h"
#include "app/Preferences.h"
#include "audio/AudioRenderer.h"
#include "audio/PlaySound.h"
#include "audio/PlaybackClock.h"
#include "audio/SinkSoundOutput.h"
#include "audio/StretchedStream.h"
#include "audio/TempoAudioPlayer.h"
#include "stubs/AudioPlayerStub.h"

#include <QAudioDevice>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <sndfile.h>

namespace {

using namespace std::chrono_literals;

constexpr int toneRate = 22050;

/// A 440 Hz tone as a 16-bit WAV file in the folder; with two channels the right is silent.
QString toneFile(const QTemporaryDir &folder, double seconds, int channels = 1)
{
    const QString file =
        folder.filePath(QStringLiteral("tone%1-%2.wav").arg(seconds).arg(channels));
    const std::vector<double> gains = channels == 1 ? std::vector{0.5} : std::vector{0.5, 0.0};
    EXPECT_TRUE(AudioFixtures::writeSound(file, SF_FORMAT_WAV | SF_FORMAT_PCM_16, toneRate,
                                          channels,
                                          AudioFixtures::tone(toneRate, seconds, 440.0, gains)));
    return file;
}

/// One channel of the middle half second, away from the stretcher's ramps, as 16-bit samples.
std::vector<int16_t> middleOf(const RenderedAudio &audio, int channel)
{
    const auto channels = static_cast<size_t>(audio.channels);
    const size_t frames = audio.samples.size() / channels;
    const size_t count = std::min(frames, static_cast<size_t>(audio.sampleRate / 2));
    std::vector<int16_t> samples;
    for (size_t frame = (frames - count) / 2; samples.size() < count; ++frame)
        samples.push_back(static_cast<int16_t>(
            audio.samples[frame * channels + static_cast<size_t>(channel)] * 32767));
    return samples;
}

// The tempo follows the rate and the pitch stays; stereo stays apart and extra plays follow the
// first.
TEST(Stretch, ToneLastsItsPlaysOverTheRateAtTheSamePitch)
{
    const QTemporaryDir folder;
    const struct {
        float rate;
        int extraPlays;
        int channels;
        double seconds;
    } cases[] = {{1.4F, 1, 1, 2.0 / 1.4}, {0.6F, 0, 2, 1.0 / 0.6}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.rate);
        const auto audio = renderAudio(toneFile(folder, 1.0, c.channels), c.rate, c.extraPlays);
        ASSERT_TRUE(audio);
        EXPECT_NEAR(audio->seconds(), c.seconds, 0.03 * c.seconds);
        const std::vector<int16_t> left = middleOf(*audio, 0);
        EXPECT_NEAR(AudioFixtures::measuredFrequency(left, audio->sampleRate), 440.0, 8.8);
        EXPECT_GT(AudioFixtures::peak(left), 0.4 * 32767);
        // The silent right channel stays silent.
        EXPECT_LT(audio->channels == 2 ? AudioFixtures::peak(middleOf(*audio, 1)) : 0, 33);
    }
}

// The device's side: a seek counts over all plays, and an output that never sounded still shuts its
// audio thread down and frees what lives there, with calls still posted to it.
TEST(DevicePlayer, SeekCountsOverAllPlaysAndTheOutputThreadShutsDownCleanly)
{
    const QTemporaryDir folder;
    auto stream = StretchedStream::open(toneFile(folder, 1.0));
    ASSERT_TRUE(stream);
    stream->setExtraPlays(1);
    const auto secondsLeft = [&] {
        std::vector<float> samples(4096);
        qsizetype frames = 0;
        for (qsizetype read = 1; read > 0; frames += read)
            read = stream->read(samples);
        return static_cast<double>(frames) / stream->sampleRate();
    };
    stream->seek(1.5);
    EXPECT_NEAR(secondsLeft(), 0.5, 0.03);
    stream->seek(0.25);
    EXPECT_NEAR(secondsLeft(), 1.75, 0.03);
    EXPECT_FALSE(stream->failed());

    QAudioFormat format;
    format.setSampleFormat(QAudioFormat::Float);
    auto output = std::make_unique<SinkSoundOutput>(std::move(stream), QAudioDevice(), format);
    output->setRate(0.5F);
    output->setExtraPlays(1);
    output->seek(0.1);
    output->setVolume(0.5F);
    output.reset();
}

// A clock of a three-second file whose time the test moves.
TEST(PlaybackClock, FileTimeFollowsTheRateHoldsWhilePausedAndFoldsBackAtEachPlay)
{
    std::chrono::nanoseconds now{5s};
    PlaybackClock clock{3.0, [&now] {
                            return now;
                        }};
    clock.setExtraPlays(1);
    clock.setRate(0.5F);
    clock.start();
    now += 1000ms;
    EXPECT_DOUBLE_EQ(clock.currentTime(), 0.5);
    clock.setRate(2.0F);
    now += 250ms;
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.0);
    EXPECT_EQ(clock.remaining(), 2500ms);
    clock.pause();
    now += 5000ms;
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.0);
    clock.start();
    now += 1500ms;
    EXPECT_DOUBLE_EQ(clock.playThroughTime(), 4.0);
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.0);
    clock.setCurrentTime(0.5);
    EXPECT_DOUBLE_EQ(clock.playThroughTime(), 3.5) << "setting the time stays in the play";
    EXPECT_FALSE(clock.atEnd());
    now += 5000ms;
    EXPECT_TRUE(clock.atEnd());
    EXPECT_DOUBLE_EQ(clock.currentTime(), 3.0);
    EXPECT_EQ(clock.remaining(), 0ms);
}

// The player as it runs where no sound device exists: the time is real, so the file is short.
// Two loops are two extra plays: 3 x 0.2 s of file at rate 2 (3 is above the bound) end after
// 0.3 s, once. A finished player plays again from the top.
TEST(SilentPlayer, FinishesOnceAfterTheLoopsAndPlaysAgainFromTheTopAtTheRate)
{
    const QTemporaryDir folder;
    const auto player = TempoAudioPlayer::open(toneFile(folder, 0.2), SoundDestination::nowhere);
    ASSERT_TRUE(player);
    EXPECT_NEAR(player->duration(), 0.2, 1e-9);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    player->setNumberOfLoops(2);
    player->setRate(3.0F);
    EXPECT_FLOAT_EQ(player->rate(), 2.0F);
    QElapsedTimer wall;
    wall.start();
    player->play();
    ASSERT_TRUE(finished.wait(2000));
    EXPECT_GE(wall.elapsed(), 295);
    EXPECT_TRUE(finished.first().first().toBool());
    EXPECT_FALSE(player->isPlaying());
    EXPECT_DOUBLE_EQ(player->currentTime(), player->duration());
    QTest::qWait(50);
    EXPECT_EQ(finished.size(), 1);

    player->setNumberOfLoops(0);
    player->setRate(0.1F);
    EXPECT_FLOAT_EQ(player->rate(), 0.2F);
    wall.restart();
    player->play();
    QTest::qWait(60);
    const double before = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    const double time = player->currentTime();
    const double after = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    EXPECT_TRUE(player->isPlaying());
    EXPECT_GE(time, 0.2 * before - 0.002);
    EXPECT_LE(time, 0.2 * after + 0.002);

    player->pause();
    const double held = player->currentTime();
    EXPECT_FALSE(player->isPlaying());
    QTest::qWait(30);
    EXPECT_DOUBLE_EQ(player->currentTime(), held);
    // Near the end, it finishes from there.
    player->setCurrentTime(0.19);
    player->play();
    ASSERT_TRUE(finished.wait(2000));
    EXPECT_EQ(finished.size(), 2);
}

TEST(OpenFailure, NoPlayerForAFileThatCannotBePlayed)
{
    const QTemporaryDir folder;
    const QString noise = folder.filePath(QStringLiteral("noise.mp3"));
    const QString empty = folder.filePath(QStringLiteral("empty.wav"));
    ASSERT_TRUE(AudioFixtures::writeBytes(noise, QByteArray(3000, '\x5a')));
    ASSERT_TRUE(
        AudioFixtures::writeSound(empty, SF_FORMAT_WAV | SF_FORMAT_PCM_16, toneRate, 1, {}));
    for (const QString &path : {QStringLiteral("/nonexistent/voices/101.mp3"), noise, empty})
        EXPECT_EQ(makeAudioPlayer(path), nullptr) << qPrintable(path);
}

TEST(PlaySound, PlaysAtThePreferredSpeedAtFullVolume)
{
    AudioPlayerStubFactory players;
    const QString path = QStringLiteral("/course/1/voices/101.mp3");
    Preferences::instance().setPlaySpeed(1.4F);
    const auto player = playSound(path, 0);
    Preferences::instance().setPlaySpeed(1.0F);
    ASSERT_TRUE(player);
    EXPECT_FLOAT_EQ(player->rate(), 1.4F);
    EXPECT_FLOAT_EQ(player->volume(), 1.0F);
}

} // namespace
