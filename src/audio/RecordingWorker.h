#pragma once

#include "AudioInput.h"
#include "RecordingWriter.h"

#include <QObject>
#include <atomic>
#include <memory>

/**
 * @brief The recording thread's side of VoAudioRecorder: the input, the conversion and the file.
 *
 * Its slots run on that thread; takePeak() is the one call made from another thread.
 */
class RecordingWorker : public QObject {
    Q_OBJECT
public:
    explicit RecordingWorker(AudioInputFactory factory);
    /// A recording still running is finished, so that its file reads back whole.
    ~RecordingWorker() override;
    RecordingWorker(const RecordingWorker &) = delete;
    RecordingWorker &operator=(const RecordingWorker &) = delete;

    /// Replaces the file at `path` with a new recording; `session` tags the end report.
    void start(quint64 session, const QString &path);
    /// Finishes the running recording, if any.
    void stop();

    /// The highest magnitude of channel 0 since the last call, 0 to 1; safe from any thread.
    float takePeak() { return m_peak.exchange(0.0F); }

Q_SIGNALS:
    /// The recording of `session` has ended and its file is closed; `error` says what failed.
    void ended(quint64 session, bool successfully, const QString &error);

private:
    void write(const QByteArray &pcm);
    void inputLost(const QString &reason);
    enum class Take { Keep, Discard };
    void end(bool successfully, QString error, Take take = Take::Keep);
    void raisePeak(float peak);

    AudioInputFactory m_factory;
    std::unique_ptr<AudioInput> m_input;
    std::unique_ptr<RecordingWriter> m_writer;
    quint64 m_session{0};
    QString m_path;
    std::atomic<float> m_peak{0.0F};
};
