#pragma once

#include "EndOfSpeech.h"
#include "audio/MicrophonePermission.h"
#include "speaking/PhraseRecording.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <optional>

class AudioPlayer;
class PhraseInfo;

/**
 * @brief Hands-free shadowing of a category: each phrase plays, the learner says it after the
 * model, the take ends when they fall silent, the mark and coloured words show for a moment,
 * and the next phrase follows, to the end of the category.
 *
 * Pausing drops the phrase under way; resuming starts that phrase again from its model
 * recording, so a pause never leaves half a take to be marked. Every take that was marked counts
 * as a reading.
 */
class ShadowingVC : public QObject {
    Q_OBJECT
    QML_ELEMENT
public:
    enum class Stage { Listening, Speaking, Marking, Showing, Finished };
    Q_ENUM(Stage)

private:
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)
    Q_PROPERTY(bool paused READ paused NOTIFY pausedChanged)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY phraseChanged)
    Q_PROPERTY(int phraseCount READ phraseCount NOTIFY phraseChanged)
    Q_PROPERTY(QString phraseText READ phraseText NOTIFY phraseChanged)
    Q_PROPERTY(QString translation READ translation NOTIFY phraseChanged)
    /// What is happening now, in a few words for the learner.
    Q_PROPERTY(QString stageText READ stageText NOTIFY stageChanged)
    /// The learner's reading of the current phrase; its comparison holds the mark and words.
    Q_PROPERTY(PhraseRecording *recording READ recording CONSTANT)
    Q_PROPERTY(MicrophonePermission *permission READ permission CONSTANT)
    /// How long a mark stays on screen before the next phrase, in milliseconds.
    Q_PROPERTY(int showMilliseconds READ showMilliseconds WRITE setShowMilliseconds NOTIFY
                   showMillisecondsChanged)

public:
    explicit ShadowingVC(QObject *parent = nullptr);
    ~ShadowingVC() override;

    /// Starts at the phrase of the category at that index. False, with nothing started, when
    /// the category has no such phrase or there is no microphone (then the alert is due).
    Q_INVOKABLE bool start(const QString &categoryId, int index);
    /// A key or a tap: pauses, or resumes the phrase that was under way.
    Q_INVOKABLE void togglePause();
    /// Leaving the screen: stops playing and recording, marks nothing more.
    Q_INVOKABLE void stop();

    [[nodiscard]] Stage stage() const { return m_stage; }
    [[nodiscard]] bool paused() const { return m_paused; }
    [[nodiscard]] int currentIndex() const { return m_index; }
    [[nodiscard]] int phraseCount() const { return static_cast<int>(m_phrases.size()); }
    [[nodiscard]] QString phraseText() const;
    [[nodiscard]] QString translation() const;
    [[nodiscard]] QString stageText() const;
    [[nodiscard]] PhraseRecording *recording() { return &m_recording; }
    [[nodiscard]] MicrophonePermission *permission() { return &m_permission; }
    [[nodiscard]] int showMilliseconds() const { return m_showTimer.interval(); }
    void setShowMilliseconds(int milliseconds);

    /// The longest take for a model recording of that length: twice it, and never less than
    /// the time a learner needs to begin.
    [[nodiscard]] static double takeCap(double modelSeconds);

Q_SIGNALS:
    void stageChanged();
    void pausedChanged();
    void phraseChanged();
    void showMillisecondsChanged();
    /// A take has been marked; the view shows the comparison's words.
    void marked();

private:
    void setStage(Stage stage);
    void setPaused(bool paused);
    void listen();
    void speak(double modelSeconds);
    void heard(float power, float interval);
    void mark();
    void next();
    void halt();
    [[nodiscard]] const PhraseInfo *phrase() const;

    QList<PhraseInfo *> m_phrases;
    int m_index{0};
    Stage m_stage{Stage::Finished};
    bool m_paused{false};
    std::unique_ptr<AudioPlayer> m_player;
    PhraseRecording m_recording;
    MicrophonePermission m_permission;
    std::optional<EndOfSpeech> m_endOfSpeech;
    std::shared_ptr<SpectrumCompView> m_comparison;
    QTimer m_showTimer;
    QMetaObject::Connection m_waitForRecorder;
};
