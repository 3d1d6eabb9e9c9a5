#pragma once

#include <cstdint>

/**
 * @brief Why decoding failed, beyond libsndfile's own error numbers.
 *
 * libsndfile's numbers are positive, so ours are negative; 0 is success everywhere.
 */
namespace AudioDecodeStatus {
/// A channel count, rate or sample width that the record or the converter cannot hold.
inline constexpr int32_t unsupportedFormat = -1;
/// No frames in the file, or none that decoded.
inline constexpr int32_t noAudio = -2;
/// The decoded bytes would not fit the record's signed 32-bit size.
inline constexpr int32_t tooLarge = -3;
/// The stream ends before the length its header gives.
inline constexpr int32_t truncated = -4;
/// The resampler refused the rates or failed while converting.
inline constexpr int32_t conversionFailed = -5;
/// The converted samples could not be written out.
inline constexpr int32_t writeFailed = -6;
} // namespace AudioDecodeStatus
