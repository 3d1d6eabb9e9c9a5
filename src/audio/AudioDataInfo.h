#pragma once

#include <QByteArray>
#include <cstdint>

/**
 * @brief Decoded audio: the PCM bytes and what the decoder learned of the file.
 *
 * The fields keep the widths and meanings the recogniser and the WAV reader rely on; `size` is
 * the byte count the decoder expected, which may exceed the bytes actually in `data` (see
 * VoAudioUtil). The record owns its bytes.
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
