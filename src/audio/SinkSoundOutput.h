#pragma once

#include "SoundOutput.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QThread>
#include <memory>
#include <optional>

class SinkWorker;
class StretchedStream;

/**
 * @brief The output to a sound device: a QAudioSink on a thread of its own pulls the stretched
 * stream, so decoding and stretching never wait for the UI thread, nor it for them.
 *
 * Every call posts its work to that thread and returns at once.
 */
class SinkSoundOutput final : public SoundOutput {
    Q_OBJECT
public:
    /// How the device takes the stream's samples: 32-bit float, else 16-bit; none when it takes
    /// neither at the stream's rate and channel count.
    [[nodiscard]] static std::optional<QAudioFormat> formatFor(const QAudioDevice &device,
                                                               const StretchedStream &stream);

    SinkSoundOutput(std::unique_ptr<StretchedStream> stream, const QAudioDevice &device,
                    const QAudioFormat &format, QObject *parent = nullptr);
    ~SinkSoundOutput() override;
    SinkSoundOutput(const SinkSoundOutput &) = delete;
    SinkSoundOutput &operator=(const SinkSoundOutput &) = delete;

    void play() override;
    void pause() override;
    void seek(double seconds) override;
    void setRate(float rate) override;
    void setVolume(float volume) override;
    void setExtraPlays(int plays) override;

private:
    template <typename Work> void post(Work work);

    QThread m_thread;
    /// Lives on m_thread and is deleted there when the thread finishes.
    SinkWorker *m_worker{nullptr};
    /// Counts the seeks posted, so that an end the worker reported before the latest seek is
    /// known to be stale.
    quint64 m_seeks{0};
};
