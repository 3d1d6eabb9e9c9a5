#pragma once

#include "audio/VoAudioUtil.h"
#include "support/TestPaths.h"

#include <vector>

/// The course's "Guten Morgen!" in espeak-ng's German voice (MP3).
inline QString gutenMorgenVoice()
{
    return TestPaths::course() + QStringLiteral("/1/voices/101.mp3");
}

/// A recording's samples as the app hands them to the recogniser; none when it does not decode.
inline std::vector<int16_t> decodedSamples(const QString &path)
{
    AudioDataInfo audio;
    if (VoAudioUtil::decodeAudioDataFromFile(path, audio) != 0)
        return {};
    return VoAudioUtil::getAudioDataShortForByte(audio);
}
