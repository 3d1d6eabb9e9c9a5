#include "TempoAudioPlayer.h"

#include "AudioLog.h"
#include "PlaybackBounds.h"
#include "SilentSoundOutput.h"
#include "SinkSoundOutput.h"
#include "StretchedStream.h"
#include "content/VoLog.h"

#include <QMediaDevices>

namespace {

void logProgress(const QString &text)
{
    VoLog::write(lcAudio(), VoLog::Progress, text);
}

} // namespace

std::unique_ptr<TempoAudioPlayer> TempoAudioPlayer::open(const QString &path,
                                                         SoundDestination destination)
{
    auto stream = StretchedStream::open(path);
    if (!stream)
        return nullptr;
    return std::unique_ptr<TempoAudioPlayer>(new TempoAudioPlayer(std::move(stream), destination));
}

TempoAudioPlayer::TempoAudioPlayer(std::unique_ptr<StretchedStream> stream,
                                   SoundDestination destination)
    : m_clock(stream->duration())
{
    if (destination == SoundDestination::defaultDevice) {
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        const auto format =
            device.isNull() ? std::nullopt : SinkSoundOutput::formatFor(device, *stream);
        if (format)
            m_output = std::make_unique<SinkSoundOutput>(std::move(stream), device, *format);
        else if (device.isNull())
            logProgress(QStringLiteral("no sound device: playing silently"));
        else
            logProgress(QStringLiteral("the sound device cannot take %1 channels at %2 Hz: "
                                       "playing silently")
                            .arg(QString::number(stream->channels()),
                                 QString::number(stream->sampleRate())));
    }
    if (!m_output)
        m_output = std::make_unique<SilentSoundOutput>(m_clock);
    connect(m_output.get(), &SoundOutput::ended, this, &TempoAudioPlayer::end);
}

TempoAudioPlayer::~TempoAudioPlayer() = default;

void TempoAudioPlayer::play()
{
    if (m_clock.isRunning())
        return;
    // A player that has finished starts again from the top, as a fresh one would.
    if (m_clock.atEnd()) {
        m_clock.seek(0.0);
        m_output->seek(0.0);
    }
    m_clock.start();
    m_output->play();
}

void TempoAudioPlayer::pause()
{
    if (!m_clock.isRunning())
        return;
    m_clock.pause();
    m_output->pause();
}

void TempoAudioPlayer::stop()
{
    pause();
}

void TempoAudioPlayer::setCurrentTime(double seconds)
{
    m_clock.setCurrentTime(seconds);
    m_output->seek(m_clock.playThroughTime());
}

void TempoAudioPlayer::setRate(float rate)
{
    const float clamped = playback::clampedRate(rate);
    if (clamped == m_clock.rate())
        return;
    m_clock.setRate(clamped);
    m_output->setRate(clamped);
}

void TempoAudioPlayer::setVolume(float volume)
{
    const float clamped = playback::clampedVolume(volume);
    if (clamped == m_volume)
        return;
    m_volume = clamped;
    m_output->setVolume(clamped);
}

void TempoAudioPlayer::setNumberOfLoops(int loops)
{
    m_loops = loops;
    m_clock.setExtraPlays(playback::extraPlays(loops));
    m_output->setExtraPlays(playback::extraPlays(loops));
}

void TempoAudioPlayer::end(bool successfully)
{
    m_clock.pause();
    m_clock.seek(m_clock.totalTime());
    Q_EMIT finished(successfully);
}
