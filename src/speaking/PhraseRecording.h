#pragma once

#include "SpectrumCompView.h"
#include "audio/VoAudioRecorder.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>

class PhraseInfo;

/**
 * @brief The learner reading one phrase aloud, then the comparison of that recording with the
 * phrase's model recording; the speaking quiz and the phrase cards share it.
 *
 * The comparison is made as soon as the button is released, so the view can show it (busy) at
 * once, but it only starts recognising when the recorder reports the file complete. While
 * recording, `level` follows the input for a meter.
 */
class PhraseRecording : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool recording READ recording NOTIFY recordingChanged)
    /// The input level, 0 (-60 dB and below) to 1 (0 dB); 0 when not recording.
    Q_PROPERTY(qreal level READ level NOTIFY levelChanged)
    /// The comparison of the last recording; null before the first.
    Q_PROPERTY(SpectrumCompView *comparison READ comparison NOTIFY comparisonChanged)
    /// Why the last recording could not be made; empty when it could.
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)

public:
    /// The level at and below which the meter shows nothing, in dB.
    static constexpr float quietPower = -60.0F;

    explicit PhraseRecording(QObject *parent = nullptr);
    ~PhraseRecording() override;

    /// Starts recording the learner to the phrase's file in the record folder, replacing an
    /// earlier attempt. Returns the file's path; empty (and errorText says why) when there is
    /// nowhere to record to, or while already recording.
    QString begin(const PhraseInfo &phrase);
    /// Stops recording and makes the recording's comparison with the phrase begun last; null
    /// when nothing was begun.
    std::shared_ptr<SpectrumCompView> end();
    /// For leaving the screen: stops recording and playback.
    void stop();

    /// The file a phrase's recording goes to: record folder + id + ".caf".
    [[nodiscard]] static QString recordPath(const PhraseInfo &phrase);
    /// Maps a power in dB to the meter's 0..1.
    [[nodiscard]] static qreal levelFromPower(float powerVal);

    [[nodiscard]] bool recording() const { return m_recorder.isRecording(); }
    [[nodiscard]] qreal level() const { return m_level; }
    [[nodiscard]] SpectrumCompView *comparison() const { return m_comparison.get(); }
    [[nodiscard]] const QString &errorText() const { return m_errorText; }
    /// The file of the last recording begun; empty before the first.
    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] VoAudioRecorder &recorder() { return m_recorder; }

Q_SIGNALS:
    void recordingChanged();
    void levelChanged();
    void comparisonChanged();
    void errorTextChanged();

private:
    void setLevel(qreal level);
    void setErrorText(const QString &text);
    /// Runs the waiting comparison once its recording is complete.
    void compareWhenRecorded();

    VoAudioRecorder m_recorder;
    const PhraseInfo *m_phrase{nullptr};
    QString m_path;
    std::shared_ptr<SpectrumCompView> m_comparison;
    /// The comparison whose recording has not been reported complete yet.
    std::shared_ptr<SpectrumCompView> m_waiting;
    /// Counted so that the comparison waits for its own recording, not an earlier one still
    /// being finished.
    quint64 m_started{0};
    quint64 m_finished{0};
    quint64 m_waitingFor{0};
    qreal m_level{0.0};
    QString m_errorText;
};
