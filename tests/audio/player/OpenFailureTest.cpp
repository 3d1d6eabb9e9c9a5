#include "AudioFixtures.h"
#include "ToneFolder.h"
#include "audio/AudioPlayer.h"

#include <gtest/gtest.h>
#include <sndfile.h>

namespace {

void expectNoPlayerWithOneLogLine(const QString &path)
{
    const AudioFixtures::LogCapture log;
    EXPECT_EQ(makeAudioPlayer(path), nullptr);
    ASSERT_EQ(log.lines().size(), 1) << log.lines().join(u'\n').toStdString();
    EXPECT_TRUE(log.lines().first().contains(path));
}

TEST(OpenFailure, MissingFile)
{
    expectNoPlayerWithOneLogLine(QStringLiteral("/nonexistent/voices/101.mp3"));
}

TEST(OpenFailure, DamagedFiles)
{
    ToneFolder folder;
    const QString noise = folder.path(QStringLiteral("noise.mp3"));
    ASSERT_TRUE(AudioFixtures::writeBytes(noise, QByteArray(3000, '\x5a')));
    expectNoPlayerWithOneLogLine(noise);

    const QString cut = folder.path(QStringLiteral("cut.wav"));
    ASSERT_TRUE(AudioFixtures::writeBytes(cut, QByteArrayLiteral("RIFF\x24\x00\x00\x00WAVEfmt ")));
    expectNoPlayerWithOneLogLine(cut);

    const QString empty = folder.path(QStringLiteral("empty.wav"));
    ASSERT_TRUE(AudioFixtures::writeSound(empty, SF_FORMAT_WAV | SF_FORMAT_PCM_16,
                                          ToneFolder::sampleRate, 1, {}));
    expectNoPlayerWithOneLogLine(empty);
}

} // namespace
