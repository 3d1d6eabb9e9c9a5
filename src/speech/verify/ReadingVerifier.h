#pragma once

#include "ReadingVerification.h"
#include "VerificationDecoder.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

/**
 * @brief Checks a reading against its phrase acoustically: how well the phrase's own sounds fit
 * the recording, against how well any sounds would (goodness of pronunciation).
 *
 * The phrase's phones, word by word with each word's alternate pronunciations, are aligned to
 * the recording by a grammar that allows only them in order, with silence and noise between;
 * a free loop of phones decodes the same samples. Over each aligned phone, the difference of
 * the two acoustic scores per frame is its goodness: near 0 when the phone is what was said,
 * far below it when something else was. A word's goodness is its phones' frames' mean.
 *
 * Words are the quizzes' split, so umlauts and ß count: they take their pronunciation from the
 * acoustic folder's whole-word list, the others from the phrase's generated dictionary. A
 * verifier keeps its two decoders (the alignment's and the loop's, which run at the same time)
 * for the next reading; use it from one thread at a time.
 */
class ReadingVerifier {
public:
    /// Goodness at and above which a word was heard well, and below which it is missing.
    /// Set from the course's model recordings judged against their own phrases and others' (see
    /// the quality table in bench/RESULTS.md).
    static constexpr double heardWellGoodness = -30.0;
    static constexpr double missingGoodness = -60.0;
    /// What an unaligned word's goodness reads: well below anything an aligned word gets.
    static constexpr double unalignedGoodness = -100.0;
    /// The acoustic folder's pronunciations of the course's words the recogniser cannot split
    /// whole ("BRÖTCHEN"), in the lookup list's layout.
    static constexpr char wholeWordListFileName[] = "WholeWordLookupList.text";

    explicit ReadingVerifier(QString acousticModelPath);

    [[nodiscard]] const QString &acousticModelPath() const { return m_acousticModelPath; }

    /// Checks 16 kHz mono samples against the phrase; ipa is the phrase's transcription, word by
    /// word (may be empty), and dictionaryPath the phrase's generated dictionary.
    [[nodiscard]] ReadingVerification verify(const QString &phrase, const QString &ipa,
                                             const QString &dictionaryPath,
                                             const std::vector<int16_t> &samples);

private:
    /// The alternates of each word's phones; empty for a word with no known pronunciation.
    [[nodiscard]] QList<QList<QStringList>> pronunciations(const QStringList &words,
                                                           const QString &dictionaryPath);

    QString m_acousticModelPath;
    std::optional<QHash<QString, QList<QStringList>>> m_wholeWords;
    std::optional<VerificationDecoder> m_aligner;
    std::optional<VerificationDecoder> m_loop;
};
