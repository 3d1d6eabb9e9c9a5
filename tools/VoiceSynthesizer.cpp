#include "VoiceSynthesizer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>
#include <sndfile.h>
#include <vector>

namespace {

struct SndfileCloser {
    void operator()(SNDFILE *file) const { sf_close(file); }
};
using SndfilePtr = std::unique_ptr<SNDFILE, SndfileCloser>;

constexpr double paddingSeconds = 0.25;

} // namespace

bool VoiceSynthesizer::speak(const QString &text, const QString &mp3Path, QString &error)
{
    QTemporaryDir scratch;
    const QString wavPath = scratch.filePath(QStringLiteral("voice.wav"));
    QProcess espeak;
    espeak.start(QStringLiteral("espeak-ng"),
                 {QStringLiteral("-v"), QStringLiteral("de"), QStringLiteral("-s"),
                  QStringLiteral("140"), QStringLiteral("--stdin"), QStringLiteral("-w"), wavPath});
    if (!espeak.waitForStarted()) {
        error = QStringLiteral("cannot start espeak-ng (is it installed?)");
        return false;
    }
    espeak.write(text.toUtf8());
    espeak.closeWriteChannel();
    if (!espeak.waitForFinished(60000) || espeak.exitCode() != 0) {
        error = QStringLiteral("espeak-ng failed on \"%1\": %2")
                    .arg(text, QString::fromLocal8Bit(espeak.readAllStandardError()));
        return false;
    }

    SF_INFO inputInfo{};
    const SndfilePtr input(sf_open(QFile::encodeName(wavPath).constData(), SFM_READ, &inputInfo));
    if (!input || inputInfo.channels != 1) {
        error = QStringLiteral("espeak-ng wrote no mono WAV for \"%1\"").arg(text);
        return false;
    }
    const auto padding = static_cast<std::size_t>(paddingSeconds * inputInfo.samplerate);
    std::vector<short> samples(padding + static_cast<std::size_t>(inputInfo.frames) + padding, 0);
    sf_read_short(input.get(), samples.data() + padding, inputInfo.frames);

    // Write beside the target and rename, so an interrupted build never leaves half a file.
    const QString partPath = mp3Path + QStringLiteral(".part");
    SF_INFO outputInfo{};
    outputInfo.samplerate = inputInfo.samplerate;
    outputInfo.channels = 1;
    outputInfo.format = SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;
    {
        const SndfilePtr output(
            sf_open(QFile::encodeName(partPath).constData(), SFM_WRITE, &outputInfo));
        if (!output) {
            error = QStringLiteral("cannot write %1: %2")
                        .arg(partPath, QString::fromUtf8(sf_strerror(nullptr)));
            return false;
        }
        double quality = 0.4; // variable bit rate, compression level 0 (best) .. 1 (smallest)
        sf_command(output.get(), SFC_SET_COMPRESSION_LEVEL, &quality, sizeof quality);
        const auto frames = static_cast<sf_count_t>(samples.size());
        if (sf_write_short(output.get(), samples.data(), frames) != frames) {
            error = QStringLiteral("cannot encode %1").arg(mp3Path);
            return false;
        }
    }
    QFile::remove(mp3Path);
    if (!QFile::rename(partPath, mp3Path)) {
        error = QStringLiteral("cannot move %1 into place").arg(mp3Path);
        return false;
    }
    return true;
}
