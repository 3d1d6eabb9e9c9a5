#pragma once

#include "audio/MicrophonePermission.h"
#include "speaking/PhraseRecording.h"

#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>
#include <memory>

class AudioPlayer;
class CategoryInfo;
class PhraseInfo;

/**
 * @brief The phrase cards: one phrase of a category at a time with its picture, its recording,
 * steps to the previous and the next phrase, and a toggle that hides the German text.
 *
 * Every time a phrase's recording is played, shown or replayed, the learner's listening counter
 * grows at once, and every reading recorded grows the reading counter, so leaving the screen
 * loses nothing. A reading is compared with the phrase's model without a mark: the cards are
 * for practice. Button pictures are exposed by name
 * ("btn-last", "btn-last2", ...); the "2" forms are the greyed ones of a disabled button.
 */
class PhraseCardVC : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(bool hasPhrase READ hasPhrase NOTIFY phraseChanged)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY phraseChanged)
    Q_PROPERTY(int phraseCount READ phraseCount NOTIFY phraseChanged)
    Q_PROPERTY(QString phraseText READ phraseText NOTIFY phraseChanged)
    Q_PROPERTY(QString phonetics READ phonetics NOTIFY phraseChanged)
    Q_PROPERTY(QString translation READ translation NOTIFY translationChanged)
    Q_PROPERTY(QUrl image READ image NOTIFY phraseChanged)
    Q_PROPERTY(bool phraseHidden READ phraseHidden NOTIFY phraseHiddenChanged)
    Q_PROPERTY(QString lookImage READ lookImage NOTIFY phraseHiddenChanged)
    Q_PROPERTY(QString lastItemImage READ lastItemImage NOTIFY buttonsChanged)
    Q_PROPERTY(bool lastItemEnabled READ lastItemEnabled NOTIFY buttonsChanged)
    Q_PROPERTY(QString nextItemImage READ nextItemImage NOTIFY buttonsChanged)
    Q_PROPERTY(bool nextItemEnabled READ nextItemEnabled NOTIFY buttonsChanged)
    /// The learner's reading of the phrase and its comparison.
    Q_PROPERTY(PhraseRecording *recording READ recording CONSTANT)
    Q_PROPERTY(MicrophonePermission *permission READ permission CONSTANT)

public:
    explicit PhraseCardVC(QObject *parent = nullptr);
    ~PhraseCardVC() override;

    /// Shows the phrase at the index of the category and plays it. An unknown category or an
    /// index outside it leaves an empty card with both steps disabled, and logs one line.
    Q_INVOKABLE void open(const QString &categoryId, int index);

    /// Plays the current phrase's recording again.
    Q_INVOKABLE void play();
    /// Steps back one phrase; on the first phrase only the buttons change.
    Q_INVOKABLE void lastItem();
    /// Steps on one phrase; on the last phrase only the buttons change.
    Q_INVOKABLE void nextItem();
    Q_INVOKABLE void toggleLook();
    /// The record button is pressed: silences the phrase, checks the microphone and records.
    /// Returns false when access is denied and the alert is due; nothing is recorded then.
    Q_INVOKABLE bool beginRecord();
    /// The record button is released: stops recording, shows the comparison and counts a
    /// reading.
    Q_INVOKABLE void endRecord();
    /// For leaving the screen: silences the recording and stops the recorder.
    Q_INVOKABLE void stopPlaying();

    /// The category's name in the learner's language.
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool hasPhrase() const { return m_phraseInfo != nullptr; }
    /// -1 while no phrase is shown.
    [[nodiscard]] int currentIndex() const;
    [[nodiscard]] int phraseCount() const;
    /// The phrase in German.
    [[nodiscard]] QString phraseText() const;
    [[nodiscard]] QString phonetics() const;
    /// The phrase in the learner's language.
    [[nodiscard]] QString translation() const;
    /// The phrase's picture; empty when the course has none for it.
    [[nodiscard]] QUrl image() const;
    [[nodiscard]] bool phraseHidden() const { return m_phraseHidden; }
    [[nodiscard]] QString lookImage() const;
    [[nodiscard]] QString lastItemImage() const { return m_lastItemBtn.image; }
    [[nodiscard]] bool lastItemEnabled() const { return m_lastItemBtn.enabled; }
    [[nodiscard]] QString nextItemImage() const { return m_nextItemBtn.image; }
    [[nodiscard]] bool nextItemEnabled() const { return m_nextItemBtn.enabled; }
    [[nodiscard]] PhraseRecording *recording() { return &m_audioRecorder; }
    [[nodiscard]] MicrophonePermission *permission() { return &m_permission; }
    [[nodiscard]] const QString &myVoicePath() const { return m_audioRecorder.path(); }

Q_SIGNALS:
    void titleChanged();
    void phraseChanged();
    void translationChanged();
    void phraseHiddenChanged();
    void buttonsChanged();
    /// A reading's comparison is to be shown in the pop-up (recording.comparison).
    void comparisonShown();

private:
    struct ItemButton {
        QString image;
        bool enabled{false};
    };

    void showPhrase(PhraseInfo *phrase);
    void stopAudio();
    void setLastItemEnabled(bool enabled);
    void setNextItemEnabled(bool enabled);
    /// The disabled form of a picture is its greyed "2" form.
    void setItemButton(ItemButton &button, const QString &image, bool enabled);
    [[nodiscard]] const QList<PhraseInfo *> &phrases() const;

    CategoryInfo *m_categoryInfo{nullptr};
    PhraseInfo *m_phraseInfo{nullptr};
    std::unique_ptr<AudioPlayer> m_audioPlayer;
    bool m_phraseHidden{false};
    ItemButton m_lastItemBtn{QStringLiteral("btn-last2")};
    ItemButton m_nextItemBtn{QStringLiteral("btn-next2")};
    PhraseRecording m_audioRecorder;
    MicrophonePermission m_permission;
    /// Between a press of the record button that started a recording and its release.
    bool m_recordPressed{false};
};
