#include "VoAudioUtil.h"

#include "AudioDecodeStatus.h"
#include "AudioLog.h"
#include "SoundFileReader.h"
#include "content/VoLog.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr int32_t largestSize = std::numeric_limits<int32_t>::max();

void logTooLarge(const QString &path)
{
    VoLog::write(lcAudio(), VoLog::Error,
                 QStringLiteral("the decoded audio would not fit in a record of at most %1 "
                                "bytes: %2")
                     .arg(QString::number(largestSize), path));
}

} // namespace

// `data` holds exactly the bytes decoded and `size` counts them, so a caller that takes size / 2
// samples never reads past the last real one. The length the file's header promised (the bytes
// a frame x its frames, which for compressed input at a rate above 16 kHz overstates what the
// conversion yields) only appears in the progress line. On failure the record stays as it was.
int32_t VoAudioUtil::decodeAudioDataFromFile(const QString &path, AudioDataInfo &audioData)
{
    SoundFileReader reader(path);
    if (reader.openStatus() != 0)
        return reader.openStatus();
    const SF_INFO &info = reader.info();
    const int width = reader.linearPcmBytesPerSample();
    const bool converted = width == 0;

    // The format as the file describes it: compressed formats have no fixed frame or packet size.
    VoLog::write(lcAudio(), VoLog::Progress,
                 QStringLiteral("The audio data format from the file \"%1\":\nBitsPerChannel:%2 "
                                "\nBytesPerFrame: %3 \nBytesPerPacket: %3 \nChannelsPerFrame: %4 "
                                "\nFormatFlags: %5 \nFormatID: %6 \nFramesPerPacket: %7 ")
                     .arg(path, QString::number(8 * width), QString::number(width * info.channels),
                          QString::number(info.channels),
                          QString::number(info.format & SF_FORMAT_ENDMASK, 16),
                          QString::number(info.format & ~SF_FORMAT_ENDMASK, 16),
                          QString::number(converted ? 0 : 1)));

    // What the record reports for converted input is kept from the original decoder: 2 bytes a
    // frame and 8 bits a channel, although the samples delivered are 16-bit.
    const int bitsPerChannel = converted ? 8 : 8 * width;
    const int bytesPerFrame = converted ? 2 : width * info.channels;
    if (bitsPerChannel * info.channels > std::numeric_limits<int16_t>::max()) {
        VoLog::write(
            lcAudio(), VoLog::Error,
            QStringLiteral("can not get the data format of the file: %1 (%2 channels of "
                           "%3 bits are more than a record holds)")
                .arg(path, QString::number(info.channels), QString::number(bitsPerChannel)));
        return AudioDecodeStatus::unsupportedFormat;
    }
    const auto frames = static_cast<double>(info.frames);
    const double deliveredBytes =
        converted ? 2.0 * std::ceil(frames * Mono16kResampler::outputRate / info.samplerate)
                  : bytesPerFrame * frames;
    if (deliveredBytes > largestSize) {
        logTooLarge(path);
        return AudioDecodeStatus::tooLarge;
    }

    // The header's length can understate what a damaged stream goes on to deliver.
    QByteArray data;
    // Samples delivered as stored take no more room than the file, whatever its header claims.
    if (!converted)
        data.reserve(std::min(static_cast<qint64>(deliveredBytes), QFileInfo(path).size()));
    const auto append = [&data](QByteArrayView chunk) {
        if (chunk.size() > largestSize - data.size())
            return AudioDecodeStatus::tooLarge;
        data.append(chunk);
        return int32_t{0};
    };
    const int32_t status =
        converted ? reader.readConverted([&append](std::span<const int16_t> samples) {
            return append(QByteArrayView(reinterpret_cast<const char *>(samples.data()),
                                         static_cast<qsizetype>(samples.size_bytes())));
        })
                  : reader.readOwnFormat(append);
    if (status == AudioDecodeStatus::tooLarge)
        logTooLarge(path);
    if (status != 0)
        return status;
    if (data.isEmpty()) {
        VoLog::write(lcAudio(), VoLog::Error,
                     QStringLiteral("the file holds no audio frames: %1").arg(path));
        return AudioDecodeStatus::noAudio;
    }

    VoLog::write(
        lcAudio(), VoLog::Progress,
        QStringLiteral("The sum of %1 data, have read %2 from the file: %3")
            .arg(QString::number(bytesPerFrame * info.frames), QString::number(data.size()), path));
    audioData.size = static_cast<int32_t>(data.size());
    audioData.data = std::move(data);
    audioData.channels = static_cast<int16_t>(info.channels);
    audioData.bits_per_sample = static_cast<int16_t>(bitsPerChannel * info.channels);
    audioData.sample_rate = static_cast<uint64_t>(info.samplerate);
    audioData.format_tag = static_cast<uint64_t>(info.format & ~SF_FORMAT_ENDMASK);
    return 0;
}

int32_t VoAudioUtil::decodeSpeechSamples(const QString &path, std::vector<int16_t> &samples,
                                         size_t maxSamples)
{
    samples.clear();
    SoundFileReader reader(path);
    if (reader.openStatus() != 0)
        return reader.openStatus();
    const SF_INFO &info = reader.info();
    const bool asStored = info.samplerate == Mono16kResampler::outputRate && info.channels == 1 &&
                          reader.linearPcmBytesPerSample() == 2;
    const auto append = [&](const int16_t *first, size_t count) {
        if (count > maxSamples - samples.size())
            return AudioDecodeStatus::tooLarge;
        samples.insert(samples.end(), first, first + count);
        return int32_t{0};
    };
    const int32_t status = asStored ? reader.readOwnFormat([&](QByteArrayView bytes) {
        return append(reinterpret_cast<const int16_t *>(bytes.data()),
                      static_cast<size_t>(bytes.size()) / sizeof(int16_t));
    })
                                    : reader.readConverted([&](std::span<const int16_t> chunk) {
                                          return append(chunk.data(), chunk.size());
                                      });
    if (status == AudioDecodeStatus::tooLarge)
        VoLog::write(lcAudio(), VoLog::Error,
                     QStringLiteral("the file is longer than %1 s: %2")
                         .arg(QString::number(static_cast<double>(maxSamples) /
                                              Mono16kResampler::outputRate),
                              path));
    if (status == 0 && samples.empty()) {
        VoLog::write(lcAudio(), VoLog::Error,
                     QStringLiteral("the file holds no audio frames: %1").arg(path));
        return AudioDecodeStatus::noAudio;
    }
    if (status != 0)
        samples.clear();
    return status;
}

// A record filled by hand may claim more bytes than it holds: the samples it lacks stay 0, so the
// caller still gets the size / 2 samples it will hand on, and nothing is read past `data`.
std::vector<int16_t> VoAudioUtil::getAudioDataShortForByte(const AudioDataInfo &info)
{
    std::vector<int16_t> samples(static_cast<size_t>(std::max(info.size, 0) / 2));
    const qsizetype bytes =
        std::min(static_cast<qsizetype>(samples.size() * sizeof(int16_t)), info.data.size());
    if (bytes > 0)
        std::memcpy(samples.data(), info.data.constData(), static_cast<size_t>(bytes));
    return samples;
}
