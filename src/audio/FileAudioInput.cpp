#include "FileAudioInput.h"

#include <vector>

namespace {
constexpr sf_count_t chunkFrames = 4096;
} // namespace

FileAudioInput::FileAudioInput(QString path, QObject *parent)
    : AudioInput(parent)
    , m_path(std::move(path))
{}

QString FileAudioInput::start()
{
    SF_INFO info{};
    m_file = audio::openSoundFile(m_path, SFM_READ, info);
    if (!m_file)
        return QStringLiteral("cannot open %1: %2")
            .arg(m_path, QString::fromUtf8(sf_strerror(nullptr)));
    m_format.setSampleRate(info.samplerate);
    m_format.setChannelCount(info.channels);
    m_format.setSampleFormat(QAudioFormat::Int16);
    // Queued, so that each chunk is a separate event and a stop can come between two.
    QMetaObject::invokeMethod(this, &FileAudioInput::deliverChunk, Qt::QueuedConnection);
    return {};
}

void FileAudioInput::stop()
{
    m_file.reset();
}

void FileAudioInput::deliverChunk()
{
    if (!m_file)
        return;
    const int channels = m_format.channelCount();
    std::vector<short> samples(static_cast<size_t>(chunkFrames * channels));
    const sf_count_t read = sf_readf_short(m_file.get(), samples.data(), chunkFrames);
    if (read <= 0) {
        m_file.reset();
        Q_EMIT allDelivered();
        return;
    }
    Q_EMIT frames(QByteArray(reinterpret_cast<const char *>(samples.data()),
                             static_cast<qsizetype>(read * channels * 2)));
    QMetaObject::invokeMethod(this, &FileAudioInput::deliverChunk, Qt::QueuedConnection);
}
