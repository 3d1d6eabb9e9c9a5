#include "RecordingWorker.h"

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
    connect(m_input.get(), &AudioInput::failed, this,
            [this](const QString &reason) { end(false, reason); });
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

void RecordingWorker::end(bool successfully, QString error)
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
    Q_EMIT ended(m_session, successfully, error);
}

// Compared and swapped, so that a peak is not lost when the poll takes the value meanwhile.
void RecordingWorker::raisePeak(float peak)
{
    float seen = m_peak.load();
    while (peak > seen && !m_peak.compare_exchange_weak(seen, peak)) {
    }
}
