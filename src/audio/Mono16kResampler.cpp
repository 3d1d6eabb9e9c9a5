#include "Mono16kResampler.h"

#include "AudioDecodeStatus.h"

namespace {
constexpr size_t outputChunkSamples = 4096;
} // namespace

Mono16kResampler::Mono16kResampler(double inputRate, SampleSink sink)
    : m_sink(std::move(sink))
    , m_output(outputChunkSamples)
{
    soxr_io_spec_t io = soxr_io_spec(SOXR_FLOAT32_I, SOXR_INT16_I);
    io.flags |= SOXR_NO_DITHER;
    const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
    soxr_error_t error = nullptr;
    m_soxr.reset(soxr_create(inputRate, outputRate, 1, &error, &io, &quality, nullptr));
    if (!m_soxr)
        m_error = QString::fromUtf8(error ? error : "no resampler");
}

int32_t Mono16kResampler::push(std::span<const float> samples)
{
    return samples.empty() ? 0 : process(samples.data(), samples.size());
}

int32_t Mono16kResampler::finish()
{
    return process(nullptr, 0);
}

// soxr takes only as much input as fits the output chunk, so it is fed until it has taken all;
// without input it gives out what its filter still holds, until nothing is left.
int32_t Mono16kResampler::process(const float *input, size_t count)
{
    size_t offset = 0;
    for (;;) {
        size_t taken = 0;
        size_t produced = 0;
        const soxr_error_t error =
            soxr_process(m_soxr.get(), input ? input + offset : nullptr, count - offset, &taken,
                         m_output.data(), m_output.size(), &produced);
        if (error) {
            m_error = QString::fromUtf8(error);
            return AudioDecodeStatus::conversionFailed;
        }
        offset += taken;
        if (produced > 0) {
            if (const int32_t status = m_sink(std::span(m_output.data(), produced)))
                return status;
        }
        if (input ? offset == count : produced == 0)
            return 0;
        if (taken == 0 && produced == 0) {
            m_error = QStringLiteral("the resampler took no input");
            return AudioDecodeStatus::conversionFailed;
        }
    }
}
