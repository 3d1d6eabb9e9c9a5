#pragma once

#include "AudioHandles.h"

#include <QString>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

/**
 * @brief Converts mono float samples at any rate to 16 kHz 16-bit and hands them on in chunks.
 *
 * No dither is added, so the same input always gives the same samples.
 */
class Mono16kResampler {
public:
    static constexpr int outputRate = 16000;
    /// Receives each chunk of output; a non-zero status stops the conversion and is passed back.
    using SampleSink = std::function<int32_t(std::span<const int16_t>)>;

    Mono16kResampler(double inputRate, SampleSink sink);

    /// False when the resampler could not be set up for the rate; error() says why.
    [[nodiscard]] bool isValid() const { return m_soxr != nullptr; }
    [[nodiscard]] const QString &error() const { return m_error; }

    /// 0, the sink's status, or AudioDecodeStatus::conversionFailed.
    int32_t push(std::span<const float> samples);
    /// Hands on what the filter still holds; call once, after the last push.
    int32_t finish();

private:
    int32_t process(const float *input, size_t count);

    audio::SoxrPtr m_soxr;
    SampleSink m_sink;
    std::vector<int16_t> m_output;
    QString m_error;
};
