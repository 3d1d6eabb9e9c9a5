#pragma once

#include "AudioHandles.h"
#include "Mono16kResampler.h"

#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <functional>

/**
 * @brief An open sound file whose samples are streamed in chunks, either in the file's own
 * sample format or converted to 16 kHz mono 16-bit.
 *
 * Opening and reading log their own failures (level 2) and return them as status codes: a
 * libsndfile error number or one of AudioDecodeStatus. A sink's non-zero status stops the reading
 * and comes back unchanged and unlogged, since the sink knows best what went wrong.
 */
class SoundFileReader {
public:
    /// Receives each chunk of samples as bytes in native order.
    using ByteSink = std::function<int32_t(QByteArrayView)>;

    explicit SoundFileReader(const QString &path);

    /// 0 when the file is open and holds frames to read.
    [[nodiscard]] int32_t openStatus() const { return m_openStatus; }
    [[nodiscard]] const SF_INFO &info() const { return m_info; }
    /// The bytes each sample takes as stored, for linear PCM; 0 for every other encoding, which
    /// only readConverted() delivers.
    [[nodiscard]] int linearPcmBytesPerSample() const;

    /// Linear PCM only: the samples as stored (interleaved, same width), in native byte order.
    int32_t readOwnFormat(const ByteSink &sink);
    /// Any encoding: the channels averaged into one and resampled to 16 kHz.
    int32_t readConverted(const Mono16kResampler::SampleSink &sink);

private:
    int32_t finishReading(int32_t status, sf_count_t framesRead, bool sinkStopped,
                          const QString &conversionError);

    QString m_path;
    SF_INFO m_info{};
    audio::SndfilePtr m_file;
    int32_t m_openStatus{0};
};
