#pragma once

#include "SphinxHandles.h"
#include "audio/AudioDataInfo.h"
#include "audio/AudioPowerSpectrumInfo.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <cstdint>
#include <utility>
#include <vector>

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
 */
class VoPSRecognizer {
public:
    VoPSRecognizer();
    ~VoPSRecognizer();
    VoPSRecognizer(const VoPSRecognizer &) = delete;
    VoPSRecognizer &operator=(const VoPSRecognizer &) = delete;

    /// Fills every result; on a failure (no decoder, undecodable audio) the results keep their
    /// previous values, empty on a fresh recogniser.
    void runRecognitionOnWavFileAtPath(const QString &wavPath, const QString &languageModelPath,
                                       const QString &dictionaryPath,
                                       const QString &acousticModelPath, bool languageModelIsJSGF);
    /// Headerless 16-bit PCM; fills wordsInfo only. 0 on success, 1 on failure.
    int runRecognitionOnRawFileAtPath(const QString &rawPath, const QString &languageModelPath,
                                      const QString &dictionaryPath,
                                      const QString &acousticModelPath);

    [[nodiscard]] sphinx::DecoderPtr initializeDecoder(const QString &languageModelPath,
                                                       const QString &dictionaryPath,
                                                       const QString &acousticModelPath,
                                                       bool languageModelIsJSGF);

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

private:
    void generateLogPowerSpectrumData(ps_decoder_t *decoder);
    void getEveryWordProb(ps_decoder_t *decoder);

    std::vector<int16_t> m_audioData;
    QString m_hypothesis;
    QList<QVariantMap> m_wordsInfo;
    AudioPowerSpectrumInfo m_powerSpectrumInfo;
    AudioDataInfo m_audioDataInfo;
};
