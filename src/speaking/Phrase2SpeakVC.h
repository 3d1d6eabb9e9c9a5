#pragma once

#include "PhraseRecording.h"
#include "audio/MicrophonePermission.h"
#include "quiz/BaseQuizViewController.h"

#include <memory>
#include <vector>

/**
 * @brief "Read Phrase": the learner reads each phrase aloud while holding the microphone button;
 * on release the recording is compared with the phrase's model and marked out of 10.
 *
 * Submitting adds the current question's mark to the score, so a question submitted without a
 * recording scores 0 and a second recording replaces the first mark. Only progress is shown
 * while asking; each result row can show its question's last comparison again, as it was, with
 * nothing recomputed.
 */
class Phrase2SpeakVC : public BaseQuizViewController {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(PhraseRecording *recording READ recording CONSTANT)
    Q_PROPERTY(MicrophonePermission *permission READ permission CONSTANT)
    /// The comparison to show: the current question's, or a result row's; null while there is
    /// none.
    Q_PROPERTY(
        SpectrumCompView *spectrumCompView READ spectrumCompView NOTIFY spectrumCompViewChanged)
    Q_PROPERTY(int currWordScore READ currWordScore NOTIFY currWordScoreChanged)
    /// True while the current question's reading is being compared: Submit waits for its mark.
    Q_PROPERTY(bool markPending READ markPending NOTIFY markPendingChanged)
    /// "Tap and hold to speak." until the first recording of the screen, then empty.
    Q_PROPERTY(QString tipText READ tipText NOTIFY tipTextChanged)

public:
    explicit Phrase2SpeakVC(QObject *parent = nullptr);
    explicit Phrase2SpeakVC(QRandomGenerator &random, QObject *parent = nullptr);
    ~Phrase2SpeakVC() override;

    /// Checks the microphone; true when access is denied and the alert is due.
    Q_INVOKABLE bool checkMicrophone();
    /// The microphone button is pressed: records the current question's phrase.
    Q_INVOKABLE void beginRecordAction();
    /// The microphone button is released: stops and compares.
    Q_INVOKABLE void endRecordAction();
    /// Adds the current mark to the score and moves on; nothing while the mark is pending.
    void submitAction() override;
    /// Shows a result row's comparison again, as last made; nothing for a question never
    /// recorded.
    Q_INVOKABLE void showSpectrums(int row);
    /// A result row's mark as "7/10", "-" for a question not submitted.
    [[nodiscard]] Q_INVOKABLE QString markText(int row) const;
    [[nodiscard]] Q_INVOKABLE bool hasVoiceprint(int row) const;
    /// A result row's phrase with its words coloured by the last reading's check, and the
    /// verdicts in words; empty for a question whose reading was not checked.
    [[nodiscard]] Q_INVOKABLE QString wordsText(int row) const;
    [[nodiscard]] Q_INVOKABLE QString wordsAccessibleText(int row) const;
    /// For leaving the screen: the recorder stops too.
    void viewWillDisappear() override;

    [[nodiscard]] PhraseRecording *recording() { return &m_audioRecorder; }
    [[nodiscard]] MicrophonePermission *permission() { return &m_permission; }
    [[nodiscard]] SpectrumCompView *spectrumCompView() const { return m_shown; }
    [[nodiscard]] int currWordScore() const { return m_currWordScore; }
    [[nodiscard]] bool markPending() const;
    [[nodiscard]] QString tipText() const;
    [[nodiscard]] const QString &myVoicePath() const { return m_audioRecorder.path(); }

Q_SIGNALS:
    void spectrumCompViewChanged();
    /// A comparison is to be shown in the pop-up: after a recording, or from a result row.
    void comparisonShown();
    void currWordScoreChanged();
    void markPendingChanged();
    void tipTextChanged();

protected:
    void showCurrentQuestion() override;
    void finishQuiz() override;
    [[nodiscard]] int answerPoints() const override { return m_currWordScore; }

private:
    void setCurrWordScore(int score);
    void setShown(SpectrumCompView *comparison);
    /// The current question's comparison, closed before its mark came: the attempt is dropped
    /// and the question is left as if it had not been read.
    void dropPendingComparison(SpectrumCompView *comparison);

    PhraseRecording m_audioRecorder;
    MicrophonePermission m_permission;

    /// The last comparison of each question, by question index.
    std::vector<std::shared_ptr<SpectrumCompView>> m_comparisons;
    /// The submitted mark of each question, -1 until submitted.
    std::vector<int> m_marks;
    SpectrumCompView *m_shown{nullptr};
    int m_currWordScore{0};
    bool m_tipShown{true};
    /// Between a press of the microphone button and its release.
    bool m_pressed{false};
};
