#pragma once

#include <QList>
#include <QString>

/// How a word of the phrase was heard in a reading.
enum class WordVerdict {
    HeardWell,
    Unclear,
    Missing,
};

/// @brief One word of the phrase as the reading's check judged it.
struct WordVerification {
    /// As the phrase writes it.
    QString word;
    WordVerdict verdict{WordVerdict::Missing};
    /// False for a word no pronunciation is known for: it is listed but not judged, and counts
    /// neither for nor against the mark.
    bool judged{true};
    /// The word's frames' mean difference between the phrase's alignment and the free phone
    /// loop, in the decoder's acoustic score per frame: 0 is as good as any sound could fit,
    /// lower is worse.
    double goodness{0.0};
    /// Inclusive frames of the word in the recording; -1 when it was not aligned.
    int startFrame{-1};
    int endFrame{-1};
    /// The sound that fitted worst, for an unclear or missing word: the model's phone, the
    /// phrase's IPA for it (empty when not known) and the letters that spell it.
    QString weakestPhone;
    QString weakestIpa;
    QString weakestLetters;
};

/// @brief The acoustic check of a reading against the phrase it should be.
struct ReadingVerification {
    /// False when the check could not be made; note says why, and the mark is the recogniser's.
    bool succeeded{false};
    QString note;
    /// Whether the phrase's sounds could be laid over the recording at all; a recording of
    /// something else often cannot.
    bool aligned{false};
    /// The mean of goodness over every judged word's frames.
    double goodness{0.0};
    /// The share of the recording's speech (frames the free loop hears as sounds) that the
    /// alignment left to silence and noise: speech beyond the phrase, 0..1.
    double unmatchedSpeech{0.0};
    QList<WordVerification> words;

    [[nodiscard]] int count(WordVerdict verdict) const;
    [[nodiscard]] int judgedWords() const;
};

/// "heard well", "unclear", "missing": in English for tables and JSON, and the key of the
/// learner's translation.
[[nodiscard]] const char *verdictName(WordVerdict verdict);
