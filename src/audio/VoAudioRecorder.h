#pragma once

#include "AudioInputFactory.h"
#include "AudioPlayer.h"

#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>
#include <memory>

class RecordingWorker;

/**
 * @brief Records the learner into a 16 kHz mono 16-bit Apple Lossless file, reports the input
 * level every 0.05 s while recording, and plays recordings back.
 *
 * Capture, conversion and file writing run on a thread of their own, so no call here waits for
 * them. A recording's file is complete only once recorderDidFinishRecording has been emitted.
 */
class VoAudioRecorder : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool recording READ isRecording NOTIFY recordingChanged)
    Q_PROPERTY(QString recordedFilePath READ recordedFilePath NOTIFY recordedFilePathChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY recordingFailed)
public:
    /// The level reported for silence, in dB.
    static constexpr float silencePower = -160.0F;

    /// Records from the default input (see defaultAudioInputFactory).
    explicit VoAudioRecorder(QObject *parent = nullptr);
    /// Records from the inputs that `input` makes, one per recording.
    explicit VoAudioRecorder(AudioInputFactory input, QObject *parent = nullptr);
    ~VoAudioRecorder() override;
    VoAudioRecorder(const VoAudioRecorder &) = delete;
    VoAudioRecorder &operator=(const VoAudioRecorder &) = delete;

    /// Starts recording to `path`, replacing the file; nothing happens while already recording.
    Q_INVOKABLE void recordPushed(const QString &path);
    /// Stops recording and playback.
    Q_INVOKABLE void stopPushed();
    /// Plays a file, stopping any recording first; a recording still being finished plays once
    /// its file is complete.
    Q_INVOKABLE void playPushed(const QString &path);

    /// The level poll: the peak of channel 0 since the previous poll, as periodicTimeObserver.
    /// The timer calls it while recording; tests call it to drive time.
    void levelPoll();

    [[nodiscard]] bool isRecording() const { return m_recording; }
    /// Null until something has been played.
    [[nodiscard]] AudioPlayer *player() const { return m_player.get(); }
    [[nodiscard]] const QString &recordedFilePath() const { return m_recordedFilePath; }
    [[nodiscard]] const QString &errorText() const { return m_errorText; }
    [[nodiscard]] float timeInterval() const { return m_timeInterval; }
    [[nodiscard]] bool CAF2MP3() const { return m_CAF2MP3; }
    void setCAF2MP3(bool CAF2MP3) { m_CAF2MP3 = CAF2MP3; }

    /// A peak magnitude (1 = full scale) in dB, from silencePower up to 0.
    [[nodiscard]] static float powerFromPeak(float peak);

Q_SIGNALS:
    /// Every level poll while recording: the peak of channel 0 in dB, and the polling interval.
    void periodicTimeObserver(float powerVal, float interval);
    /// A recording has ended and its file is closed; also sent, unsuccessful, when one could
    /// not start.
    void recorderDidFinishRecording(bool successfully);
    void recordingChanged();
    void recordedFilePathChanged();
    /// A recording failed or could not start; the message is meant for the learner.
    void recordingFailed(const QString &message);

private:
    void stopRecording();
    void stopPlayer();
    void play(const QString &path);
    void ended(quint64 session, bool successfully, const QString &error);

    QThread m_thread;
    /// Lives on m_thread and is deleted there when the thread finishes.
    RecordingWorker *m_worker{nullptr};
    QTimer m_timer;
    std::unique_ptr<AudioPlayer> m_player;
    QString m_recordedFilePath;
    QString m_errorText;
    /// A file asked to play while its recording was still being finished.
    QString m_pendingPlay;
    float m_timeInterval{0.05F};
    quint64 m_session{0};
    /// Recordings started whose end has not been reported yet.
    int m_unfinished{0};
    bool m_recording{false};
    bool m_CAF2MP3{false};
};
