#pragma once

#include "FrontEndFraming.h"
#include "audio/AudioPowerSpectrumInfo.h"

#include <cstdint>
#include <span>

/**
 * The log power spectrum of the first frameCount frames of the samples, framed and prepared as
 * the front end does (see FrontEndFraming): per frame the squared FFT magnitudes of bins 0..127
 * (bins past FFT size / 2 stay 0), before any filter bank, as natural logarithms floored at 0.
 *
 * One row more than frameCount is allocated and left 0, as the decoder's own feature buffer
 * holds one row more than the frames of an utterance. Unusable framing gives an empty record.
 */
[[nodiscard]] AudioPowerSpectrumInfo logPowerSpectrum(std::span<const int16_t> samples,
                                                      uint64_t frameCount,
                                                      const FrontEndFraming &framing);
