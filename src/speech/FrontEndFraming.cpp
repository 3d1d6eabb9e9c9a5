#include "FrontEndFraming.h"

#include "DecoderArguments.h"
#include "SpeechLog.h"
#include "SphinxHandles.h"
#include "content/VoLog.h"

#include <QFile>
#include <cmath>

bool FrontEndFraming::isUsable() const
{
    return frameLength > 0 && frameShift > 0 && fftSize >= frameLength && fftSize % 2 == 0;
}

uint64_t FrontEndFraming::frameCount(size_t sampleCount) const
{
    if (sampleCount == 0 || !isUsable())
        return 0;
    const auto length = static_cast<size_t>(frameLength);
    const auto shift = static_cast<size_t>(frameShift);
    const size_t fullFrames = sampleCount < length ? 0 : 1 + (sampleCount - length) / shift;
    // After the last full frame the front end still holds at least frameLength - frameShift
    // samples (or, short of one frame, all of them), and it turns those into one last frame.
    return fullFrames + 1;
}

FrontEndFraming FrontEndFraming::fromConfig(cmd_ln_t *config)
{
    const double sampleRate = cmd_ln_float_r(config, "-samprate");
    const double frameRate = static_cast<double>(cmd_ln_int_r(config, "-frate"));
    FrontEndFraming framing;
    framing.frameLength =
        static_cast<int>(std::lround(cmd_ln_float_r(config, "-wlen") * sampleRate));
    framing.frameShift = frameRate > 0 ? static_cast<int>(std::lround(sampleRate / frameRate)) : 0;
    framing.fftSize = static_cast<int>(cmd_ln_int_r(config, "-nfft"));
    framing.preEmphasis = cmd_ln_float_r(config, "-alpha");
    framing.removeDc = cmd_ln_boolean_r(config, "-remove_dc");
    return framing;
}

std::optional<FrontEndFraming> FrontEndFraming::ofAcousticModel(const QString &acousticModelPath)
{
    const QString paramsPath = acousticModelPath + QStringLiteral("/feat.params");
    const std::vector<arg_t> definitions = decoderOptionDefinitions();
    const sphinx::ConfigPtr config(cmd_ln_parse_file_r(
        nullptr, definitions.data(), QFile::encodeName(paramsPath).constData(), FALSE));
    if (!config) {
        VoLog::write(
            lcSpeech(), VoLog::Error,
            QStringLiteral("can not read the front end's parameters from %1").arg(paramsPath));
        return std::nullopt;
    }
    const FrontEndFraming framing = fromConfig(config.get());
    if (!framing.isUsable()) {
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("the front end's parameters in %1 give no usable frames")
                         .arg(paramsPath));
        return std::nullopt;
    }
    return framing;
}
