#include "AudioFixtures.h"
#include "ToneFolder.h"
#include "audio/AudioRenderer.h"
#include "audio/StretchedStream.h"

#include <gtest/gtest.h>

namespace {

// Half a second from the middle of the rendering: away from the stretcher's ramps at either end,
// and long enough to tell 440 Hz from its neighbours 2 Hz apart.
std::span<const float> middle(const RenderedAudio &audio)
{
    const auto frames = audio.samples.size() / static_cast<size_t>(audio.channels);
    const auto length = static_cast<size_t>(audio.sampleRate / 2);
    const size_t start = (frames - std::min(frames, length)) / 2;
    return std::span(audio.samples)
        .subspan(start * static_cast<size_t>(audio.channels),
                 std::min(frames, length) * static_cast<size_t>(audio.channels));
}

class StretchTest : public ::testing::TestWithParam<float> {
protected:
    ToneFolder tones;
};

// The tempo follows the rate and the pitch stays, from the slowest rate to the fastest.
TEST_P(StretchTest, OneSecondToneLastsOneOverRateAtTheSamePitch)
{
    const float rate = GetParam();
    const auto audio = renderAudio(tones.tone(1.0), rate);
    ASSERT_TRUE(audio);
    EXPECT_EQ(audio->sampleRate, ToneFolder::sampleRate);
    EXPECT_EQ(audio->channels, 1);
    EXPECT_NEAR(audio->seconds(), 1.0 / rate, 0.03 / rate);
    EXPECT_NEAR(dominantFrequency(middle(*audio), 1, 0, audio->sampleRate), 440.0, 440.0 * 0.02);
}

INSTANTIATE_TEST_SUITE_P(Rates, StretchTest, ::testing::Values(0.5F, 2.0F, 0.2F, 1.0F, 1.4F));

TEST(Stretch, RatesBeyondTheBoundsPlayAtTheBound)
{
    ToneFolder tones;
    const QString tone = tones.tone(1.0);
    EXPECT_NEAR(renderAudio(tone, 5.0F)->seconds(), 0.5, 0.02);
    EXPECT_NEAR(renderAudio(tone, 0.01F)->seconds(), 5.0, 0.1);
}

// Interleaving survives the stretch: the tone stays left and the right channel stays silent.
TEST(Stretch, StereoChannelsStayApart)
{
    ToneFolder tones;
    const auto audio = renderAudio(tones.tone(1.0, 440.0, 2), 0.6F);
    ASSERT_TRUE(audio);
    ASSERT_EQ(audio->channels, 2);
    EXPECT_NEAR(audio->seconds(), 1.0 / 0.6, 0.05);
    const auto part = middle(*audio);
    EXPECT_NEAR(dominantFrequency(part, 2, 0, audio->sampleRate), 440.0, 440.0 * 0.02);
    EXPECT_GT(rootMeanSquare(part, 2, 0), 0.2);
    EXPECT_LT(rootMeanSquare(part, 2, 1), 0.001);
}

TEST(Stretch, ExtraPlaysFollowTheFirst)
{
    ToneFolder tones;
    const auto audio = renderAudio(tones.tone(0.5), 1.0F, 2);
    ASSERT_TRUE(audio);
    EXPECT_NEAR(audio->seconds(), 1.5, 0.03);
}

// A seek counts over all plays, and a later one goes back.
TEST(Stretch, SeekCountsOverAllPlays)
{
    ToneFolder tones;
    const auto stream = StretchedStream::open(tones.tone(1.0));
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

TEST(Stretch, MissingFileRendersNothingWithOneLogLine)
{
    const AudioFixtures::LogCapture log;
    EXPECT_FALSE(renderAudio(QStringLiteral("/nonexistent/tone.wav"), 1.0F));
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().contains(QStringLiteral("/nonexistent/tone.wav")));
}

} // namespace
