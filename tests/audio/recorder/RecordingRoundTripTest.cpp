#include "AudioFixtures.h"
#include "RecorderHarness.h"
#include "audio/RecordingWriter.h"
#include "audio/VoAudioUtil.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sndfile.h>

using namespace AudioFixtures;

namespace {

std::vector<int16_t> toShorts(const std::vector<int32_t> &wide)
{
    std::vector<int16_t> samples;
    samples.reserve(wide.size());
    for (const int32_t sample : wide)
        samples.push_back(static_cast<int16_t>(sample / 65536));
    return samples;
}

/// The largest difference between the two over their common length, at the best small shift of
/// `actual` against `expected` (the resampler's filter may delay the sound a little).
int alignedMaxDifference(const std::vector<int16_t> &expected, const std::vector<int16_t> &actual)
{
    int best = INT32_MAX;
    for (int lag = -32; lag <= 32; ++lag) {
        int worst = 0;
        // The edges are left out: the filter rings where the sound starts and stops.
        for (size_t i = 256; i + 256 < expected.size(); ++i) {
            const auto j = static_cast<std::ptrdiff_t>(i) + lag;
            if (j < 0 || static_cast<size_t>(j) >= actual.size())
                continue;
            worst = std::max(worst, std::abs(expected[i] - actual[static_cast<size_t>(j)]));
        }
        best = std::min(best, worst);
    }
    return best;
}

void expectAlacMono16k(const QString &path)
{
    SF_INFO info{};
    SNDFILE *file = sf_open(QFile::encodeName(path).constData(), SFM_READ, &info);
    ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
    sf_close(file);
    EXPECT_EQ(info.format, SF_FORMAT_CAF | SF_FORMAT_ALAC_16);
    EXPECT_EQ(info.samplerate, 16000);
    EXPECT_EQ(info.channels, 1);
}

// 16 kHz mono goes through unchanged but for the lossless coding.
TEST(RecordingRoundTrip, MonoAt16kReadsBackAsRecorded)
{
    RecorderHarness harness;
    const auto input = tone(16000, 0.5, 440.0, {0.5});
    harness.setInput(harness.writeWav(QStringLiteral("in.wav"), 16000, 1, input));
    const QString target = harness.path(QStringLiteral("record/phrase.caf"));

    ASSERT_TRUE(harness.record(target));
    EXPECT_TRUE(harness.finished.first().first().toBool());
    expectAlacMono16k(target);

    AudioDataInfo record;
    ASSERT_EQ(VoAudioUtil::decodeAudioDataFromFile(target, record), 0);
    EXPECT_EQ(record.sample_rate, 16000U);
    EXPECT_EQ(record.channels, 1);
    const auto samples = VoAudioUtil::getAudioDataShortForByte(record);
    EXPECT_NEAR(static_cast<double>(samples.size()), 8000.0, 16.0);
    EXPECT_LE(alignedMaxDifference(toShorts(input), samples), 64);
}

// A device that offers only 44.1 kHz stereo: the channels are averaged and the rate converted.
TEST(RecordingRoundTrip, StereoAt44kIsConvertedToMono16k)
{
    RecorderHarness harness;
    harness.setInput(
        harness.writeWav(QStringLiteral("in.wav"), 44100, 2, tone(44100, 0.5, 440.0, {0.8, 0.4})));
    const QString target = harness.path(QStringLiteral("phrase.caf"));

    ASSERT_TRUE(harness.record(target));
    expectAlacMono16k(target);
    const auto samples = decodedSamples(target);
    EXPECT_NEAR(static_cast<double>(samples.size()), 8000.0, 16.0);
    const auto expected = toShorts(tone(16000, 0.5, 440.0, {0.6}));
    EXPECT_LE(alignedMaxDifference(expected, samples), 400);
    EXPECT_NEAR(measuredFrequency(samples, 16000), 440.0, 2.0);
}

// Devices also deliver floats at 48 kHz; the level follows channel 0 alone.
TEST(RecordingRoundTrip, FloatInputIsAveragedAndPeaksOnChannelZero)
{
    QTemporaryDir folder;
    QAudioFormat format;
    format.setSampleRate(48000);
    format.setChannelCount(2);
    format.setSampleFormat(QAudioFormat::Float);
    // A full-scale tone on the left, silence on the right.
    std::vector<float> frames;
    for (const int32_t sample : tone(48000, 0.5, 400.0, {1.0})) {
        frames.push_back(static_cast<float>(sample) / static_cast<float>(INT32_MAX));
        frames.push_back(0.0F);
    }
    RecordingWriter writer;
    const QString target = folder.filePath(QStringLiteral("float.caf"));
    ASSERT_EQ(writer.open(target, format), QString());
    ASSERT_TRUE(writer.write(QByteArrayView(reinterpret_cast<const char *>(frames.data()),
                                            static_cast<qsizetype>(frames.size() * 4))));
    EXPECT_NEAR(writer.lastPeak(), 1.0F, 1e-4F);
    ASSERT_TRUE(writer.finish());

    const auto samples = decodedSamples(target);
    EXPECT_NEAR(static_cast<double>(samples.size()), 8000.0, 16.0);
    EXPECT_NEAR(peak(samples), 16384, 500);
    EXPECT_NEAR(measuredFrequency(samples, 16000), 400.0, 2.0);
}

TEST(RecordingRoundTrip, WavTargetIsPlainPcm)
{
    RecorderHarness harness;
    harness.setInput(
        harness.writeWav(QStringLiteral("in.wav"), 22050, 1, tone(22050, 0.2, 300.0, {0.5})));
    const QString target = harness.path(QStringLiteral("phrase.wav"));
    ASSERT_TRUE(harness.record(target));
    SF_INFO info{};
    SNDFILE *file = sf_open(QFile::encodeName(target).constData(), SFM_READ, &info);
    ASSERT_NE(file, nullptr);
    sf_close(file);
    EXPECT_EQ(info.format, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    EXPECT_EQ(info.samplerate, 16000);
}

} // namespace
