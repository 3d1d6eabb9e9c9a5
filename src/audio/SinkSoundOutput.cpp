#include "SinkSoundOutput.h"

#include "AudioLog.h"
#include "StretchedStream.h"
#include "StretchedStreamDevice.h"
#include "content/VoLog.h"

#include <QAudioSink>
#include <QMediaDevices>
#include <functional>

/// @brief The audio thread's side of a SinkSoundOutput: the stream, the device over it, the sink.
class SinkWorker : public QObject {
public:
    /// Called on the audio thread with the number of seeks done before the end, and whether the
    /// file played without damage.
    using EndReport = std::function<void(quint64 seeks, bool successfully)>;
    /// Called on the audio thread when the device has gone away.
    using LossReport = std::function<void()>;

    SinkWorker(std::unique_ptr<StretchedStream> stream, const QAudioDevice &device,
               const QAudioFormat &format, EndReport report, LossReport lost)
        : m_stream(std::move(stream))
        , m_source(*m_stream,
                   format.sampleFormat() == QAudioFormat::Float
                       ? StretchedStreamDevice::Samples::float32
                       : StretchedStreamDevice::Samples::int16,
                   this)
        , m_device(device)
        , m_format(format)
        , m_report(std::move(report))
        , m_lost(std::move(lost))
    {
        m_source.open(QIODevice::ReadOnly);
    }
    // The sink goes first: it may still read from the device while it stops.
    ~SinkWorker() override { delete m_sink; }
    SinkWorker(const SinkWorker &) = delete;
    SinkWorker &operator=(const SinkWorker &) = delete;

    void play()
    {
        m_wanted = true;
        if (!m_sink) {
            // Made on first use, so that it belongs to the audio thread.
            m_sink = new QAudioSink(m_device, m_format, this);
            m_sink->setVolume(m_volume);
            connect(m_sink, &QAudioSink::stateChanged, this, [this] { checkEnd(); });
            // Some systems keep a sink on an unplugged device quietly running; the device list
            // says it is gone.
            m_devices = new QMediaDevices(this);
            connect(m_devices, &QMediaDevices::audioOutputsChanged, this, [this] {
                if (!QMediaDevices::audioOutputs().contains(m_device))
                    loseDevice();
            });
        }
        if (m_sink->state() == QAudio::SuspendedState)
            m_sink->resume();
        else if (m_sink->state() == QAudio::StoppedState)
            m_sink->start(&m_source);
    }

    void pause()
    {
        m_wanted = false;
        if (m_sink && m_sink->state() != QAudio::StoppedState)
            m_sink->suspend();
    }

    void seek(double seconds)
    {
        ++m_seeks;
        m_stream->seek(seconds);
        m_source.rewound();
        // Stopping drops what the sink holds of the old position.
        if (m_sink && m_sink->state() != QAudio::StoppedState) {
            m_sink->stop();
            if (m_wanted)
                m_sink->start(&m_source);
        }
    }

    void setRate(float rate) { m_stream->setRate(rate); }
    void setExtraPlays(int plays) { m_stream->setExtraPlays(plays); }
    void setVolume(float volume)
    {
        m_volume = volume;
        if (m_sink)
            m_sink->setVolume(volume);
    }

private:
    void checkEnd()
    {
        if (!m_wanted)
            return;
        const QAudio::State state = m_sink->state();
        const bool drained =
            m_source.atEnd() && state != QAudio::ActiveState && state != QAudio::SuspendedState;
        const bool broken = state == QAudio::StoppedState && m_sink->error() != QAudio::NoError;
        if (!drained && !broken)
            return;
        if (broken && !drained) {
            VoLog::write(lcAudio(), VoLog::Error,
                         QStringLiteral("the sound device stopped playing (error %1)")
                             .arg(static_cast<int>(m_sink->error())));
            loseDevice();
            return;
        }
        m_wanted = false;
        m_sink->stop();
        m_report(m_seeks, !m_stream->failed());
    }

    void loseDevice()
    {
        if (m_gone)
            return;
        m_gone = true;
        m_wanted = false;
        m_sink->disconnect(this);
        m_sink->stop();
        m_lost();
    }

    std::unique_ptr<StretchedStream> m_stream;
    StretchedStreamDevice m_source;
    QAudioDevice m_device;
    QAudioFormat m_format;
    EndReport m_report;
    LossReport m_lost;
    QAudioSink *m_sink{nullptr};
    QMediaDevices *m_devices{nullptr};
    bool m_gone{false};
    float m_volume{1.0F};
    quint64 m_seeks{0};
    /// Whether the player wants sound now: false while paused and after the end.
    bool m_wanted{false};
};

std::optional<QAudioFormat> SinkSoundOutput::formatFor(const QAudioDevice &device,
                                                       const StretchedStream &stream)
{
    QAudioFormat format;
    format.setSampleRate(stream.sampleRate());
    format.setChannelCount(stream.channels());
    for (const auto samples : {QAudioFormat::Float, QAudioFormat::Int16}) {
        format.setSampleFormat(samples);
        if (device.isFormatSupported(format))
            return format;
    }
    return std::nullopt;
}

SinkSoundOutput::SinkSoundOutput(std::unique_ptr<StretchedStream> stream,
                                 const QAudioDevice &device, const QAudioFormat &format,
                                 QObject *parent)
    : SoundOutput(parent)
{
    m_worker = new SinkWorker(
        std::move(stream), device, format,
        [this](quint64 seeks, bool ok) {
            QMetaObject::invokeMethod(
                this,
                [this, seeks, ok] {
                    if (seeks == m_seeks)
                        Q_EMIT ended(ok);
                },
                Qt::QueuedConnection);
        },
        [this] { QMetaObject::invokeMethod(this, &SoundOutput::lost, Qt::QueuedConnection); });
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread.setObjectName(QStringLiteral("tolvane audio"));
    m_thread.start();
}

SinkSoundOutput::~SinkSoundOutput()
{
    m_thread.quit();
    m_thread.wait();
}

template <typename Work> void SinkSoundOutput::post(Work work)
{
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, work] { work(*worker); }, Qt::QueuedConnection);
}

void SinkSoundOutput::play()
{
    post([](SinkWorker &worker) { worker.play(); });
}

void SinkSoundOutput::pause()
{
    post([](SinkWorker &worker) { worker.pause(); });
}

void SinkSoundOutput::seek(double seconds)
{
    ++m_seeks;
    post([seconds](SinkWorker &worker) { worker.seek(seconds); });
}

void SinkSoundOutput::setRate(float rate)
{
    post([rate](SinkWorker &worker) { worker.setRate(rate); });
}

void SinkSoundOutput::setVolume(float volume)
{
    post([volume](SinkWorker &worker) { worker.setVolume(volume); });
}

void SinkSoundOutput::setExtraPlays(int plays)
{
    post([plays](SinkWorker &worker) { worker.setExtraPlays(plays); });
}

namespace {
DeviceOutputMaker &replacedMaker()
{
    static DeviceOutputMaker maker;
    return maker;
}
} // namespace

std::unique_ptr<SoundOutput> makeDeviceOutput(std::unique_ptr<StretchedStream> stream)
{
    if (replacedMaker())
        return replacedMaker()(std::move(stream));
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) {
        VoLog::write(lcAudio(), VoLog::Progress,
                     QStringLiteral("no sound device: playing silently"));
        return nullptr;
    }
    const auto format = SinkSoundOutput::formatFor(device, *stream);
    if (!format) {
        VoLog::write(
            lcAudio(), VoLog::Progress,
            QStringLiteral("the sound device cannot take %1 channels at %2 Hz: playing "
                           "silently")
                .arg(QString::number(stream->channels()), QString::number(stream->sampleRate())));
        return nullptr;
    }
    return std::make_unique<SinkSoundOutput>(std::move(stream), device, *format);
}

void setDeviceOutputMaker(DeviceOutputMaker maker)
{
    replacedMaker() = std::move(maker);
}
