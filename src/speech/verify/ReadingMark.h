#pragma once

#include "ReadingVerification.h"

/**
 * @brief The mark out of 10 a learner sees for a reading: the recogniser's mark, raised by the
 * words the acoustic check heard, and held down when the reading is not the phrase.
 *
 * - The recogniser's mark is floor(score / 10). The check's own mark counts each judged word
 *   heard well as 1 and each unclear word as 1/2, out of the judged words, times 10, rounded
 *   down. The learner gets the higher of the two.
 * - A reading that is not the phrase gets at most 2: one that the phrase's sounds could not be
 *   aligned to at all; one in which more than `mostUnmatchedSpeech` of the speech lies outside
 *   the phrase's words (a short phrase laid over a part of something longer); or one in which
 *   fewer than nine in ten of the judged words were heard well while the phrase as a whole
 *   fitted worse than `phraseGoodness`. One in which every judged word is missing gets 0.
 * - Without a check (it failed, or no word could be judged), the recogniser's mark stands.
 *
 * A word's verdict rising from missing to unclear to heard well never lowers the mark, and
 * the same score and check always give the same mark.
 */
namespace ReadingMark {

inline constexpr int notThePhraseMost = 2;
/// The whole reading's goodness below which it may not be the phrase at all.
inline constexpr double phraseGoodness = -20.0;
/// The share of the recording's speech beyond the phrase's words above which it is something
/// else.
inline constexpr double mostUnmatchedSpeech = 0.45;

/// floor(score / 10), 0..10; a score outside 0..100 or not a number is fatal (the scorer keeps
/// within it).
[[nodiscard]] int recognizerMark(float score);
/// The mark from the check alone, 0..10.
[[nodiscard]] int verifiedMark(const ReadingVerification &verification);
[[nodiscard]] int mark(float score, const ReadingVerification &verification);

} // namespace ReadingMark
