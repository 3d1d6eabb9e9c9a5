#pragma once

#include "DecoderArguments.h"
#include "SphinxHandles.h"
#include "audio/AudioDataInfo.h"
#include "audio/AudioPowerSpectrumInfo.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

class RecognitionClock;
class VoCommandArray;

/**
 * @brief Recognises one recording against a phrase's dictionary and language model, and scores
 * the recognised words against the phrase.
 *
 * A recogniser serves one recording: the WAV entry point decodes the file to 16 kHz mono
 * samples, runs the decoder over the whole utterance at once, and keeps the hypothesis, one word
 * result per segment and the recording's log power spectrum. The scorer needs no instance.
 *
 * A word result is a record with the keys "word", "startFrame", "endFrame", "acousticScore",
 * "lmScore" (qint64), "probability" (int, the decoder's log base), "logProbability" (float:
 * despite its name the linear posterior, 0..1) and "lmWeightFactor" (float).
 *
 * The decoder runs with silence removal off, so its frames are the recording's frames: frame f
 * starts at sample f x the frame shift, and the spectrum's row f is that same frame. Its dither
 * has a fixed seed: the same recording gives the same results every time.
 */
class VoPSRecognizer {
public:
    VoPSRecognizer();
    ~VoPSRecognizer();
    VoPSRecognizer(const VoPSRecognizer &) = delete;
    VoPSRecognizer &operator=(const VoPSRecognizer &) = delete;

    /// Recordings longer than this are refused with a log line: a phrase takes seconds, and the
    /// decoder's search and the spectrum grow with the length.
    static constexpr double longestRecordingSeconds = 60.0;

    /// Developer switches, off in normal use and shared by the whole process: the recogniser's
    /// own traces (standard output) and the decoder library's log (standard error).
    static void setVerboseRecognizer(bool on);
    static void setVerboseDecoder(bool on);

    /// Decodes the file to 16 kHz samples and recognises them; fills every result. On a failure
    /// (no decoder, undecodable or over-long audio) the results keep their previous values,
    /// empty on a fresh recogniser.
    void runRecognitionOnWavFileAtPath(const QString &wavPath, const QString &languageModelPath,
                                       const QString &dictionaryPath,
                                       const QString &acousticModelPath, bool languageModelIsJSGF);
    /// The same for 16 kHz mono samples already in memory; audioDataInfo is left as it was.
    void runRecognitionOnSamples(std::vector<int16_t> samples, const QString &languageModelPath,
                                 const QString &dictionaryPath, const QString &acousticModelPath,
                                 bool languageModelIsJSGF);
    /// Headerless 16-bit PCM; fills wordsInfo only and prints the hypothesis to standard output.
    /// 0 on success, 1 on failure.
    int runRecognitionOnRawFileAtPath(const QString &rawPath, const QString &languageModelPath,
                                      const QString &dictionaryPath,
                                      const QString &acousticModelPath);

    /// A decoder configured by VoCommandArray, or null (logged) when it cannot start.
    [[nodiscard]] sphinx::DecoderPtr initializeDecoder(const QString &languageModelPath,
                                                       const QString &dictionaryPath,
                                                       const QString &acousticModelPath,
                                                       bool languageModelIsJSGF);
    /// The commands' option list wrapped for the option parser; null when it has fewer than 3
    /// texts.
    [[nodiscard]] static std::optional<DecoderArguments>
    setUpCommandArray(const VoCommandArray &commands, bool secondItemIsEmpty,
                      const QString &languageModelPath, const QString &dictionaryPath,
                      const QString &acousticModelPath, bool isJSGF);

    [[nodiscard]] const QString &hypothesis() const { return m_hypothesis; }
    [[nodiscard]] const QList<QVariantMap> &wordsInfo() const { return m_wordsInfo; }
    [[nodiscard]] const AudioPowerSpectrumInfo &powerSpectrumInfo() const
    {
        return m_powerSpectrumInfo;
    }
    [[nodiscard]] const AudioDataInfo &audioDataInfo() const { return m_audioDataInfo; }
    [[nodiscard]] const std::vector<int16_t> &audioData() const { return m_audioData; }

    // The scorer.

    /// The phrase score, 0..100, from the recognised words; fills the advice record with
    /// "no_voice", "no_right_word", "wrong_sequence" and "words_score" as they apply.
    static float getScore(const QList<QVariantMap> &wordsInfo, const QString &standardSentence,
                          QVariantMap &advices);
    /// The recogniser's word split (ASCII letters and apostrophes), logged.
    [[nodiscard]] static QStringList getAllWordFromText(const QString &text, bool uppercased);
    /// Each distinct upper-cased word with its number of occurrences, in order of first use.
    [[nodiscard]] static QList<std::pair<QString, int32_t>> getWordsCount(const QString &text);
    /// "logProbability" x 100.
    [[nodiscard]] static float getWordScore(const QVariantMap &wordResult);

    /// Whether a recording of this many samples is short enough to recognise; logs why not,
    /// naming the source.
    [[nodiscard]] static bool acceptsLength(size_t sampleCount, const QString &source);

private:
    /// Steps shared by both entry points once the utterance is open and the samples are stored.
    void recognizeUtterance(ps_decoder_t *decoder, RecognitionClock &clock);
    /// Rows for the first frameCount frames of the stored samples.
    void generateLogPowerSpectrumData(ps_decoder_t *decoder, uint64_t frameCount);
    void getEveryWordProb(ps_decoder_t *decoder);

    std::vector<int16_t> m_audioData;
    QString m_hypothesis;
    QList<QVariantMap> m_wordsInfo;
    AudioPowerSpectrumInfo m_powerSpectrumInfo;
    AudioDataInfo m_audioDataInfo;
};
