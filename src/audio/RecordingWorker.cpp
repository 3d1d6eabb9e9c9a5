#include "RecordingWorker.h"

#include "AudioLog.h"
#include "content/VoLog.h"

#include <QCoreApplication>
#include <QFile>

RecordingWorker::RecordingWorker(AudioInputFactory factory)
    : m_factory(std::move(factory))
{}

RecordingWorker::~RecordingWorker()
{
    if (m_input) {
        m_input->disconnect(this);
        m_input->stop();
    }
    if (m_writer)
        m_writer->finish();
}

void RecordingWorker::start(quint64 session, const QString &path)
{
    stop();
    m_session = session;
    m_peak = 0.0F;
    // A recording that fails to start must not leave the previous one to be taken for it.
    QFile::remove(path);
    m_input = m_factory();
    if (!m_input) {
        Q_EMIT ended(session, false,
                     QCoreApplication::translate("VoAudioRecorder", "There is no microphone."));
        return;
    }
    if (QString error = m_input->start(); !error.isEmpty()) {
        m_input.reset();
        Q_EMIT ended(session, false, error);
        return;
    }
    m_writer = std::make_unique<RecordingWriter>();
    if (QString error = m_writer->open(path, m_input->format()); !error.isEmpty()) {
        m_input->stop();
        m_input.reset();
        m_writer.reset();
        Q_EMIT ended(session, false, error);
        return;
    }
    connect(m_input.get(), &AudioInput::frames, this, &RecordingWorker::write);
    connect(m_input.get(), &AudioInput::failed, this, &RecordingWorker::inputLost);
    m_path = path;
}

// A take cut short by a microphone that went away is still worth comparing once it holds half a
// second; a shorter one is no reading, and the learner is asked for another.
void RecordingWorker::inputLost(const QString &reason)
{
    constexpr double shortestKeptSeconds = 0.5;
    VoLog::write(lcAudio(), VoLog::Error, QStringLiteral("the input stopped: ") + reason);
    if (m_writer->seconds() >= shortestKeptSeconds) {
        end(true, {});
        return;
    }
    end(false,
        QCoreApplication::translate("VoAudioRecorder", "The microphone went away before you had "
                                                       "said anything. Please record again."),
        Take::Discard);
}

void RecordingWorker::stop()
{
    if (m_writer)
        end(true, {});
}

void RecordingWorker::write(const QByteArray &pcm)
{
    if (!m_writer)
        return;
    if (!m_writer->write(pcm)) {
        end(false, m_writer->error());
        return;
    }
    raisePeak(m_writer->lastPeak());
}

void RecordingWorker::end(bool successfully, QString error, Take take)
{
    // The input may be the one calling: it is deleted once its signal has returned.
    m_input->disconnect(this);
    m_input->stop();
    m_input.release()->deleteLater();
    if (!m_writer->finish() && error.isEmpty()) {
        successfully = false;
        error = m_writer->error();
    }
    m_writer.reset();
    if (take == Take::Discard)
        QFile::remove(m_path);
    Q_EMIT ended(m_session, successfully, error);
}

// Compared and swapped, so that a peak is not lost when the poll takes the value meanwhile.
void RecordingWorker::raisePeak(float peak)
{
    float seen = m_peak.load();
    while (peak > seen && !m_peak.compare_exchange_weak(seen, peak)) {
    }
}
