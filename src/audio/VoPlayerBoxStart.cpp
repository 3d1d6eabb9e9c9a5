// Starting a file: the player every box shares and the pause before an item.
#include "VoPlayerBox.h"

#include <QGuiApplication>

namespace {

// The player of the whole process and the box it reports to. The player it replaced is kept
// until the next start, because the replacement can happen inside that player's own finished
// signal. `waiting` is the box whose pause before a start runs: the newest start wins.
struct SharedPlayer {
    std::unique_ptr<AudioPlayer> player;
    std::unique_ptr<AudioPlayer> replaced;
    VoPlayerBox *owner{nullptr};
    VoPlayerBox *waiting{nullptr};
};

SharedPlayer &shared()
{
    static SharedPlayer slot;
    return slot;
}

bool inBackground()
{
    const Qt::ApplicationState state = QGuiApplication::applicationState();
    return state == Qt::ApplicationHidden || state == Qt::ApplicationSuspended;
}

// A phone asks here for time to finish the item in the background; a desktop app keeps running.
void beginBackgroundTask() {}

} // namespace

VoPlayerBox::~VoPlayerBox()
{
    SharedPlayer &slot = shared();
    if (slot.waiting == this)
        slot.waiting = nullptr;
    if (slot.owner != this)
        return;
    if (slot.player)
        slot.player->stop();
    slot.player.reset();
    slot.replaced.reset();
    slot.owner = nullptr;
}

AudioPlayer *VoPlayerBox::audioPlayer()
{
    return shared().player.get();
}

void VoPlayerBox::playAudioFile(const QString &path)
{
    playAudioFile(path, {});
}

void VoPlayerBox::playAudioFile(const QString &path, std::function<void()> then)
{
    if (m_timeOfItemdelay <= 0) {
        startFile(path);
        if (then)
            then();
        return;
    }
    SharedPlayer &slot = shared();
    if (slot.waiting && slot.waiting != this)
        slot.waiting->cancelPendingStart();
    slot.waiting = this;
    // Nothing would tick while a blocking wait held the thread, and the box is between items.
    m_timer.stop();
    m_pendingPath = path;
    m_pendingThen = std::move(then);
    const bool wasWaiting = m_delayTimer.isActive();
    m_delayTimer.start(m_timeOfItemdelay * 1000);
    setPlayStatus(Finished);
    resetBtnImage();
    if (!wasWaiting)
        Q_EMIT waitingToStartChanged();
}

void VoPlayerBox::startPendingFile()
{
    if (shared().waiting == this)
        shared().waiting = nullptr;
    if (m_delayTimer.isActive())
        m_delayTimer.stop();
    Q_EMIT waitingToStartChanged();
    const std::function<void()> then = std::exchange(m_pendingThen, {});
    startFile(std::exchange(m_pendingPath, {}));
    if (then)
        then();
}

void VoPlayerBox::cancelPendingStart()
{
    if (m_pendingPath.isEmpty())
        return;
    const bool wasWaiting = m_delayTimer.isActive();
    m_delayTimer.stop();
    m_pendingPath.clear();
    m_pendingThen = {};
    if (shared().waiting == this)
        shared().waiting = nullptr;
    if (wasWaiting)
        Q_EMIT waitingToStartChanged();
}

void VoPlayerBox::startFile(const QString &path)
{
    SharedPlayer &slot = shared();
    if (slot.waiting && slot.waiting != this)
        slot.waiting->cancelPendingStart();
    if (slot.player) {
        slot.player->stop();
        if (slot.owner)
            disconnect(slot.player.get(), nullptr, slot.owner, nullptr);
    }
    slot.replaced = std::move(slot.player);
    slot.player = makeAudioPlayer(path);
    slot.owner = this;
    AudioPlayer *player = slot.player.get();
    if (player)
        connect(player, &AudioPlayer::finished, this, &VoPlayerBox::audioPlayerDidFinishPlaying);

    setPlayStatus(Finished);
    if (player) {
        player->setRate(m_playRate);
        if (m_numberOfItemLoops > 1)
            player->setNumberOfLoops(m_numberOfItemLoops);
        if (inBackground()) {
            logProgress(QStringLiteral("background playing ... "));
            player->play();
            beginBackgroundTask();
        } else {
            player->play();
        }
        if (m_volumeSliderValue)
            player->setVolume(*m_volumeSliderValue);
    }
    Q_EMIT played(player);

    m_timerInterval = 0.1F;
    m_timer.start(static_cast<int>(m_timerInterval * 1000));
    setPlayStatus(Playing);
    resetBtnImage();
}
