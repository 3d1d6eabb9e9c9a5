#pragma once

#include "audio/AudioPowerSpectrumInfo.h"

#include <cstdint>

/// A spectrum of `frames` columns, every bin at half the maximum: a mid grey picture.
inline AudioPowerSpectrumInfo evenSpectrum(uint64_t frames)
{
    AudioPowerSpectrumInfo spectrum;
    spectrum.frameCount = frames;
    spectrum.rowCount = frames;
    spectrum.powerData.assign(frames * AudioPowerSpectrumInfo::bins, 1.0);
    spectrum.maxPower = 2.0;
    return spectrum;
}
