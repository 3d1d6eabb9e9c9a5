#include "TempoAudioPlayer.h"

#include "AudioLog.h"
#include "PlaybackBounds.h"
#include "SilentSoundOutput.h"
#include "StretchedStream.h"
#include "content/VoLog.h"

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
    return std::unique_ptr<TempoAudioPlayer>(
        new TempoAudioPlayer(path, std::move(stream), destination));
}

TempoAudioPlayer::TempoAudioPlayer(QString path, std::unique_ptr<StretchedStream> stream,
                                   SoundDestination destination)
    : m_clock(stream->duration())
    , m_path(std::move(path))
    , m_destination(destination)
{
    useOutput(makeOutput(std::move(stream)));
}

std::unique_ptr<SoundOutput> TempoAudioPlayer::makeOutput(std::unique_ptr<StretchedStream> stream)
{
    std::unique_ptr<SoundOutput> output;
    if (m_destination == SoundDestination::defaultDevice && stream)
        output = makeDeviceOutput(std::move(stream));
    if (!output)
        output = std::make_unique<SilentSoundOutput>(m_clock);
    return output;
}

void TempoAudioPlayer::useOutput(std::unique_ptr<SoundOutput> output)
{
    m_output = std::move(output);
    connect(m_output.get(), &SoundOutput::ended, this, &TempoAudioPlayer::end);
    connect(m_output.get(), &SoundOutput::lost, this, &TempoAudioPlayer::outputLost);
}

// The device went away mid-play: the same place, rate, loops and volume go on through whatever
// is the default device now, or silently in time. A device that keeps failing is given up.
void TempoAudioPlayer::outputLost()
{
    constexpr int lossesBeforeSilence = 3;
    logProgress(QStringLiteral("the sound device went away: moving to the default one"));
    // The lost output is the sender: it goes once its signal has returned.
    m_output.release()->deleteLater();
    ++m_losses;
    useOutput(makeOutput(m_losses < lossesBeforeSilence ? StretchedStream::open(m_path) : nullptr));
    m_output->setVolume(m_volume);
    m_output->setRate(m_clock.rate());
    m_output->setExtraPlays(playback::extraPlays(m_loops));
    m_output->seek(m_clock.playThroughTime());
    if (m_clock.isRunning())
        m_output->play();
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
