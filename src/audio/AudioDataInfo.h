#pragma once

#include <QByteArray>
#include <cstdint>

/**
 * @brief Decoded audio: the PCM bytes and what the decoder learned of the file.
 *
 * The fields keep the widths and meanings the recogniser and the WAV reader rely on. `size`
 * counts exactly the bytes in `data`, so size / 2 samples can always be read from it; the other
 * fields describe the file, not the delivered samples (see VoAudioUtil). The record owns its
 * bytes.
 */
struct AudioDataInfo {
    int32_t size{0};
    QByteArray data;
    int16_t channels{0};
    int16_t block_align{0};
    int16_t bits_per_sample{0};
    uint64_t sample_rate{0};
    uint64_t format_length{0};
    uint64_t format_tag{0};
    uint64_t avg_bytes_sec{0};
};
