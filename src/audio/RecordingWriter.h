#pragma once

#include "AudioHandles.h"
#include "Mono16kResampler.h"

#include <QAudioFormat>
#include <QByteArrayView>
#include <QString>
#include <memory>
#include <vector>

/**
 * @brief Turns captured PCM of any format into a 16 kHz mono 16-bit recording on disk: Apple
 * Lossless in CAF, or plain PCM when the path ends in ".wav".
 *
 * Channels are averaged into one. Not thread-safe; one writer makes one file.
 */
class RecordingWriter {
public:
    /// Creates the file (and its folder) for input in `format`; empty on success, else why not.
    QString open(const QString &path, const QAudioFormat &format);
    /// Converts and writes whole frames; false once anything failed (error() says what).
    bool write(QByteArrayView pcm);
    /// Writes what the converter still holds and closes the file so that it reads back whole.
    bool finish();

    [[nodiscard]] const QString &error() const { return m_error; }
    /// Seconds of sound written so far.
    [[nodiscard]] double seconds() const
    {
        return m_format.sampleRate() > 0 ? static_cast<double>(m_frames) / m_format.sampleRate()
                                         : 0.0;
    }
    /// The highest magnitude of channel 0 in the last write, 0 to 1 of full scale.
    [[nodiscard]] float lastPeak() const { return m_lastPeak; }

private:
    bool fail(const QString &what);

    QString m_path;
    QAudioFormat m_format;
    audio::SndfilePtr m_file;
    std::unique_ptr<Mono16kResampler> m_resampler;
    std::vector<float> m_mono;
    QString m_error;
    float m_lastPeak{0.0F};
    qint64 m_frames{0};
};
