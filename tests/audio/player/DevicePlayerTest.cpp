#include "ToneFolder.h"
#include "audio/AudioPlayer.h"
#include "audio/SinkSoundOutput.h"
#include "audio/StretchedStream.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

// Only where a sound device exists (never on CI): the sink really sounds the file and reports
// its end; a seek back before the end keeps it going.
TEST(DevicePlayer, SoundsToTheEndOnce)
{
    if (QMediaDevices::defaultAudioOutput().isNull())
        GTEST_SKIP() << "no sound device";
    ToneFolder tones;
    const auto player = makeAudioPlayer(tones.tone(0.4));
    ASSERT_TRUE(player);
    QSignalSpy finished(player.get(), &AudioPlayer::finished);
    player->setVolume(0.1F);
    player->setRate(2.0F);
    player->play();
    player->setCurrentTime(0.0);
    ASSERT_TRUE(finished.wait(3000));
    EXPECT_TRUE(finished.first().first().toBool());
    EXPECT_FALSE(player->isPlaying());
    EXPECT_FALSE(finished.wait(300));
}

// Everywhere: an output that never sounded still shuts its audio thread down and frees what
// lives there when it goes, with calls still posted to it.
TEST(DevicePlayer, OutputThreadShutsDownCleanly)
{
    ToneFolder tones;
    auto stream = StretchedStream::open(tones.tone(0.2));
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
