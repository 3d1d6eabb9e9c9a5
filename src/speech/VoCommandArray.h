#pragma once

#include <QString>
#include <QStringList>

/**
 * @brief The decoder settings this app recognises with, as the option list a decoder is
 * started from.
 *
 * Every option not listed keeps the decoder's default. The beams are wider than the decoder's
 * own (1e-48 and 1e-64) because a phrase's model holds only a handful of words, so the search
 * stays cheap while a learner's unsure pronunciation is not pruned away early.
 */
class VoCommandArray {
public:
    /// The rate of the samples the decoder is fed; the audio decoder delivers this rate.
    static constexpr int sampleRate = 16000;

    /// Fourteen texts, each option followed by its value: "-lm" (or "-jsgf" for a JSGF
    /// grammar), "-beam", "-dict", "-fwdflatbeam", "-hmm", "-lw", "-samprate".
    [[nodiscard]] QStringList commandArrayForLanguageModel(const QString &languageModelPath,
                                                           const QString &dictionaryPath,
                                                           const QString &acousticModelPath,
                                                           bool isJSGF) const;
};
