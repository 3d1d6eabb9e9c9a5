#include "SoundFileReader.h"

#include "AudioDecodeStatus.h"
#include "AudioLog.h"
#include "content/VoLog.h"

#include <QByteArray>
#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <vector>

namespace {

// Each read asks for about this many bytes of samples, so memory stays flat whatever the file.
constexpr sf_count_t chunkBytes = 8192;

// Below 4 kHz nothing of speech survives to assess. Refusing such rates also keeps a damaged
// header from blowing a few bytes up into gigabytes of resampled output.
constexpr int lowestConvertedRate = 4000;

void logError(const QString &text)
{
    VoLog::write(lcAudio(), VoLog::Error, text);
}

sf_count_t framesPerChunk(size_t bytesPerFrame)
{
    return std::max<sf_count_t>(1, chunkBytes / static_cast<sf_count_t>(bytesPerFrame));
}

struct Progress {
    int32_t status{0};
    sf_count_t frames{0};
    bool sinkStopped{false};
};

template <typename Sample> using ReadFrames = sf_count_t (*)(SNDFILE *, Sample *, sf_count_t);

// Reads whole frames chunk by chunk; `pack` writes `count` samples as `width` bytes each.
template <typename Sample, typename Pack>
Progress streamFrames(SNDFILE *file, int channels, int width, ReadFrames<Sample> read,
                      const Pack &pack, const SoundFileReader::ByteSink &sink)
{
    const sf_count_t frames = framesPerChunk(sizeof(Sample) * static_cast<size_t>(channels));
    std::vector<Sample> samples(static_cast<size_t>(frames * channels));
    QByteArray bytes(frames * channels * width, Qt::Uninitialized);
    Progress progress;
    for (sf_count_t n = 0; (n = read(file, samples.data(), frames)) > 0;) {
        progress.frames += n;
        const qsizetype count = n * channels;
        pack(samples.data(), count, bytes.data());
        progress.status = sink(QByteArrayView(bytes.constData(), count * width));
        if (progress.status != 0) {
            progress.sinkStopped = true;
            break;
        }
    }
    return progress;
}

void copySamples(const auto *samples, qsizetype count, char *out)
{
    std::memcpy(out, samples, static_cast<size_t>(count) * sizeof(*samples));
}

} // namespace

SoundFileReader::SoundFileReader(const QString &path)
    : m_path(path)
    , m_file(audio::openSoundFile(path, SFM_READ, m_info))
{
    if (!m_file) {
        m_openStatus = std::max(sf_error(nullptr), 1);
        logError(QStringLiteral("can not open the file: %1 (%2)")
                     .arg(path, QString::fromUtf8(sf_strerror(nullptr))));
    } else if (m_info.channels < 1 || m_info.samplerate < 1) {
        m_openStatus = AudioDecodeStatus::unsupportedFormat;
        logError(QStringLiteral("can not get the data format of the file: %1").arg(path));
    } else if (m_info.frames == SF_COUNT_MAX) {
        m_openStatus = AudioDecodeStatus::unsupportedFormat;
        logError(QStringLiteral("can not get the length in frames of the file: %1").arg(path));
    } else if (m_info.frames < 1) {
        m_openStatus = AudioDecodeStatus::noAudio;
        logError(QStringLiteral("the file holds no audio frames: %1").arg(path));
    }
}

int SoundFileReader::linearPcmBytesPerSample() const
{
    // FLAC names its bit depth with the PCM codes, yet its stream is compressed. µ-law and A-law
    // bytes are codes, not sample values, so they count as compressed too and arrive as 16-bit
    // samples like every other encoding that is not linear PCM.
    if ((m_info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_FLAC)
        return 0;
    switch (m_info.format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
        return 1;
    case SF_FORMAT_PCM_16:
        return 2;
    case SF_FORMAT_PCM_24:
        return 3;
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_FLOAT:
        return 4;
    case SF_FORMAT_DOUBLE:
        return 8;
    default:
        return 0;
    }
}

int32_t SoundFileReader::readOwnFormat(const ByteSink &sink)
{
    const int width = linearPcmBytesPerSample();
    if (m_openStatus != 0 || width == 0)
        return m_openStatus != 0 ? m_openStatus : AudioDecodeStatus::unsupportedFormat;

    const int channels = m_info.channels;
    const int subformat = m_info.format & SF_FORMAT_SUBMASK;
    Progress progress;
    if (subformat == SF_FORMAT_PCM_16) {
        progress = streamFrames<short>(m_file.get(), channels, width, &sf_readf_short,
                                       copySamples<short>, sink);
    } else if (subformat == SF_FORMAT_FLOAT) {
        progress = streamFrames<float>(m_file.get(), channels, width, &sf_readf_float,
                                       copySamples<float>, sink);
    } else if (subformat == SF_FORMAT_DOUBLE) {
        progress = streamFrames<double>(m_file.get(), channels, width, &sf_readf_double,
                                        copySamples<double>, sink);
    } else {
        // libsndfile hands every integer width over left-aligned in 32 bits: shifting back gives
        // the stored value, and WAV's unsigned 8-bit samples get their offset of 128 back.
        const int shift = 32 - 8 * width;
        const int32_t offset = subformat == SF_FORMAT_PCM_U8 ? 128 : 0;
        const int skipped = std::endian::native == std::endian::big ? 4 - width : 0;
        const auto pack = [=](const int *samples, qsizetype count, char *out) {
            for (qsizetype i = 0; i < count; ++i) {
                const int32_t value = (samples[i] >> shift) + offset;
                std::memcpy(out + i * width, reinterpret_cast<const char *>(&value) + skipped,
                            static_cast<size_t>(width));
            }
        };
        progress = streamFrames<int>(m_file.get(), channels, width, &sf_readf_int, pack, sink);
    }
    return finishReading(progress.status, progress.frames, progress.sinkStopped, {});
}

int32_t SoundFileReader::readConverted(const Mono16kResampler::SampleSink &sink)
{
    if (m_openStatus != 0)
        return m_openStatus;
    if (m_info.samplerate < lowestConvertedRate) {
        logError(QStringLiteral("can not set the output format for the file: %1 (%2 Hz is below "
                                "the lowest rate converted, %3 Hz)")
                     .arg(m_path, QString::number(m_info.samplerate),
                          QString::number(lowestConvertedRate)));
        return AudioDecodeStatus::unsupportedFormat;
    }
    bool sinkStopped = false;
    Mono16kResampler resampler(m_info.samplerate, [&](std::span<const int16_t> samples) {
        const int32_t status = sink(samples);
        sinkStopped = status != 0;
        return status;
    });
    if (!resampler.isValid()) {
        logError(QStringLiteral("can not set the output format for the file: %1 (%2)")
                     .arg(m_path, resampler.error()));
        return AudioDecodeStatus::conversionFailed;
    }

    const int channels = m_info.channels;
    const sf_count_t frames = framesPerChunk(sizeof(float) * static_cast<size_t>(channels));
    std::vector<float> interleaved(static_cast<size_t>(frames * channels));
    std::vector<float> mono(static_cast<size_t>(frames));
    sf_count_t framesRead = 0;
    int32_t status = 0;
    for (sf_count_t n = 0;
         status == 0 && (n = sf_readf_float(m_file.get(), interleaved.data(), frames)) > 0;) {
        framesRead += n;
        for (sf_count_t frame = 0; frame < n; ++frame) {
            const float *first = interleaved.data() + frame * channels;
            mono[static_cast<size_t>(frame)] =
                std::accumulate(first, first + channels, 0.0F) / static_cast<float>(channels);
        }
        status = resampler.push(std::span(mono.data(), static_cast<size_t>(n)));
    }
    if (status == 0)
        status = resampler.finish();
    return finishReading(status, framesRead, sinkStopped, resampler.error());
}

// The reader's own failures get one line here; the sink has dealt with its own.
int32_t SoundFileReader::finishReading(int32_t status, sf_count_t framesRead, bool sinkStopped,
                                       const QString &conversionError)
{
    if (sinkStopped)
        return status;
    QString reason = conversionError;
    if (status == 0 && sf_error(m_file.get()) != SF_ERR_NO_ERROR) {
        status = sf_error(m_file.get());
        reason = QString::fromUtf8(sf_strerror(m_file.get()));
    }
    if (status == 0 && framesRead < m_info.frames) {
        status = AudioDecodeStatus::truncated;
        reason = QStringLiteral("it ends after %1 of its %2 frames")
                     .arg(QString::number(framesRead), QString::number(m_info.frames));
    }
    if (status != 0)
        logError(QStringLiteral("can not read data from the file: %1 (%2)").arg(m_path, reason));
    return status;
}
