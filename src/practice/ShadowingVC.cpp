#include "ShadowingVC.h"

#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "audio/PlaySound.h"
#include "content/AppCommon.h"

#include <algorithm>

namespace {
/// A model recording that cannot be played still gets a take this long at most, in seconds.
constexpr double unknownModelSeconds = 3.0;
/// A learner needs about this long to begin after the model ends, in seconds.
constexpr double shortestCap = 2.0;
constexpr int defaultShowMilliseconds = 2500;
} // namespace

ShadowingVC::ShadowingVC(QObject *parent)
    : QObject(parent)
{
    m_showTimer.setSingleShot(true);
    m_showTimer.setInterval(defaultShowMilliseconds);
    connect(&m_showTimer, &QTimer::timeout, this, &ShadowingVC::next);
    connect(&m_recording.recorder(), &VoAudioRecorder::periodicTimeObserver, this,
            &ShadowingVC::heard);
}

ShadowingVC::~ShadowingVC()
{
    halt();
}

bool ShadowingVC::start(const QString &categoryId, int index)
{
    const QList<PhraseInfo *> *phrases = loadPhrases(categoryId);
    if (!phrases || index < 0 || index >= phrases->size() || m_permission.check())
        return false;
    m_phrases = *phrases;
    m_index = index;
    Q_EMIT phraseChanged();
    setPaused(false);
    listen();
    return true;
}

void ShadowingVC::togglePause()
{
    if (m_stage == Stage::Finished)
        return;
    setPaused(!m_paused);
    if (m_paused)
        halt();
    else if (m_stage == Stage::Showing)
        next(); // this phrase's mark has been seen
    else
        listen();
}

void ShadowingVC::setPaused(bool paused)
{
    if (paused == m_paused)
        return;
    m_paused = paused;
    Q_EMIT pausedChanged();
    Q_EMIT stageChanged();
}

void ShadowingVC::stop()
{
    halt();
    setStage(Stage::Finished);
}

void ShadowingVC::halt()
{
    m_showTimer.stop();
    disconnect(m_waitForRecorder);
    m_player.reset();
    m_endOfSpeech.reset();
    m_recording.stop();
    // A take dropped half way is never marked; its comparison, if any, is left to finish unseen.
    if (m_comparison)
        m_comparison->disconnect(this);
}

double ShadowingVC::takeCap(double modelSeconds)
{
    return std::max(2.0 * modelSeconds, shortestCap);
}

void ShadowingVC::setShowMilliseconds(int milliseconds)
{
    if (milliseconds == m_showTimer.interval())
        return;
    m_showTimer.setInterval(milliseconds);
    Q_EMIT showMillisecondsChanged();
}

const PhraseInfo *ShadowingVC::phrase() const
{
    return m_index < m_phrases.size() ? m_phrases.at(m_index) : nullptr;
}

QString ShadowingVC::phraseText() const
{
    return phrase() ? phrase()->content : QString();
}

QString ShadowingVC::translation() const
{
    return phrase() ? ::translation(*phrase(), Preferences::instance().languageType()) : QString();
}

QString ShadowingVC::stageText() const
{
    if (m_paused)
        return tr("Paused");
    switch (m_stage) {
    case Stage::Listening:
        return tr("Listen");
    case Stage::Speaking:
        return tr("Now you");
    case Stage::Marking:
        return tr("Checking");
    case Stage::Showing:
        return QString();
    case Stage::Finished:
        return tr("Well done!");
    }
    return QString();
}

void ShadowingVC::setStage(Stage stage)
{
    if (stage == m_stage)
        return;
    m_stage = stage;
    Q_EMIT stageChanged();
}

void ShadowingVC::listen()
{
    setStage(Stage::Listening);
    m_player = playSound(soundPath(*m_phrases.at(m_index)), 0);
    if (!m_player) {
        speak(unknownModelSeconds);
        return;
    }
    // playSound has started it; its end is the learner's cue.
    connect(m_player.get(), &AudioPlayer::finished, this,
            [this] { speak(m_player ? m_player->duration() : unknownModelSeconds); });
}

void ShadowingVC::speak(double modelSeconds)
{
    if (m_recording.recording()) {
        // The take a pause dropped is still being closed: begin once it is.
        m_waitForRecorder = connect(
            &m_recording, &PhraseRecording::recordingChanged, this,
            [this, modelSeconds] { speak(modelSeconds); }, Qt::SingleShotConnection);
        return;
    }
    if (m_recording.begin(*m_phrases.at(m_index)).isEmpty()) {
        // Nowhere to record: the reason is in the recording's errorText; wait for the learner.
        setPaused(true);
        return;
    }
    m_endOfSpeech.emplace(takeCap(modelSeconds));
    setStage(Stage::Speaking);
}

void ShadowingVC::heard(float power, float interval)
{
    if (!m_endOfSpeech || m_endOfSpeech->feed(power, interval) == EndOfSpeech::Verdict::Listening)
        return;
    m_endOfSpeech.reset();
    mark();
}

void ShadowingVC::mark()
{
    m_comparison = m_recording.end();
    if (!m_comparison) {
        next();
        return;
    }
    setStage(Stage::Marking);
    connect(m_comparison.get(), &SpectrumCompView::compared, this, [this] {
        incrementUserInfoCounter(UserInfoKey::readCount);
        setStage(Stage::Showing);
        Q_EMIT marked();
        m_showTimer.start();
    });
}

void ShadowingVC::next()
{
    if (m_index + 1 >= m_phrases.size()) {
        setStage(Stage::Finished);
        return;
    }
    ++m_index;
    Q_EMIT phraseChanged();
    listen();
}
