#pragma once

#include <QIODevice>
#include <vector>

class StretchedStream;

/**
 * @brief Hands a stretched stream to an audio sink that pulls: 32-bit float or 16-bit samples
 * in the stream's own rate and channels.
 *
 * Lives on the thread that pulls; the stream is the caller's and outlives the device.
 */
class StretchedStreamDevice final : public QIODevice {
    Q_OBJECT
public:
    enum class Samples { float32, int16 };

    StretchedStreamDevice(StretchedStream &stream, Samples samples, QObject *parent = nullptr);

    [[nodiscard]] bool isSequential() const override { return true; }
    /// True once the stream has given its last sample.
    [[nodiscard]] bool atEnd() const override { return m_exhausted; }
    /// Reading starts again, after the stream has been moved.
    void rewound() { m_exhausted = false; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    StretchedStream &m_stream;
    Samples m_samples;
    std::vector<float> m_scratch;
    bool m_exhausted{false};
};
