#include "speech/LogPowerSpectrum.h"

#include "DirectSpectrum.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

namespace {

FrontEndFraming framingOf(const DirectFraming &direct)
{
    return {direct.frameLength, direct.frameShift, direct.fftSize, direct.preEmphasis,
            direct.removeDc};
}

std::vector<int16_t> sine(size_t count, double frequency, double amplitude)
{
    std::vector<int16_t> samples(count);
    for (size_t n = 0; n < count; ++n)
        samples[n] = static_cast<int16_t>(
            std::lround(amplitude * std::sin(2.0 * std::numbers::pi * frequency *
                                             static_cast<double>(n) / 16000.0)));
    return samples;
}

/// Deterministic speech-like noise with an offset, so that DC removal has work to do.
std::vector<int16_t> noise(size_t count)
{
    std::vector<int16_t> samples(count);
    uint32_t state = 12345;
    for (int16_t &sample : samples) {
        state = state * 1664525u + 1013904223u;
        sample = static_cast<int16_t>(static_cast<int>(state >> 20) - 2048 + 700);
    }
    return samples;
}

} // namespace

TEST(FrontEndFraming, FullFramesThenOneForTheRest)
{
    const FrontEndFraming framing = framingOf(englishFrontEnd);
    EXPECT_EQ(framing.frameCount(0), 0u);
    EXPECT_EQ(framing.frameCount(1), 1u);
    EXPECT_EQ(framing.frameCount(409), 1u);
    EXPECT_EQ(framing.frameCount(410), 2u);
    EXPECT_EQ(framing.frameCount(570), 3u);
    // 3 s: 98 full frames and the last 250 samples.
    EXPECT_EQ(framing.frameCount(16000), 99u);
    EXPECT_EQ(framing.frameCount(16090), 100u);
    EXPECT_EQ(framing.frameCount(48000), 299u);
}

TEST(FrontEndFraming, UnusableValuesMakeNoFrames)
{
    FrontEndFraming framing = framingOf(englishFrontEnd);
    framing.fftSize = 256; // smaller than a frame
    EXPECT_FALSE(framing.isUsable());
    EXPECT_EQ(framing.frameCount(16000), 0u);
    EXPECT_TRUE(logPowerSpectrum(noise(1000), 5, framing).powerData.empty());
    framing = framingOf(englishFrontEnd);
    framing.frameShift = 0;
    EXPECT_FALSE(framing.isUsable());
}

TEST(LogPowerSpectrum, RowsAreTheFramesSpectraByDefinition)
{
    const std::vector<int16_t> samples = noise(4000);
    for (const bool removeDc : {false, true}) {
        DirectFraming direct = englishFrontEnd;
        direct.removeDc = removeDc;
        const FrontEndFraming framing = framingOf(direct);
        const uint64_t frames = framing.frameCount(samples.size());
        const AudioPowerSpectrumInfo spectrum = logPowerSpectrum(samples, frames, framing);
        ASSERT_EQ(spectrum.frameCount, frames);
        // The first frame, one in the middle and the zero-padded last one.
        for (const uint64_t frame : {uint64_t{0}, frames / 2, frames - 1})
            expectRowMatchesDirect(spectrum, samples, frame, direct);
    }
}

TEST(LogPowerSpectrum, OneRowMoreThanFramesAllocatedAndLeftZero)
{
    const std::vector<int16_t> samples = noise(2000);
    const AudioPowerSpectrumInfo spectrum =
        logPowerSpectrum(samples, 10, framingOf(englishFrontEnd));
    EXPECT_EQ(spectrum.frameCount, 10u);
    EXPECT_EQ(spectrum.rowCount, 11u);
    EXPECT_EQ(spectrum.spectrumSize, 128);
    ASSERT_EQ(spectrum.powerData.size(), 11u * 128u);
    for (int bin = 0; bin < 128; ++bin)
        EXPECT_EQ(spectrum.at(10, bin), 0.0);
}

TEST(LogPowerSpectrum, ToneLandsInItsBinAndSetsTheMaximum)
{
    // 1 kHz is bin 32 of a 512-point FFT at 16 kHz.
    const std::vector<int16_t> samples = sine(3200, 1000.0, 8000.0);
    const FrontEndFraming framing = framingOf(englishFrontEnd);
    const AudioPowerSpectrumInfo spectrum =
        logPowerSpectrum(samples, framing.frameCount(samples.size()), framing);
    double largest = 0.0;
    for (uint64_t frame = 0; frame < spectrum.frameCount; ++frame) {
        int loudest = 0;
        for (int bin = 0; bin < 128; ++bin) {
            largest = std::max(largest, spectrum.at(frame, bin));
            if (spectrum.at(frame, bin) > spectrum.at(frame, loudest))
                loudest = bin;
        }
        EXPECT_EQ(loudest, 32) << "frame " << frame;
    }
    EXPECT_EQ(spectrum.maxPower, largest);
}

TEST(LogPowerSpectrum, SilenceIsFlooredToZero)
{
    const std::vector<int16_t> samples(1600, 0);
    const AudioPowerSpectrumInfo spectrum =
        logPowerSpectrum(samples, 9, framingOf(englishFrontEnd));
    for (const double value : spectrum.powerData)
        ASSERT_EQ(value, 0.0);
    EXPECT_EQ(spectrum.maxPower, 0.0);
}

TEST(LogPowerSpectrum, ConstantOffsetIsRemovedOnlyWhenAsked)
{
    // Without pre-emphasis a constant is pure DC: a strong bin 0 unless its mean is removed.
    const std::vector<int16_t> samples(1600, 1000);
    FrontEndFraming framing = framingOf(englishFrontEnd);
    framing.preEmphasis = 0.0;
    EXPECT_GT(logPowerSpectrum(samples, 3, framing).at(1, 0), 20.0);
    framing.removeDc = true;
    EXPECT_EQ(logPowerSpectrum(samples, 3, framing).at(1, 0), 0.0);
}

TEST(LogPowerSpectrum, SmallFftKeepsOnlyItsOwnBins)
{
    // A 128-point FFT has 65 bins; the rest of each row stays 0.
    const std::vector<int16_t> samples = noise(1000);
    const FrontEndFraming framing{100, 50, 128, 0.97, false};
    const AudioPowerSpectrumInfo spectrum = logPowerSpectrum(samples, 4, framing);
    EXPECT_GT(spectrum.at(1, 64), 0.0);
    for (int bin = 65; bin < 128; ++bin)
        EXPECT_EQ(spectrum.at(1, bin), 0.0);
}
