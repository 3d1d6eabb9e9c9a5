#include "VoAudioRecorder.h"

#include "AudioLog.h"
#include "RecordingWorker.h"
#include "content/VoLog.h"

#include <algorithm>
#include <cmath>

VoAudioRecorder::VoAudioRecorder(QObject *parent)
    : VoAudioRecorder(defaultAudioInputFactory(), parent)
{}

VoAudioRecorder::VoAudioRecorder(AudioInputFactory input, QObject *parent)
    : QObject(parent)
    , m_worker(new RecordingWorker(std::move(input)))
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_worker, &RecordingWorker::ended, this, &VoAudioRecorder::ended);
    connect(&m_timer, &QTimer::timeout, this, &VoAudioRecorder::levelPoll);
    m_thread.setObjectName(QStringLiteral("tolvane recorder"));
    m_thread.start();
}

VoAudioRecorder::~VoAudioRecorder()
{
    m_thread.quit();
    m_thread.wait();
}

void VoAudioRecorder::recordPushed(const QString &path)
{
    m_CAF2MP3 = false;
    if (m_recording)
        return;
    stopPlayer();
    m_pendingPlay.clear();
    // Cleared just above, so the name is always kept; the order is deliberate.
    const QString target = m_CAF2MP3 ? path.left(path.size() - 4) + QStringLiteral(".mp3") : path;
    if (target != m_recordedFilePath) {
        m_recordedFilePath = target;
        Q_EMIT recordedFilePathChanged();
    }
    const quint64 session = ++m_session;
    ++m_unfinished;
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, session, target] { worker->start(session, target); },
        Qt::QueuedConnection);
    m_recording = true;
    Q_EMIT recordingChanged();
    m_timeInterval = 0.05F;
    m_timer.start(std::chrono::milliseconds(qRound(m_timeInterval * 1000)));
}

void VoAudioRecorder::stopPushed()
{
    stopRecording();
    m_pendingPlay.clear();
    stopPlayer();
}

void VoAudioRecorder::playPushed(const QString &path)
{
    stopRecording();
    stopPlayer();
    if (m_unfinished > 0)
        m_pendingPlay = path;
    else
        play(path);
}

void VoAudioRecorder::levelPoll()
{
    Q_EMIT periodicTimeObserver(powerFromPeak(m_worker->takePeak()), m_timeInterval);
}

float VoAudioRecorder::powerFromPeak(float peak)
{
    if (!(peak > 0.0F))
        return silencePower;
    return std::clamp(20.0F * std::log10(peak), silencePower, 0.0F);
}

void VoAudioRecorder::stopRecording()
{
    if (!m_recording)
        return;
    m_timer.stop();
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker] { worker->stop(); }, Qt::QueuedConnection);
    m_recording = false;
    Q_EMIT recordingChanged();
}

void VoAudioRecorder::stopPlayer()
{
    if (m_player && m_player->isPlaying())
        m_player->stop();
}

void VoAudioRecorder::play(const QString &path)
{
    m_player = makeAudioPlayer(path);
    if (m_player)
        m_player->play();
}

void VoAudioRecorder::ended(quint64 session, bool successfully, const QString &error)
{
    --m_unfinished;
    if (!error.isEmpty()) {
        VoLog::write(lcAudio(), VoLog::Error, QStringLiteral("recording failed: ") + error);
        m_errorText = error;
        Q_EMIT recordingFailed(error);
    }
    // An input that failed by itself ends the recording; a stale report changes nothing.
    if (session == m_session && m_recording) {
        m_timer.stop();
        m_recording = false;
        Q_EMIT recordingChanged();
    }
    Q_EMIT recorderDidFinishRecording(successfully);
    if (m_unfinished == 0 && !m_pendingPlay.isEmpty())
        play(std::exchange(m_pendingPlay, QString()));
}
