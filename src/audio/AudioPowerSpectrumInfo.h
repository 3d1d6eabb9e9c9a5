#pragma once

#include <cstdint>
#include <vector>

/**
 * @brief A log power spectrum: one row of 128 bins per decoder frame.
 *
 * Values are natural logarithms of squared FFT magnitudes, floored at 0. `rowCount` rows are
 * allocated (at least `frameCount`); rows past `frameCount` stay 0. `maxPower` is the largest
 * filled value, 0 when none is larger.
 */
struct AudioPowerSpectrumInfo {
    static constexpr int32_t bins = 128;

    std::vector<double> powerData; ///< rowCount x bins, row-major
    uint64_t rowCount{0};
    uint64_t frameCount{0};
    int32_t spectrumSize{bins};
    double maxPower{0.0};

    [[nodiscard]] double at(uint64_t frame, int32_t bin) const
    {
        return powerData[frame * static_cast<uint64_t>(bins) + static_cast<uint64_t>(bin)];
    }
};
