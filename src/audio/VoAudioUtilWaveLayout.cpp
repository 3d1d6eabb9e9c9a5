#include "AudioLog.h"
#include "VoAudioUtil.h"
#include "content/VoLog.h"

#include <QDataStream>
#include <QFile>
#include <algorithm>
#include <limits>

// This app's own WAV-like layout, little-endian, with fields as wide as the record's and a 64-byte
// header: "RIFF", 8 bytes unused, "WAVE", 4 unused, format_length (8 bytes), format_tag (2),
// channels (2), sample_rate (8), avg_bytes_sec (8), block_align (2), bits_per_sample (2), 4
// unused, the data length (8), then the data. A canonical WAV file does not pass: its "WAVE" sits
// at offset 8 and its fields are narrower.
void VoAudioUtil::decodeWaveData(const QString &path, AudioDataInfo &audioData)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        VoLog::write(lcAudio(), VoLog::Progress,
                     QStringLiteral("can not open the file: %1").arg(path));
        return;
    }
    const auto refuse = [&path](const char *reason) {
        VoLog::write(lcAudio(), VoLog::Error,
                     QStringLiteral("Error: %1 is not in this app's wave layout (%2)")
                         .arg(path, QString::fromUtf8(reason)));
    };
    QDataStream in(&file);
    in.setByteOrder(QDataStream::LittleEndian);
    const auto tagIs = [&in](const char *expected) {
        char tag[4] = {};
        return in.readRawData(tag, 4) == 4 && std::equal(tag, tag + 4, expected);
    };

    if (!tagIs("RIFF") || in.skipRawData(8) != 8 || !tagIs("WAVE")) {
        refuse("no RIFF and WAVE tags where they belong");
        return;
    }
    quint64 formatLength = 0;
    quint16 formatTag = 0;
    qint16 channels = 0;
    quint64 sampleRate = 0;
    quint64 avgBytesSec = 0;
    qint16 blockAlign = 0;
    qint16 bitsPerSample = 0;
    quint64 dataLength = 0;
    in.skipRawData(4);
    in >> formatLength >> formatTag >> channels >> sampleRate >> avgBytesSec >> blockAlign >>
        bitsPerSample;
    in.skipRawData(4);
    in >> dataLength;
    if (in.status() != QDataStream::Ok) {
        refuse("the header ends early");
        return;
    }
    // Checked before allocating, so a damaged length cannot ask for more memory than the file has.
    if (dataLength > static_cast<quint64>(file.bytesAvailable()) ||
        dataLength > static_cast<quint64>(std::numeric_limits<int32_t>::max())) {
        refuse("the data length exceeds the file");
        return;
    }
    const auto length = static_cast<int>(dataLength);
    QByteArray data(length, Qt::Uninitialized);
    if (in.readRawData(data.data(), length) != length) {
        refuse("the data can not be read");
        return;
    }
    audioData.format_length = formatLength;
    audioData.format_tag = formatTag;
    audioData.channels = channels;
    audioData.sample_rate = sampleRate;
    audioData.avg_bytes_sec = avgBytesSec;
    audioData.block_align = blockAlign;
    audioData.bits_per_sample = bitsPerSample;
    audioData.size = static_cast<int32_t>(data.size());
    audioData.data = std::move(data);
}
