#pragma once

#include "audio/AudioPowerSpectrumInfo.h"

#include <cstdint>
#include <span>
#include <vector>

/// @brief What a front end does to one frame, spelled out by hand for the tests to check against.
struct DirectFraming {
    int frameLength;
    int frameShift;
    int fftSize;
    double preEmphasis;
    bool removeDc;
};

/// The installed English model's front end: 25.625 ms frames every 10 ms at 16 kHz, a 512-point
/// FFT, pre-emphasis 0.97, no DC removal.
inline constexpr DirectFraming englishFrontEnd{410, 160, 512, 0.97, false};

/**
 * Bins 0..127 of one frame's log power spectrum by the DFT's own definition (no FFT): the frame
 * pre-emphasised over the whole signal, samples past the end as zeros, its mean removed when
 * asked, a Hamming window, natural logarithm of the squared magnitude floored at 0.
 */
[[nodiscard]] std::vector<double> directLogPowerRow(std::span<const int16_t> samples,
                                                    uint64_t frame, const DirectFraming &framing);

/// Checks one row of a computed spectrum against directLogPowerRow(). The FFT works in single
/// precision, so only bins whose power stands well above its rounding are compared.
void expectRowMatchesDirect(const AudioPowerSpectrumInfo &spectrum,
                            std::span<const int16_t> samples, uint64_t frame,
                            const DirectFraming &framing);
