#pragma once

#include "speech/SphinxHandles.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

/// The phone loop's language model, which the acoustic folder ships beside the model.
inline constexpr char phoneLanguageModelFileName[] = "en-us-phone.lm.bin";

/// @brief One segment a search put in its best path: a dictionary word over inclusive frames.
struct AlignedSegment {
    QString word;
    int startFrame{0};
    int endFrame{0};
    /// The segment's acoustic score, in the decoder's scaled log base.
    int32_t acousticScore{0};

    [[nodiscard]] int frames() const { return endFrame - startFrame + 1; }
};

/**
 * @brief The decoder that checks a reading: a forced alignment of the phrase's phones and a free
 * phone loop over the same samples, in one decoder with two searches.
 *
 * Made once per phrase model and kept for its recordings: loading the acoustic model is most of
 * a decoder's start. Its front end has no dither (the caller adds its own, so that runs on
 * several threads stay independent of the library's one shared random generator) and batch
 * normalisation, so both searches see the same features whatever ran before.
 */
class VerificationDecoder {
public:
    /// Null, logged, when the acoustic folder lacks the model, its dictionary or the phone
    /// loop's language model.
    [[nodiscard]] static std::optional<VerificationDecoder> create(const QString &acousticModelPath,
                                                                   const QString &dictionaryPath);

    /// Adds a word of one phone, once; false when the phone is not one of the model's.
    bool addPhoneWord(const QString &word, const QString &phone);
    /// The best path through the JSGF grammar; nothing when no path reached its end.
    [[nodiscard]] std::optional<QList<AlignedSegment>> align(const QString &grammar,
                                                             const std::vector<int16_t> &samples);
    /// The phones the free loop hears, fillers and silence included.
    [[nodiscard]] QList<AlignedSegment> phoneLoop(const std::vector<int16_t> &samples);

private:
    explicit VerificationDecoder(sphinx::DecoderPtr decoder);
    [[nodiscard]] bool decode(const char *search, const std::vector<int16_t> &samples);
    [[nodiscard]] QList<AlignedSegment> segments();

    sphinx::DecoderPtr m_decoder;
    QString m_grammar;
    QStringList m_words;
};
