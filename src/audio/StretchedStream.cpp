#include "StretchedStream.h"

#include "AudioLog.h"
#include "PlaybackBounds.h"
#include "content/VoLog.h"

#include <SoundTouch.h>
#include <algorithm>
#include <cmath>

namespace {

// Frames handed to the stretcher at a time: small enough that the first samples come out
// within a few milliseconds of a start or a seek.
constexpr sf_count_t blockFrames = 1024;

void logError(const QString &text)
{
    VoLog::write(lcAudio(), VoLog::Error, text);
}

} // namespace

std::unique_ptr<StretchedStream> StretchedStream::open(const QString &path)
{
    SF_INFO info{};
    audio::SndfilePtr file = audio::openSoundFile(path, SFM_READ, info);
    QString problem;
    if (!file)
        problem = QString::fromUtf8(sf_strerror(nullptr));
    else if (info.samplerate < 1 || info.channels < 1 || info.channels > SOUNDTOUCH_MAX_CHANNELS)
        problem = QStringLiteral("%1 channels at %2 Hz cannot be played")
                      .arg(QString::number(info.channels), QString::number(info.samplerate));
    else if (info.frames < 1 || info.frames == SF_COUNT_MAX)
        problem = QStringLiteral("it holds no audio of known length");
    if (!problem.isEmpty()) {
        logError(QStringLiteral("can not play the file: %1 (%2)").arg(path, problem));
        return nullptr;
    }
    return std::unique_ptr<StretchedStream>(new StretchedStream(path, std::move(file), info));
}

StretchedStream::StretchedStream(QString path, audio::SndfilePtr file, const SF_INFO &info)
    : m_path(std::move(path))
    , m_file(std::move(file))
    , m_info(info)
    , m_stretcher(std::make_unique<soundtouch::SoundTouch>())
    , m_block(static_cast<size_t>(blockFrames * info.channels))
{
    m_stretcher->setSampleRate(static_cast<uint>(info.samplerate));
    m_stretcher->setChannels(static_cast<uint>(info.channels));
    m_stretcher->setTempo(m_rate);
}

StretchedStream::~StretchedStream() = default;

double StretchedStream::duration() const
{
    return static_cast<double>(m_info.frames) / m_info.samplerate;
}

void StretchedStream::setRate(float rate)
{
    m_rate = playback::clampedRate(rate);
    m_stretcher->setTempo(m_rate);
}

void StretchedStream::setExtraPlays(int plays)
{
    m_extraPlays = std::max(plays, 0);
}

void StretchedStream::seek(double seconds)
{
    const double length = duration();
    const double position = std::isnan(seconds) ? 0.0 : std::max(seconds, 0.0);
    const int play = static_cast<int>(
        std::min(std::floor(position / length), static_cast<double>(m_extraPlays)));
    const double offset = std::min(position - play * length, length);
    startPlay(play, static_cast<sf_count_t>(std::llround(offset * m_info.samplerate)));
}

void StretchedStream::startPlay(int play, sf_count_t frame)
{
    m_play = play;
    m_inputEnded = false;
    m_stretcher->clear();
    if (m_failed)
        return;
    if (sf_seek(m_file.get(), std::min(frame, m_info.frames), SEEK_SET) < 0) {
        logError(QStringLiteral("can not seek in the file: %1 (%2)")
                     .arg(m_path, QString::fromUtf8(sf_strerror(m_file.get()))));
        m_failed = true;
    }
}

qsizetype StretchedStream::read(std::span<float> out)
{
    const auto channels = static_cast<size_t>(m_info.channels);
    const auto wanted = out.size() / channels;
    size_t done = 0;
    while (done < wanted && !m_failed) {
        const uint got = m_stretcher->receiveSamples(out.data() + done * channels,
                                                     static_cast<uint>(wanted - done));
        done += got;
        if (got > 0)
            continue;
        if (!m_inputEnded)
            feed();
        else if (m_play < m_extraPlays)
            startPlay(m_play + 1, 0);
        else
            break;
    }
    return static_cast<qsizetype>(done);
}

void StretchedStream::feed()
{
    const sf_count_t frames = sf_readf_float(m_file.get(), m_block.data(), blockFrames);
    if (frames > 0) {
        m_stretcher->putSamples(m_block.data(), static_cast<uint>(frames));
        return;
    }
    if (sf_error(m_file.get()) != SF_ERR_NO_ERROR) {
        logError(QStringLiteral("can not read data from the file: %1 (%2)")
                     .arg(m_path, QString::fromUtf8(sf_strerror(m_file.get()))));
        m_failed = true;
    }
    // The stretcher holds back the last few milliseconds until it is told the play has ended.
    m_stretcher->flush();
    m_inputEnded = true;
}
