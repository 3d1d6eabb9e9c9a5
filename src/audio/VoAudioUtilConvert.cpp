#include "AudioDecodeStatus.h"
#include "AudioLog.h"
#include "SoundFileReader.h"
#include "VoAudioUtil.h"
#include "content/VoFileUtil.h"
#include "content/VoLog.h"

#include <QFile>
#include <QFileInfo>

// The samples go to a file beside the target that replaces it only when complete, so a failed
// conversion leaves no half-written file under the target's name.
void VoAudioUtil::convert2PCM(const QString &sourcePath, const QString &pcmFileName)
{
    SoundFileReader reader(sourcePath);
    if (reader.openStatus() != 0)
        return;

    const QString target = VoFileUtil::getDocumentsDirectory() + pcmFileName;
    const QString partial = target + QStringLiteral(".part");
    SF_INFO format{};
    format.samplerate = Mono16kResampler::outputRate;
    format.channels = 1;
    format.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    audio::SndfilePtr output = audio::openSoundFile(partial, SFM_WRITE, format);
    if (!output) {
        VoLog::write(lcAudio(), VoLog::Error,
                     QStringLiteral("can't create the file %1... die! (%2)")
                         .arg(partial, QString::fromUtf8(sf_strerror(nullptr))));
        return;
    }
    int32_t status = reader.readConverted([&](std::span<const int16_t> samples) {
        const auto count = static_cast<sf_count_t>(samples.size());
        return sf_write_short(output.get(), samples.data(), count) == count
                   ? 0
                   : AudioDecodeStatus::writeFailed;
    });
    const QString writeError = QString::fromUtf8(sf_strerror(output.get()));
    // Closing writes the header's final lengths, so it can fail too.
    if (sf_close(output.release()) != 0 && status == 0)
        status = AudioDecodeStatus::writeFailed;
    if (status == AudioDecodeStatus::writeFailed)
        VoLog::write(
            lcAudio(), VoLog::Error,
            QStringLiteral("error: can not write the file %1 (%2)").arg(partial, writeError));
    if (status != 0) {
        QFile::remove(partial);
        return;
    }
    QFile::remove(target);
    if (!QFile::rename(partial, target)) {
        VoLog::write(lcAudio(), VoLog::Error,
                     QStringLiteral("error: can not move %1 to %2").arg(partial, target));
        QFile::remove(partial);
        return;
    }
    VoLog::write(lcAudio(), VoLog::Progress,
                 QStringLiteral("done. file size is %1").arg(QFileInfo(target).size()));
}
