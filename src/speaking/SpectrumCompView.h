#pragma once

#include "audio/VoSpectrumPanel.h"
#include "speech/verify/ReadingVerification.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

class AudioPlayer;
class PhraseInfo;
struct RecordingComparison;

/**
 * @brief The comparison pop-up: the model's recording of a phrase above the learner's, each as a
 * spectrum with its own player bar, and the learner's mark out of 10.
 *
 * runComparison() generates the phrase's model when it is missing and recognises both
 * recordings on the speech worker thread, one job at a time, so the UI never waits; busy is
 * true until every result is in. The learner's recording is recognised once: that result gives
 * the lower spectrum and the mark, and arrives before the model recording's spectrum.
 */
class SpectrumCompView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString standardText READ standardText WRITE setStandardText NOTIFY fieldsChanged)
    Q_PROPERTY(QString standardAudioFilePath READ standardAudioFilePath WRITE
                   setStandardAudioFilePath NOTIFY fieldsChanged)
    Q_PROPERTY(QString languageModelPath READ languageModelPath WRITE setLanguageModelPath NOTIFY
                   fieldsChanged)
    Q_PROPERTY(
        QString dictionaryPath READ dictionaryPath WRITE setDictionaryPath NOTIFY fieldsChanged)
    Q_PROPERTY(QString estimatedAudioFilePath READ estimatedAudioFilePath WRITE
                   setEstimatedAudioFilePath NOTIFY fieldsChanged)
    Q_PROPERTY(QString translateText READ translateText WRITE setTranslateText NOTIFY fieldsChanged)
    Q_PROPERTY(VoSpectrumPanel *standardSpectrumPanel READ standardSpectrumPanel CONSTANT)
    Q_PROPERTY(VoSpectrumPanel *estimatedSpectrumPanel READ estimatedSpectrumPanel CONSTANT)
    /// The mark, 0..10; 0 until scored.
    Q_PROPERTY(int score READ score NOTIFY scoreChanged)
    /// True once the learner's recording has been scored.
    Q_PROPERTY(bool scored READ scored NOTIFY scoreChanged)
    /// "Score: 7/10" with the digits coloured and bold (rich text for a label).
    Q_PROPERTY(QString scoreStyledText READ scoreStyledText NOTIFY scoreChanged)
    Q_PROPERTY(QColor scoreColor READ scoreColor NOTIFY scoreChanged)
    /// Whether the pop-up shows the score label (testedWordScoreLbl); the phrase cards hide it.
    Q_PROPERTY(bool testedWordScoreVisible READ testedWordScoreVisible WRITE
                   setTestedWordScoreVisible NOTIFY testedWordScoreVisibleChanged)
    /// True from runComparison() until both recordings are recognised.
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
    /// The phrase with each word in the colour of its verdict (styled text); empty until the
    /// learner's reading is checked.
    Q_PROPERTY(QString wordsText READ wordsText NOTIFY scoreChanged)
    /// The verdicts in words, for screen readers.
    Q_PROPERTY(QString wordsAccessibleText READ wordsAccessibleText NOTIFY scoreChanged)
    /// One line on the word that went worst; empty when every word was heard well.
    Q_PROPERTY(QString tipText READ tipText NOTIFY scoreChanged)
    /// Why the comparison could not be made, for the learner; empty when it could.
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)

public:
    static constexpr int standardPanelTag = 1979;
    static constexpr int estimatedPanelTag = 1985;

    explicit SpectrumCompView(QObject *parent = nullptr);
    ~SpectrumCompView() override;

    /// Fills the phrase's fields: its German text, its model recording, its translation.
    void setPhrase(const PhraseInfo &phrase);

    /// Starts the model generation (when missing) and both recognitions on the speech worker.
    Q_INVOKABLE void runComparison();
    /// Lets only the panel whose player has just started follow it, and resets the other.
    Q_INVOKABLE void playPreHandle(AudioPlayer *player, VoSpectrumPanel *panel);
    /// Stops both players; the view then closes the pop-up.
    Q_INVOKABLE void closeAction();

    [[nodiscard]] const QString &standardText() const { return m_standardText; }
    void setStandardText(const QString &text);
    [[nodiscard]] const QString &standardAudioFilePath() const { return m_standardAudioFilePath; }
    void setStandardAudioFilePath(const QString &path);
    [[nodiscard]] const QString &languageModelPath() const { return m_languageModelPath; }
    void setLanguageModelPath(const QString &path);
    [[nodiscard]] const QString &dictionaryPath() const { return m_dictionaryPath; }
    void setDictionaryPath(const QString &path);
    [[nodiscard]] const QString &estimatedAudioFilePath() const { return m_estimatedAudioFilePath; }
    void setEstimatedAudioFilePath(const QString &path);
    [[nodiscard]] const QString &translateText() const { return m_translateText; }
    void setTranslateText(const QString &text);
    [[nodiscard]] VoSpectrumPanel *standardSpectrumPanel() { return &m_standardSpectrumPanel; }
    [[nodiscard]] VoSpectrumPanel *estimatedSpectrumPanel() { return &m_estimatedSpectrumPanel; }
    [[nodiscard]] int score() const { return m_score; }
    [[nodiscard]] bool scored() const { return m_scored; }
    [[nodiscard]] QString scoreStyledText() const;
    /// Red below 5, orange from 5, green from 8.
    [[nodiscard]] QColor scoreColor() const;
    [[nodiscard]] bool testedWordScoreVisible() const { return m_testedWordScoreVisible; }
    void setTestedWordScoreVisible(bool visible);
    [[nodiscard]] bool busy() const { return m_busy; }
    [[nodiscard]] const QString &errorText() const { return m_errorText; }
    [[nodiscard]] QString wordsText() const;
    [[nodiscard]] QString wordsAccessibleText() const;
    [[nodiscard]] QString tipText() const;
    /// The acoustic check of the learner's reading; not succeeded until it is in.
    [[nodiscard]] const ReadingVerification &verification() const { return m_verification; }
    /// The scorer's advices on the learner's recording ("no_voice", "words_score", ...).
    [[nodiscard]] const QVariantMap &advices() const { return m_advices; }

Q_SIGNALS:
    void fieldsChanged();
    /// The mark is known (score and scored have changed).
    void scoreChanged();
    void testedWordScoreVisibleChanged();
    void busyChanged();
    void errorTextChanged();
    /// Both recognitions are done (or failed): busy has just turned false.
    void compared();
    /// The pop-up showing this comparison was closed.
    void closed();

private:
    void setBusy(bool busy);
    void setErrorText(const QString &text);
    void storeModel(const RecordingComparison &comparison);
    /// The learner's recording: the lower spectrum and the mark.
    void showEstimated(const QString &recordingPath, const RecordingComparison &comparison);
    /// The model recording: the upper spectrum; the comparison is then complete.
    void showStandard(const QString &recordingPath, const RecordingComparison &comparison);

    QString m_standardText;
    /// The phrase's IPA, for naming a weak sound.
    QString m_standardPhon;
    QString m_standardAudioFilePath;
    QString m_languageModelPath;
    QString m_dictionaryPath;
    QString m_estimatedAudioFilePath;
    QString m_translateText;
    VoSpectrumPanel m_standardSpectrumPanel;
    VoSpectrumPanel m_estimatedSpectrumPanel;
    int m_score{0};
    bool m_scored{false};
    bool m_testedWordScoreVisible{true};
    bool m_busy{false};
    QString m_errorText;
    QVariantMap m_advices;
    ReadingVerification m_verification;
};
