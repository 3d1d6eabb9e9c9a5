// What the bar shows: speed steps and the badge, the repeat mode, the controls' images and the
// elapsed time.
#include "VoPlayerBox.h"

#include <algorithm>

namespace {
constexpr int remindMilliseconds = 200;
} // namespace

void VoPlayerBox::speedUp()
{
    changeSpeed(0.2, QStringLiteral("speedUp"));
}

void VoPlayerBox::speedDown()
{
    changeSpeed(-0.2, QStringLiteral("speedDown"));
}

// playRate itself is not bounded, only the rate the player gets: presses past a bound keep
// moving it, and as many presses back are needed before the sound changes again. Intended.
void VoPlayerBox::changeSpeed(double step, const QString &anchor)
{
    if (m_playStatus != Playing)
        return;
    logProgress(step > 0 ? QStringLiteral("speed up ... ") : QStringLiteral("speed down ... "));
    setPlayRate(static_cast<float>(static_cast<double>(m_playRate) + step));
    AudioPlayer *player = audioPlayer();
    resizeRate(player, m_playRate);

    m_speedRemindAnchor = anchor;
    m_speedRemindText =
        QString::asprintf("%0.1fX", player ? static_cast<double>(player->rate()) : 0.0);
    m_speedRemindVisible = true;
    Q_EMIT speedRemindChanged();
    QTimer::singleShot(remindMilliseconds, this, [this] { setSpeedRemind(false); });
}

void VoPlayerBox::resizeRate(AudioPlayer *player, float rate)
{
    if (!player) {
        logProgress(QStringLiteral("the player is null. "));
        return;
    }
    player->setRate(std::clamp(rate, minRate, maxRate));
}

void VoPlayerBox::switchPlayModel()
{
    m_playModel = (m_playModel + 1) % 3;
    Q_EMIT playModelChanged();
    Controls controls = m_controls;
    switch (m_playModel) {
    case RepeatOne:
        controls.playModelImage = QStringLiteral("replay_single");
        break;
    case RepeatAll:
        controls.playModelImage = QStringLiteral("replay_all");
        break;
    default:
        controls.playModelImage = QStringLiteral("replay_seq");
        break;
    }
    setControls(controls);
    logProgress(QStringLiteral("play model: %1").arg(m_playModel));
}

void VoPlayerBox::showFinished()
{
    setPlayStatus(Finished);
    resetBtnImage();
}

void VoPlayerBox::resetBtnImage()
{
    setSpeedRemind(false);
    Controls controls = m_controls;
    switch (m_playStatus) {
    case Playing:
        controls.playImage = QStringLiteral("vo_pause");
        controls.stopEnabled = true;
        controls.stopImage = QStringLiteral("vo_stop");
        controls.speedDownEnabled = true;
        controls.speedDownImage = QStringLiteral("speeddown");
        controls.speedUpEnabled = true;
        controls.speedUpImage = QStringLiteral("speedup");
        break;
    case Finished:
    case Stopped:
        controls.stopEnabled = false;
        controls.stopImage = QStringLiteral("vo_stop2");
        [[fallthrough]];
    case Paused:
        controls.playImage = QStringLiteral("vo_play");
        controls.speedDownEnabled = false;
        controls.speedDownImage = QStringLiteral("speeddown2");
        controls.speedUpEnabled = false;
        controls.speedUpImage = QStringLiteral("speedup2");
        break;
    default:
        break;
    }
    // The pause before an item belongs to playing the list: the learner can stop it or hold it.
    if (m_delayTimer.isActive()) {
        controls.playImage = QStringLiteral("vo_pause");
        controls.stopEnabled = true;
        controls.stopImage = QStringLiteral("vo_stop");
    } else if (m_playStatus == Paused && !m_pendingPath.isEmpty()) {
        controls.stopEnabled = true;
        controls.stopImage = QStringLiteral("vo_stop");
    }
    controls.lastEnabled = m_currItemIndex >= 1;
    controls.lastImage =
        controls.lastEnabled ? QStringLiteral("last_item") : QStringLiteral("last_item2");
    // Compared as unsigned 64-bit numbers, as it always was: with an empty list the button is
    // enabled at index 0 and disabled at -1.
    const auto lastIndex = static_cast<quint64>(m_audioFileList.size() - 1);
    controls.nextEnabled = lastIndex > static_cast<quint64>(static_cast<qint64>(m_currItemIndex));
    controls.nextImage =
        controls.nextEnabled ? QStringLiteral("next_item") : QStringLiteral("next_item2");
    setControls(controls);
}

void VoPlayerBox::tick()
{
    AudioPlayer *player = audioPlayer();
    const double seconds = player ? player->currentTime() : 0.0;
    const int minutes = static_cast<int>(seconds / 60);
    const QString text =
        QString::asprintf("%02d:%02d", minutes, static_cast<int>(seconds) - 60 * minutes);
    if (text != m_timeText) {
        m_timeText = text;
        Q_EMIT timeTextChanged();
    }
    Q_EMIT periodicTimeObserver(player, m_timerInterval);
}

void VoPlayerBox::setControls(const Controls &controls)
{
    if (m_controls == controls)
        return;
    m_controls = controls;
    Q_EMIT controlsChanged();
}

void VoPlayerBox::setSpeedRemind(bool visible)
{
    if (m_speedRemindVisible == visible)
        return;
    m_speedRemindVisible = visible;
    Q_EMIT speedRemindChanged();
}
