#pragma once

#include "PhraseListModel.h"
#include "audio/VoPlayerBox.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class CategoryInfo;

/**
 * @brief The category screen: the category's name, its phrases and the list player over their
 * recordings, with how often each phrase sounds and how long the player pauses between them.
 *
 * The player starts at the speed of the "playSpeed" setting, and a speed the learner steps to
 * is written back there (the rate the player really uses, within 0.2 to 2.0).
 */
class CategoryViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString categoryId READ categoryId WRITE setCategoryId NOTIFY categoryIdChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(PhraseListModel *phrases READ phrases CONSTANT)
    Q_PROPERTY(VoPlayerBox *player READ player CONSTANT)
    /// The row of the phrase playing, paused or about to start after the pause; -1 for none.
    Q_PROPERTY(int playingIndex READ playingIndex NOTIFY playingIndexChanged)
    Q_PROPERTY(QList<int> repeatChoices READ repeatChoices CONSTANT)
    /// How many times each phrase sounds, one of repeatChoices.
    Q_PROPERTY(int repeatCount READ repeatCount WRITE setRepeatCount NOTIFY repeatCountChanged)
    Q_PROPERTY(QList<int> delayChoices READ delayChoices CONSTANT)
    /// Seconds of silence before each phrase, one of delayChoices.
    Q_PROPERTY(int itemDelay READ itemDelay WRITE setItemDelay NOTIFY itemDelayChanged)

public:
    explicit CategoryViewController(QObject *parent = nullptr);

    [[nodiscard]] QString categoryId() const;
    /// An unknown id shows an empty screen.
    void setCategoryId(const QString &categoryId);
    /// The category's name in the learner's language.
    [[nodiscard]] QString title() const;
    [[nodiscard]] PhraseListModel *phrases() { return &m_phrases; }
    [[nodiscard]] VoPlayerBox *player() { return &m_player; }
    [[nodiscard]] int playingIndex() const { return m_playingIndex; }

    [[nodiscard]] static QList<int> repeatChoices();
    [[nodiscard]] int repeatCount() const { return m_repeatCount; }
    /// A count that is not one of the choices is refused with a log line.
    void setRepeatCount(int count);
    [[nodiscard]] static QList<int> delayChoices();
    [[nodiscard]] int itemDelay() const { return m_player.timeOfItemdelay(); }
    /// A delay that is not one of the choices is refused with a log line.
    void setItemDelay(int seconds);

Q_SIGNALS:
    void categoryIdChanged();
    void titleChanged();
    void playingIndexChanged();
    void repeatCountChanged();
    void itemDelayChanged();

private:
    void updatePlayingIndex();
    void savePlaySpeed();

    CategoryInfo *m_category{nullptr};
    PhraseListModel m_phrases;
    VoPlayerBox m_player;
    int m_playingIndex{-1};
    int m_repeatCount{1};
};
