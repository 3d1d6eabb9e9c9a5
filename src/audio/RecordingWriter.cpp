#include "RecordingWriter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cmath>

QString RecordingWriter::open(const QString &path, const QAudioFormat &format)
{
    m_path = path;
    m_format = format;
    if (!format.isValid() || format.bytesPerFrame() <= 0)
        return m_error = QStringLiteral("the input offers no usable sound format");
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        // Said to the learner, who can do something about it.
        return m_error = QCoreApplication::translate("VoAudioRecorder",
                                                     "The recording folder %1 cannot be created.")
                             .arg(folder);

    SF_INFO info{};
    info.samplerate = Mono16kResampler::outputRate;
    info.channels = 1;
    info.format = path.endsWith(QStringLiteral(".wav"), Qt::CaseInsensitive)
                      ? SF_FORMAT_WAV | SF_FORMAT_PCM_16
                      : SF_FORMAT_CAF | SF_FORMAT_ALAC_16;
    m_file = audio::openSoundFile(path, SFM_WRITE, info);
    if (!m_file)
        return m_error = QStringLiteral("The recording %1 cannot be written: %2")
                             .arg(path, QString::fromUtf8(sf_strerror(nullptr)));

    m_resampler = std::make_unique<Mono16kResampler>(
        format.sampleRate(), [this](std::span<const int16_t> samples) -> int32_t {
            const auto count = static_cast<sf_count_t>(samples.size());
            return sf_write_short(m_file.get(), samples.data(), count) == count ? 0 : -1;
        });
    if (!m_resampler->isValid()) {
        const QString reason = m_resampler->error();
        m_file.reset();
        return m_error = QStringLiteral("cannot convert %1 Hz to 16 kHz: %2")
                             .arg(QString::number(format.sampleRate()), reason);
    }
    return {};
}

bool RecordingWriter::write(QByteArrayView pcm)
{
    m_lastPeak = 0.0F;
    if (!m_file)
        return false;
    const int channels = m_format.channelCount();
    const int sampleBytes = m_format.bytesPerSample();
    const qsizetype frameBytes = m_format.bytesPerFrame();
    const qsizetype frames = pcm.size() / frameBytes;
    m_mono.resize(static_cast<size_t>(frames));
    for (qsizetype frame = 0; frame < frames; ++frame) {
        const char *at = pcm.data() + frame * frameBytes;
        float sum = 0.0F;
        for (int channel = 0; channel < channels; ++channel) {
            const float value = m_format.normalizedSampleValue(at + channel * sampleBytes);
            if (channel == 0)
                m_lastPeak = std::max(m_lastPeak, std::abs(value));
            sum += value;
        }
        m_mono[static_cast<size_t>(frame)] = sum / static_cast<float>(channels);
    }
    if (m_resampler->push(m_mono) != 0)
        return fail(QStringLiteral("cannot write the recording %1"));
    m_frames += frames;
    return true;
}

bool RecordingWriter::finish()
{
    if (!m_file)
        return false;
    const bool flushed = m_resampler->finish() == 0;
    // Closing writes the packet table without which an ALAC file does not read back.
    m_resampler.reset();
    const int closed = sf_close(m_file.release());
    if (!flushed || closed != 0)
        return fail(QStringLiteral("cannot finish the recording %1"));
    return true;
}

bool RecordingWriter::fail(const QString &what)
{
    m_error = what.arg(m_path);
    m_resampler.reset();
    m_file.reset();
    return false;
}
