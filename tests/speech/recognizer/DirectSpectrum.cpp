#include "DirectSpectrum.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

std::vector<double> directLogPowerRow(std::span<const int16_t> samples, uint64_t frame,
                                      const DirectFraming &framing)
{
    const auto length = static_cast<size_t>(framing.frameLength);
    const size_t start = frame * static_cast<size_t>(framing.frameShift);
    std::vector<double> x(length, 0.0);
    for (size_t n = 0; n < length && start + n < samples.size(); ++n) {
        const size_t i = start + n;
        x[n] = samples[i] - framing.preEmphasis * (i == 0 ? 0.0 : samples[i - 1]);
    }
    if (framing.removeDc) {
        double sum = 0.0;
        for (const double value : x)
            sum += value;
        for (double &value : x)
            value -= sum / static_cast<double>(length);
    }
    for (size_t n = 0; n < length; ++n)
        x[n] *= 0.54 - 0.46 * std::cos(2.0 * std::numbers::pi * static_cast<double>(n) /
                                       static_cast<double>(length - 1));

    std::vector<double> row(128, 0.0);
    for (size_t k = 0; k < row.size(); ++k) {
        double re = 0.0;
        double im = 0.0;
        for (size_t n = 0; n < length; ++n) {
            const double angle = -2.0 * std::numbers::pi * static_cast<double>(k * n) /
                                 static_cast<double>(framing.fftSize);
            re += x[n] * std::cos(angle);
            im += x[n] * std::sin(angle);
        }
        row[k] = std::max(std::log(re * re + im * im), 0.0);
    }
    return row;
}

void expectRowMatchesDirect(const AudioPowerSpectrumInfo &spectrum,
                            std::span<const int16_t> samples, uint64_t frame,
                            const DirectFraming &framing)
{
    const std::vector<double> direct = directLogPowerRow(samples, frame, framing);
    for (int bin = 0; bin < AudioPowerSpectrumInfo::bins; ++bin) {
        const double expected = direct[static_cast<size_t>(bin)];
        if (expected > 5.0) {
            EXPECT_NEAR(spectrum.at(frame, bin), expected, 1e-3)
                << "frame " << frame << " bin " << bin;
        }
    }
}
