#pragma once

#include "AudioDataInfo.h"

#include <QString>
#include <cstdint>
#include <vector>

/**
 * @brief Turns audio files into 16-bit PCM for the recogniser.
 *
 * Compressed input (MP3, ALAC, FLAC, Ogg, ...) arrives as 16 kHz mono 16-bit samples;
 * uncompressed input (WAV and other linear PCM) arrives in its own sample format, untouched.
 * The record describes the file, not the delivered samples, a quirk the callers rely on.
 */
class VoAudioUtil {
public:
    /// 0 on success; otherwise a libsndfile error number or one of AudioDecodeStatus, with one
    /// log line saying what failed and where. On failure the record is left as it was.
    static int32_t decodeAudioDataFromFile(const QString &path, AudioDataInfo &audioData);

    /// Any sound file as the recogniser hears it: 16 kHz mono 16-bit samples, converted when the
    /// file holds anything else (a 44.1 kHz stereo WAV too), taken as stored when it is already
    /// that. A file longer than maxSamples gives AudioDecodeStatus::tooLarge. Status as
    /// decodeAudioDataFromFile(); on failure the samples are left empty.
    static int32_t decodeSpeechSamples(const QString &path, std::vector<int16_t> &samples,
                                       size_t maxSamples);

    /// The bytes as native-order 16-bit samples, size / 2 of them.
    [[nodiscard]] static std::vector<int16_t> getAudioDataShortForByte(const AudioDataInfo &info);

    /// Reads this app's own WAV-like layout (see the implementation); a file that does not match
    /// leaves the record as it was.
    static void decodeWaveData(const QString &path, AudioDataInfo &audioData);

    /// Writes the source's audio as 16 kHz mono 16-bit PCM WAV to the documents folder under the
    /// given file name, replacing any file there.
    static void convert2PCM(const QString &sourcePath, const QString &pcmFileName);
};
