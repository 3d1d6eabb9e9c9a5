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

// The tempo follows the rate, bounded to 0.2 .. 2.0, and the pitch stays; stereo stays apart and
// extra plays follow the first.
TEST(Stretch, ToneLastsItsPlaysOverTheRateAtTheSamePitch)
{
    const QTemporaryDir folder;
    const QString mono = toneFile(folder, 1.0);
    const QString stereo = toneFile(folder, 1.0, 2);
    const struct {
        float rate;
        int extraPlays;
        const QString &file;
        double seconds;
    } cases[] = {{0.5F, 0, mono, 2.0},  {1.4F, 0, mono, 1.0 / 1.4}, {5.0F, 0, mono, 0.5},
                 {0.01F, 0, mono, 5.0}, {1.0F, 2, mono, 3.0},       {0.6F, 0, stereo, 1.0 / 0.6}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.rate);
        const auto audio = renderAudio(c.file, c.rate, c.extraPlays);
        ASSERT_TRUE(audio);
        EXPECT_EQ(audio->sampleRate, toneRate);
        EXPECT_NEAR(audio->seconds(), c.seconds, 0.03 * c.seconds);
        const std::vector<int16_t> left = middleOf(*audio, 0);
        EXPECT_NEAR(AudioFixtures::measuredFrequency(left, audio->sampleRate), 440.0, 8.8);
        EXPECT_GT(AudioFixtures::peak(left), 0.4 * 32767);
        if (audio->channels == 2) {
            EXPECT_LT(AudioFixtures::peak(middleOf(*audio, 1)), 33);
        }
    }
}

TEST(Stretch, SeekCountsOverAllPlaysAndALaterOneGoesBack)
{
    const QTemporaryDir folder;
    const auto stream = StretchedStream::open(toneFile(folder, 1.0));
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
}

// A clock of a three-second file whose time the test moves.
class PlaybackClockTest : public ::testing::Test {
protected:
    std::chrono::nanoseconds now{5s};
    PlaybackClock clock{3.0, [this] {
                            return now;
                        }};
};

TEST_F(PlaybackClockTest, FileTimeMovesAtTheRateAndHoldsWhilePaused)
{
    clock.setRate(0.5F);
    clock.start();
    now += 1000ms;
    EXPECT_DOUBLE_EQ(clock.currentTime(), 0.5);
    clock.setRate(2.0F);
    now += 250ms;
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.0);
    EXPECT_EQ(clock.remaining(), 1000ms);
    clock.pause();
    now += 5000ms;
    EXPECT_FALSE(clock.isRunning());
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.0);
    clock.start();
    now += 300ms;
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.6);
}

// Time runs over every play; the file time folds back at each new play and stays at the end.
TEST_F(PlaybackClockTest, ExtraPlaysFoldIntoFileTimeAndSettingItStaysInThePlay)
{
    clock.setExtraPlays(2);
    EXPECT_DOUBLE_EQ(clock.totalTime(), 9.0);
    clock.start();
    now += 4000ms;
    clock.setCurrentTime(0.0);
    EXPECT_DOUBLE_EQ(clock.playThroughTime(), 3.0);
    now += 4500ms;
    EXPECT_DOUBLE_EQ(clock.currentTime(), 1.5);
    EXPECT_FALSE(clock.atEnd());
    now += 5000ms;
    EXPECT_TRUE(clock.atEnd());
    EXPECT_DOUBLE_EQ(clock.currentTime(), 3.0);
    EXPECT_EQ(clock.remaining(), 0ms);
    clock.setCurrentTime(99.0);
    EXPECT_DOUBLE_EQ(clock.currentTime(), 3.0);
    clock.seek(-1.0);
    EXPECT_DOUBLE_EQ(clock.playThroughTime(), 0.0);
}

// The player as it runs where no sound device exists: the time is real, so the files are short.
TEST(SilentPlayer, TimeAdvancesAtTheRateAndPauseHoldsIt)
{
    const QTemporaryDir folder;
    const auto player = TempoAudioPlayer::open(toneFile(folder, 1.0), SoundDestination::nowhere);
    ASSERT_TRUE(player);
    EXPECT_NEAR(player->duration(), 1.0, 1e-9);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    player->setRate(2.0F);
    QElapsedTimer wall;
    wall.start();
    player->play();
    QTest::qWait(60);
    const double before = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    const double time = player->currentTime();
    const double after = static_cast<double>(wall.nsecsElapsed()) / 1e9;
    EXPECT_TRUE(player->isPlaying());
    EXPECT_GE(time, 2.0 * before - 0.01);
    EXPECT_LE(time, 2.0 * after + 0.01);

    player->pause();
    const double held = player->currentTime();
    EXPECT_FALSE(player->isPlaying());
    QTest::qWait(30);
    EXPECT_DOUBLE_EQ(player->currentTime(), held);
    // Near the end, it finishes from there.
    player->setCurrentTime(0.97);
    EXPECT_DOUBLE_EQ(player->currentTime(), 0.97);
    player->play();
    ASSERT_TRUE(finished.wait(2000));
    EXPECT_EQ(finished.size(), 1);

    player->setRate(0.1F);
    EXPECT_FLOAT_EQ(player->rate(), 0.2F);
    player->setVolume(1.5F);
    EXPECT_FLOAT_EQ(player->volume(), 1.0F);
    player->setVolume(-1.0F);
    EXPECT_FLOAT_EQ(player->volume(), 0.0F);
}

// Two loops are two extra plays: 3 x 0.2 s of file at rate 2 (3 is above the bound) end after
// 0.3 s, once. A finished player plays again from the top; stop() keeps its place like pause().
TEST(SilentPlayer, FinishesOnceAfterTheLoopsAndPlaysAgainFromTheTop)
{
    const QTemporaryDir folder;
    const auto player = TempoAudioPlayer::open(toneFile(folder, 0.2), SoundDestination::nowhere);
    ASSERT_TRUE(player);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    player->setNumberOfLoops(2);
    EXPECT_EQ(player->numberOfLoops(), 2);
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

    player->play();
    EXPECT_TRUE(player->isPlaying());
    EXPECT_LT(player->currentTime(), 0.1);
    player->stop();
    const double stopped = player->currentTime();
    EXPECT_FALSE(player->isPlaying());
    player->play();
    EXPECT_GE(player->currentTime(), stopped);
}

TEST(OpenFailure, NoPlayerAndOneLogLineNamingTheFile)
{
    const QTemporaryDir folder;
    const QString noise = folder.filePath(QStringLiteral("noise.mp3"));
    const QString cut = folder.filePath(QStringLiteral("cut.wav"));
    const QString empty = folder.filePath(QStringLiteral("empty.wav"));
    ASSERT_TRUE(AudioFixtures::writeBytes(noise, QByteArray(3000, '\x5a')));
    ASSERT_TRUE(AudioFixtures::writeBytes(cut, QByteArrayLiteral("RIFF\x24\x00\x00\x00WAVEfmt ")));
    ASSERT_TRUE(
        AudioFixtures::writeSound(empty, SF_FORMAT_WAV | SF_FORMAT_PCM_16, toneRate, 1, {}));
    for (const QString &path : {QStringLiteral("/nonexistent/voices/101.mp3"), noise, cut, empty}) {
        SCOPED_TRACE(path.toStdString());
        const AudioFixtures::LogCapture log;
        EXPECT_EQ(makeAudioPlayer(path), nullptr);
        ASSERT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
        EXPECT_TRUE(log.lines().first().contains(path));
    }
}

TEST(PlaySound, PlaysAtThePreferredSpeedWithTheLoopsAtFullVolume)
{
    AudioPlayerStubFactory players;
    const QString path = QStringLiteral("/course/1/voices/101.mp3");
    // A speed of 0 or below plays at 1.
    for (const auto &[speed, heard] : {std::pair{1.4F, 1.4F}, {0.0F, 1.0F}, {-0.6F, 1.0F}}) {
        Preferences::instance().setPlaySpeed(speed);
        const auto player = playSound(path, 2);
        ASSERT_TRUE(player);
        ASSERT_EQ(player.get(), players.last);
        EXPECT_FLOAT_EQ(players.last->rate(), heard);
        EXPECT_EQ(players.last->numberOfLoops(), 2);
        EXPECT_FLOAT_EQ(players.last->volume(), 1.0F);
        EXPECT_TRUE(players.last->isPlaying());
    }
    Preferences::instance().setPlaySpeed(1.0F);
    EXPECT_EQ(players.requested, QStringList(3, path));
    players.unplayable.append(path);
    EXPECT_EQ(playSound(path, 0), nullptr);
}

// Everywhere: an output that never sounded still shuts its audio thread down and frees what
// lives there when it goes, with calls still posted to it.
TEST(DevicePlayer, OutputThreadShutsDownCleanly)
{
    const QTemporaryDir folder;
    auto stream = StretchedStream::open(toneFile(folder, 0.2));
    ASSERT_TRUE(stream);
    QAudioFormat format;
    format.setSampleFormat(QAudioFormat::Float);
    auto output = std::make_unique<SinkSoundOutput>(std::move(stream), QAudioDevice(), format);
    output->setRate(0.5F);
    output->setExtraPlays(1);
    output->seek(0.1);
    output->setVolume(0.5F);
    output.reset();
}

} // namespace
