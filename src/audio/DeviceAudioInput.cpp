#include "DeviceAudioInput.h"

#include <QAudioSource>
#include <QMediaDevices>

DeviceAudioInput::DeviceAudioInput(QObject *parent)
    : AudioInput(parent)
{}

DeviceAudioInput::~DeviceAudioInput()
{
    stop();
}

QString DeviceAudioInput::start()
{
    m_device = QMediaDevices::defaultAudioInput();
    if (m_device.isNull())
        return QStringLiteral("there is no microphone");
    m_format = m_device.preferredFormat();
    if (!m_format.isValid())
        return QStringLiteral("the microphone offers no usable format");
    m_source = new QAudioSource(m_device, m_format, this);
    // Some systems keep a source on an unplugged device quietly running; the device list says it
    // is gone.
    if (!m_devices)
        m_devices = new QMediaDevices(this);
    connect(m_devices, &QMediaDevices::audioInputsChanged, this, [this] {
        if (m_source && !QMediaDevices::audioInputs().contains(m_device))
            Q_EMIT failed(QStringLiteral("the microphone was unplugged"));
    });
    connect(m_source, &QAudioSource::stateChanged, this, &DeviceAudioInput::checkState);
    m_io = m_source->start();
    if (!m_io || m_source->error() != QAudio::NoError)
        return QStringLiteral("the microphone cannot be opened (error %1)")
            .arg(static_cast<int>(m_source->error()));
    connect(m_io, &QIODevice::readyRead, this, &DeviceAudioInput::readAvailable);
    return {};
}

void DeviceAudioInput::stop()
{
    if (!m_source)
        return;
    // Disconnected first: a stop we asked for is not a failure.
    m_source->disconnect(this);
    if (m_io)
        m_io->disconnect(this);
    m_source->stop();
    delete m_source;
    m_source = nullptr;
    m_io = nullptr;
}

void DeviceAudioInput::readAvailable()
{
    if (!m_io)
        return;
    m_pending += m_io->readAll();
    const qsizetype frameBytes = m_format.bytesPerFrame();
    const qsizetype whole = frameBytes > 0 ? m_pending.size() / frameBytes * frameBytes : 0;
    if (whole == 0)
        return;
    const QByteArray pcm = m_pending.left(whole);
    m_pending.remove(0, whole);
    Q_EMIT frames(pcm);
}

void DeviceAudioInput::checkState()
{
    if (m_source->state() == QAudio::StoppedState && m_source->error() != QAudio::NoError)
        Q_EMIT failed(QStringLiteral("the microphone stopped delivering sound (error %1)")
                          .arg(static_cast<int>(m_source->error())));
}
