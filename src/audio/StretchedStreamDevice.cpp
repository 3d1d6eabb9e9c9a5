#include "StretchedStreamDevice.h"

#include "StretchedStream.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <span>

StretchedStreamDevice::StretchedStreamDevice(StretchedStream &stream, Samples samples,
                                             QObject *parent)
    : QIODevice(parent)
    , m_stream(stream)
    , m_samples(samples)
{}

qint64 StretchedStreamDevice::readData(char *data, qint64 maxSize)
{
    const auto channels = static_cast<qint64>(m_stream.channels());
    const qint64 sampleBytes = m_samples == Samples::float32 ? 4 : 2;
    const auto frames = static_cast<size_t>(maxSize / (channels * sampleBytes));
    if (frames == 0 || m_exhausted)
        return 0;

    const size_t samples = frames * static_cast<size_t>(channels);
    if (m_scratch.size() < samples)
        m_scratch.resize(samples);
    const qsizetype read = m_stream.read(std::span(m_scratch.data(), samples));
    m_exhausted = read == 0;
    const auto count = static_cast<size_t>(read * channels);
    // The sink's buffer need not be aligned for samples, so they are copied in as bytes.
    if (m_samples == Samples::float32) {
        std::memcpy(data, m_scratch.data(), count * sizeof(float));
    } else {
        for (size_t i = 0; i < count; ++i) {
            const auto value =
                static_cast<int16_t>(std::lrint(std::clamp(m_scratch[i], -1.0F, 1.0F) * 32767.0F));
            std::memcpy(data + i * sizeof(value), &value, sizeof(value));
        }
    }
    return static_cast<qint64>(count) * sampleBytes;
}
