#pragma once

#include "IdNgramFile.h"

#include <array>
#include <optional>
#include <vector>

namespace lm {

/// @brief One line of an ARPA section: the n-gram's word ids (unused places 0), its log10
/// probability and the log10 back-off weight of the n-gram as a history (0 at the top order).
struct ArpaEntry {
    std::array<WordId, 3> ids{};
    double log10Probability{0.0};
    double log10Backoff{0.0};
};

/// @brief A back-off trigram model over a closed vocabulary: sections[n - 1] holds the n-grams
/// in id order; the unigram section holds every vocabulary word, id 1 first.
struct TrigramModel {
    std::array<std::vector<ArpaEntry>, 3> sections;
};

/// Log10 probability written for a word that is never predicted.
inline constexpr double neverLog10Probability = -99.0;

/**
 * Witten-Bell estimate of a back-off trigram model from id 3-gram counts.
 *
 * Counts: an n-gram's count is the sum of the counts of the 3-grams that end in it, that is the
 * 3-gram counts summed over their first place (and, for unigrams, the first two). The id n-grams
 * begin with two unknown words before the text, so every token ends exactly one 3-gram and these
 * sums are the text's own counts, its first tokens included. Unknown words (id 0) take part in
 * the sums; only an n-gram that holds id 0 itself is dropped ("X A B" with X unknown still counts
 * for "A B" and "B").
 *
 * Seen words: a history h seen c(h) times before t(h) distinct words gives each of them
 * c(h, w) / (c(h) + t(h)). The rest, t(h) / (c(h) + t(h)), goes to the words not seen after h in
 * proportion to their probability one order lower, through the back-off weight
 * (t(h) / (c(h) + t(h))) / (1 - sum of the lower-order probabilities of the seen words). When
 * the lower order gives nothing to any unseen word, the seen words share everything,
 * c(h, w) / c(h), and the weight is 1.
 *
 * Unigrams: Witten-Bell interpolated with the uniform distribution over the predictable words
 * (the vocabulary without the context-only ones): (c(w) + T / P) / (N + T), with N their total
 * count, T how many of them were seen and P how many there are; uniform when N is 0. So every
 * predictable word, seen or not, has a probability. Context-only words ("<s>") are never
 * predicted: probability 0 (written as -99) yet a back-off weight like any other history.
 *
 * Every conditional distribution of the result sums to 1 over the vocabulary. Logs and gives
 * nothing when there are no 3-grams, an id lies beyond the vocabulary, a 3-gram's history is not
 * among the 2-grams (the leading unknown words are missing) or no word can be predicted.
 * `contextOnly` is indexed by word id; ids it does not reach are predictable.
 */
[[nodiscard]] std::optional<TrigramModel> estimateWittenBell(const std::vector<IdTrigram> &trigrams,
                                                             WordId vocabularySize,
                                                             std::vector<bool> contextOnly);

} // namespace lm
