#pragma once

#include <QString>

/**
 * @brief Speaks German text with espeak-ng and stores it as MP3.
 *
 * Learners hear these recordings at up to twice the speed, so the voice speaks a little slower
 * than espeak-ng's default and leaves a short silence before and after the phrase.
 */
class VoiceSynthesizer {
public:
    /// Changes whenever the voice settings change, so that the build makes every file anew.
    static constexpr const char *settingsVersion = "de/140wpm/pad250ms/mp3-v1";

    /// Writes the MP3 file; on failure returns false and fills error.
    static bool speak(const QString &text, const QString &mp3Path, QString &error);
};
