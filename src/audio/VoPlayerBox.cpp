#include "VoPlayerBox.h"

#include "AudioLog.h"
#include "content/VoLog.h"

#include <algorithm>

VoPlayerBox::VoPlayerBox(QObject *parent)
    : QObject(parent)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &VoPlayerBox::tick);
    m_delayTimer.setSingleShot(true);
    connect(&m_delayTimer, &QTimer::timeout, this, &VoPlayerBox::startPendingFile);
}

void VoPlayerBox::setPlayRate(float rate)
{
    if (m_playRate == rate)
        return;
    m_playRate = rate;
    Q_EMIT playRateChanged();
}

void VoPlayerBox::setSubtitleType(int type)
{
    if (m_subtitleType == type)
        return;
    m_subtitleType = type;
    Q_EMIT subtitleTypeChanged();
}

void VoPlayerBox::setNumberOfItemLoops(int loops)
{
    if (m_numberOfItemLoops == loops)
        return;
    m_numberOfItemLoops = loops;
    Q_EMIT numberOfItemLoopsChanged();
}

void VoPlayerBox::setTimeOfItemdelay(int seconds)
{
    if (m_timeOfItemdelay == seconds)
        return;
    m_timeOfItemdelay = seconds;
    Q_EMIT timeOfItemdelayChanged();
}

QVariant VoPlayerBox::volumeSliderValue() const
{
    return m_volumeSliderValue ? QVariant(*m_volumeSliderValue) : QVariant();
}

void VoPlayerBox::setVolumeSliderValue(const QVariant &value)
{
    bool isNumber = false;
    const float volume = value.toFloat(&isNumber);
    std::optional<float> slider;
    if (isNumber)
        slider = std::clamp(volume, 0.0F, 1.0F);
    if (slider == m_volumeSliderValue)
        return;
    m_volumeSliderValue = slider;
    Q_EMIT volumeSliderValueChanged();
}

void VoPlayerBox::setupPlayer(const QStringList &list)
{
    if (m_audioFileList != list) {
        m_audioFileList = list;
        Q_EMIT audioFileListChanged();
    }
    setCurrItemIndex(0);
}

void VoPlayerBox::setupPlayer(const QStringList &list, int loops, int delay)
{
    setupPlayer(list);
    setNumberOfItemLoops(loops);
    setTimeOfItemdelay(delay);
}

void VoPlayerBox::play(bool pressed)
{
    AudioPlayer *player = audioPlayer();
    if (m_playStatus == Playing) {
        if (player)
            player->pause();
        setPlayStatus(Paused);
        resetBtnImage();
        logProgress(QStringLiteral("paused. "));
        return;
    }
    const auto wrap = [this, pressed] {
        if (pressed)
            applyWrapRule();
    };
    if (m_delayTimer.isActive()) {
        // The pause between items counts as playing: play holds the next item back.
        m_delayTimer.stop();
        Q_EMIT waitingToStartChanged();
        setPlayStatus(Paused);
        resetBtnImage();
        logProgress(QStringLiteral("paused before an item. "));
        return;
    }
    if (m_playStatus == Paused && !m_pendingPath.isEmpty()) {
        startPendingFile();
        return;
    }
    if (m_playStatus == Paused) {
        if (player)
            player->play();
        setPlayStatus(Playing);
        resetBtnImage();
        wrap();
        return;
    }
    if (m_currItemIndex < 0 || m_currItemIndex >= m_audioFileList.size()) {
        VoLog::write(lcAudio(), VoLog::Error,
                     QStringLiteral("play: no item %1 in a list of %2")
                         .arg(m_currItemIndex)
                         .arg(m_audioFileList.size()));
        return;
    }
    playAudioFile(m_audioFileList.at(m_currItemIndex), wrap);
}

// Kept as it always was: a press on the last item of a sequence, even one that resumes a pause,
// starts the list again from its first item.
void VoPlayerBox::applyWrapRule()
{
    if (m_playModel == Sequential && m_currItemIndex != 0 &&
        m_currItemIndex == m_audioFileList.size() - 1) {
        setCurrItemIndex(0);
        playItem(0);
    }
}

void VoPlayerBox::stop()
{
    if (m_playStatus == Stopped)
        return;
    cancelPendingStart();
    AudioPlayer *player = audioPlayer();
    if (player)
        player->stop();
    // A paused player's timer is left running on purpose; it keeps reporting the same time.
    if (m_playStatus == Playing)
        m_timer.stop();
    if (player && player->currentTime() != 0)
        player->setCurrentTime(0);
    Q_EMIT stopped(player);
    setPlayStatus(Stopped);
    resetBtnImage();
    logProgress(QStringLiteral("stopped "));
    setCurrItemIndex(0);
}

void VoPlayerBox::playLastItem()
{
    if (m_currItemIndex < 1)
        return;
    playItem(m_currItemIndex - 1);
}

void VoPlayerBox::playNextItem()
{
    if (m_currItemIndex >= m_audioFileList.size() - 1)
        return;
    playItem(m_currItemIndex + 1);
}

void VoPlayerBox::playItem(int index)
{
    if (index < 0 || index >= m_audioFileList.size())
        return;
    AudioPlayer *player = audioPlayer();
    if (player)
        player->stop();
    Q_EMIT stopped(player);
    setCurrItemIndex(index);
    // The start sets the rate unclamped; the player gets the clamped one right afterwards.
    playAudioFile(m_audioFileList.at(index), [this] { resizeRate(audioPlayer(), m_playRate); });
}

void VoPlayerBox::audioPlayerDidFinishPlaying(bool successfully)
{
    m_timer.stop();
    setPlayStatus(Finished);
    resetBtnImage();
    Q_EMIT didFinishPlaying(audioPlayer(), successfully);
    logProgress(QStringLiteral("stopped. "));
    switch (m_playModel) {
    case RepeatOne:
        playItem(m_currItemIndex);
        break;
    case RepeatAll:
        if (m_currItemIndex == m_audioFileList.size() - 1)
            playItem(0);
        else
            playNextItem();
        break;
    default:
        playNextItem();
        break;
    }
}

void VoPlayerBox::setPlayStatus(int status)
{
    if (m_playStatus == status)
        return;
    m_playStatus = status;
    Q_EMIT playStatusChanged();
}

void VoPlayerBox::setCurrItemIndex(int index)
{
    if (m_currItemIndex == index)
        return;
    m_currItemIndex = index;
    Q_EMIT currItemIndexChanged();
}

void VoPlayerBox::logProgress(const QString &text)
{
    VoLog::write(lcAudio(), VoLog::Progress, text);
}
