#include "CategoryViewController.h"

#include "Preferences.h"
#include "content/AppCommon.h"

#include <algorithm>

CategoryViewController::CategoryViewController(QObject *parent)
    : QObject(parent)
{
    connect(&Preferences::instance(), &Preferences::languageTypeChanged, this,
            &CategoryViewController::titleChanged);
    connect(&m_player, &VoPlayerBox::playStatusChanged, this,
            &CategoryViewController::updatePlayingIndex);
    connect(&m_player, &VoPlayerBox::currItemIndexChanged, this,
            &CategoryViewController::updatePlayingIndex);
    connect(&m_player, &VoPlayerBox::waitingToStartChanged, this,
            &CategoryViewController::updatePlayingIndex);
    connect(&m_player, &VoPlayerBox::playRateChanged, this, &CategoryViewController::savePlaySpeed);
    connect(&m_player, &VoPlayerBox::timeOfItemdelayChanged, this,
            &CategoryViewController::itemDelayChanged);
}

QString CategoryViewController::categoryId() const
{
    return m_category ? m_category->id : QString();
}

void CategoryViewController::setCategoryId(const QString &categoryId)
{
    if (m_category && m_category->id == categoryId)
        return;
    if (m_category)
        m_player.stopPlay();
    m_category = contentStore().category(categoryId);
    const auto *phrases = m_category ? loadPhrases(categoryId) : nullptr;
    m_phrases.setPhrases(phrases ? *phrases : QList<PhraseInfo *>());

    QStringList paths;
    if (phrases)
        for (PhraseInfo *phrase : *phrases)
            paths.append(soundPath(*phrase));
    m_player.setPlayRate(Preferences::instance().playSpeed());
    m_player.setupPlayer(paths);
    m_player.resetBtnImage();

    Q_EMIT categoryIdChanged();
    Q_EMIT titleChanged();
}

QString CategoryViewController::title() const
{
    return m_category ? translatedName(*m_category, Preferences::instance().languageType())
                      : QString();
}

// The player's loop count cannot ask for exactly two plays (a count of 1 adds nothing), so the
// choices are odd.
QList<int> CategoryViewController::repeatChoices()
{
    return {1, 3, 5};
}

void CategoryViewController::setRepeatCount(int count)
{
    if (count == m_repeatCount)
        return;
    if (!repeatChoices().contains(count)) {
        VoLog::write(lcApp(), VoLog::Error,
                     QStringLiteral("repeat count %1 is not offered").arg(count));
        return;
    }
    m_repeatCount = count;
    m_player.setNumberOfItemLoops(count - 1);
    Q_EMIT repeatCountChanged();
}

QList<int> CategoryViewController::delayChoices()
{
    return {0, 1, 2, 3, 5};
}

void CategoryViewController::setItemDelay(int seconds)
{
    if (!delayChoices().contains(seconds)) {
        VoLog::write(lcApp(), VoLog::Error,
                     QStringLiteral("delay of %1 s is not offered").arg(seconds));
        return;
    }
    m_player.setTimeOfItemdelay(seconds);
}

void CategoryViewController::updatePlayingIndex()
{
    const int status = m_player.playStatus();
    const bool sounding = status == VoPlayerBox::Playing || status == VoPlayerBox::Paused ||
                          m_player.waitingToStart();
    const int index = sounding ? m_player.currItemIndex() : -1;
    if (index == m_playingIndex)
        return;
    m_playingIndex = index;
    Q_EMIT playingIndexChanged();
}

// The rate the learner hears, so that a reader of the setting never sees a step past a bound.
void CategoryViewController::savePlaySpeed()
{
    Preferences::instance().setPlaySpeed(
        std::clamp(m_player.playRate(), VoPlayerBox::minRate, VoPlayerBox::maxRate));
}
