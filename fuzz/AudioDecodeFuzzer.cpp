#include "audio/VoAudioUtil.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <cstdint>

namespace {

// Whatever a decoder fills in, `size` must count exactly the bytes in `data`, and the samples
// made of them must be size / 2, or the recogniser would read past them.
void checkRecord(const AudioDataInfo &record)
{
    if (record.size != record.data.size() || VoAudioUtil::getAudioDataShortForByte(record).size() !=
                                                 static_cast<size_t>(record.size / 2))
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    // A failure line per input would drown the fuzzer's own output.
    QLoggingCategory::setFilterRules(QStringLiteral("tolvane.*=false"));
    return 0;
}

// The decoders take paths only, so every input becomes a file, which both readers see.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("input"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    }

    AudioDataInfo decoded;
    if (VoAudioUtil::decodeAudioDataFromFile(path, decoded) == 0 && decoded.size == 0)
        __builtin_trap();
    checkRecord(decoded);
    AudioDataInfo wave;
    VoAudioUtil::decodeWaveData(path, wave);
    checkRecord(wave);
    return 0;
}
