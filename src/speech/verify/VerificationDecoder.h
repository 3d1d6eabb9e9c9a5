#pragma once

#include "speech/SphinxHandles.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

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
 * @brief A decoder that checks readings: a forced alignment of a phrase's phones, or a free loop
 * of any phones, over a recording, each a grammar search set up once and kept.
 *
 * The loop is a grammar too, rather than the library's phone-loop search: that search's segment
 * scores come out relative to the best path of their frames (some are even above 0), so they
 * cannot be set against an alignment's; two searches of one kind can, frame by frame.
 *
 * Made once and kept for every reading, whatever its phrase: loading the acoustic model is most
 * of a decoder's start, and the phrase's phones are words added to it as they come. Its front
 * end has no dither (the caller adds its own, so that runs on several threads stay independent
 * of the library's one shared random generator), batch normalisation and no noise removal (whose
 * noise estimate would carry over from one reading to the next and judge a decoder's first
 * reading apart from its later ones), so both searches see the same features whatever ran
 * before.
 */
class VerificationDecoder {
public:
    enum class Role {
        Alignment,
        PhoneLoop,
    };

    /// Null, logged, when the acoustic model or the dictionary cannot be read.
    [[nodiscard]] static std::optional<VerificationDecoder>
    create(const QString &acousticModelPath, const QString &dictionaryPath, Role role);

    /// The free loop's words are this and a phone: "loop_AA".
    static constexpr char loopWordPrefix[] = "loop_";

    /// Adds a word of one phone, once; false when the phone is not one of the model's.
    bool addPhoneWord(const QString &word, const QString &phone);
    /// The best path through the JSGF grammar; nothing when no path reached its end.
    [[nodiscard]] std::optional<QList<AlignedSegment>> align(const QString &grammar,
                                                             const std::vector<int16_t> &samples);
    /// The phones the free loop hears, fillers and silence included.
    [[nodiscard]] QList<AlignedSegment> phoneLoop(const std::vector<int16_t> &samples);

private:
    explicit VerificationDecoder(sphinx::DecoderPtr decoder);
    [[nodiscard]] bool setGrammar(const char *search, const QString &grammar);
    [[nodiscard]] bool setUpPhoneLoop();
    [[nodiscard]] bool decode(const char *search, const std::vector<int16_t> &samples);
    [[nodiscard]] QList<AlignedSegment> segments();

    sphinx::DecoderPtr m_decoder;
    QString m_grammar;
    bool m_loopReady{false};
    QStringList m_words;
};
