#include "speech/LogPowerSpectrum.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

namespace {

/// The installed English model's front end: 25.625 ms frames every 10 ms at 16 kHz, a 512-point
/// FFT, pre-emphasis 0.97, no DC removal.
constexpr FrontEndFraming english{410, 160, 512, 0.97, false};

/// Sum of a 410-point Hamming window, 0.54 N - 0.46 (its cosines cancel but for one end).
constexpr double hammingSum = 0.54 * 410 - 0.46;

std::vector<int16_t> sine(size_t count, double frequency, double amplitude)
{
    std::vector<int16_t> samples(count);
    for (size_t n = 0; n < count; ++n)
        samples[n] = static_cast<int16_t>(
            std::lround(amplitude * std::sin(2.0 * std::numbers::pi * frequency *
                                             static_cast<double>(n) / 16000.0)));
    return samples;
}

} // namespace

TEST(FrontEndFraming, FullFramesThenOneForTheRest)
{
    // 16000 samples: 98 full frames and the last 250 samples.
    const std::pair<size_t, uint64_t> counts[] = {{0, 0},   {1, 1},      {409, 1},    {410, 2},
                                                  {570, 3}, {16000, 99}, {16090, 100}};
    for (const auto &[samples, frames] : counts)
        EXPECT_EQ(english.frameCount(samples), frames) << samples << " samples";

    // A damaged model's values make no frames rather than reading past a frame.
    FrontEndFraming smallFft = english;
    smallFft.fftSize = 256;
    EXPECT_EQ(smallFft.frameCount(16000), 0u);
    EXPECT_TRUE(logPowerSpectrum(sine(1000, 1000.0, 8000.0), 5, smallFft).powerData.empty());
    FrontEndFraming noShift = english;
    noShift.frameShift = 0;
    EXPECT_FALSE(noShift.isUsable());
}

TEST(LogPowerSpectrum, ToneLandsInItsBinAtThePowerWorkedOutByHand)
{
    // 1 kHz is bin 32 of a 512-point FFT at 16 kHz. There a tone of amplitude A has the power
    // (A / 2 x the window's sum)^2, times |1 - 0.97 e^(-i pi / 8)|^2 for the pre-emphasis.
    const double emphasis = 1.0 + 0.97 * 0.97 - 2.0 * 0.97 * std::cos(std::numbers::pi / 8.0);
    const double expected = std::log(std::pow(4000.0 * hammingSum, 2.0) * emphasis);
    const std::vector<int16_t> samples = sine(3200, 1000.0, 8000.0);
    const uint64_t frames = english.frameCount(samples.size());
    const AudioPowerSpectrumInfo spectrum = logPowerSpectrum(samples, frames, english);
    ASSERT_EQ(spectrum.frameCount, 19u);
    ASSERT_EQ(spectrum.rowCount, 20u);
    ASSERT_EQ(spectrum.powerData.size(), 20u * 128u);
    double largest = 0.0;
    for (uint64_t frame = 0; frame < frames; ++frame) {
        int loudest = 0;
        for (int bin = 0; bin < 128; ++bin) {
            largest = std::max(largest, spectrum.at(frame, bin));
            if (spectrum.at(frame, bin) > spectrum.at(frame, loudest))
                loudest = bin;
        }
        EXPECT_EQ(loudest, 32) << "frame " << frame;
        // The last frame is zero-padded, so lower.
        if (frame + 1 < frames) {
            EXPECT_NEAR(spectrum.at(frame, 32), expected, 0.01) << "frame " << frame;
        }
    }
    EXPECT_EQ(spectrum.maxPower, largest);
    // The row past the last frame is there and left zero.
    for (int bin = 0; bin < 128; ++bin)
        EXPECT_EQ(spectrum.at(frames, bin), 0.0);
}
