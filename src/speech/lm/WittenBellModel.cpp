#include "WittenBellModel.h"

#include "LmLog.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace lm {

namespace {

using Ids = std::array<WordId, 3>;

/// An n-gram of one order (ids in the first places) and what the estimate makes of it.
struct Scored {
    Ids ids{};
    quint64 count{0};
    double probability{0.0};
    double backoff{1.0}; // as a history of the next order
};

// The n-grams ending the 3-grams, counted; those holding an unknown word are left out. The sums
// are 64-bit, so that no count of a damaged file wraps round to zero.
std::vector<Scored> countsOfOrder(const std::vector<IdTrigram> &trigrams, int order)
{
    std::vector<Scored> ngrams;
    ngrams.reserve(trigrams.size());
    for (const IdTrigram &trigram : trigrams) {
        const auto first = trigram.ids.end() - order;
        if (trigram.count == 0 || std::find(first, trigram.ids.end(), 0) != trigram.ids.end())
            continue;
        Scored ngram{{}, trigram.count};
        std::copy(first, trigram.ids.end(), ngram.ids.begin());
        ngrams.push_back(ngram);
    }
    std::sort(ngrams.begin(), ngrams.end(),
              [](const Scored &a, const Scored &b) { return a.ids < b.ids; });
    std::vector<Scored> merged;
    for (const Scored &ngram : ngrams) {
        if (!merged.empty() && merged.back().ids == ngram.ids)
            merged.back().count += ngram.count;
        else
            merged.push_back(ngram);
    }
    return merged;
}

std::vector<Scored>::iterator find(std::vector<Scored> &ngrams, const Ids &ids)
{
    const auto it = std::lower_bound(ngrams.begin(), ngrams.end(), ids,
                                     [](const Scored &s, const Ids &key) { return s.ids < key; });
    return it != ngrams.end() && it->ids == ids ? it : ngrams.end();
}

double log10Of(double probability)
{
    return probability > 0.0 ? std::log10(probability) : neverLog10Probability;
}

/**
 * Witten-Bell at one order over n-grams sorted by ids. `lower(n)` is the probability one order
 * lower of n's last word, `reachable(n)` how many words the lower order gives any probability
 * after n's history, `setBackoff(n, weight)` hands the history's back-off weight to its entry.
 */
template <typename Lower, typename Reachable, typename SetBackoff>
void discount(std::vector<Scored> &ngrams, int order, const Lower &lower,
              const Reachable &reachable, const SetBackoff &setBackoff)
{
    for (auto begin = ngrams.begin(); begin != ngrams.end();) {
        const auto end = std::find_if(begin, ngrams.end(), [&](const Scored &n) {
            return !std::equal(n.ids.begin(), n.ids.begin() + order - 1, begin->ids.begin());
        });
        quint64 historyCount = 0;
        qsizetype followers = 0;
        qsizetype reachableSeen = 0;
        double lowerSeen = 0.0;
        for (auto it = begin; it != end; ++it) {
            historyCount += it->count;
            ++followers;
            const double probability = lower(*it);
            lowerSeen += probability;
            reachableSeen += probability > 0.0 ? 1 : 0;
        }
        double backoff = 1.0;
        if (reachableSeen < reachable(*begin)) {
            const double total = static_cast<double>(historyCount) + static_cast<double>(followers);
            for (auto it = begin; it != end; ++it)
                it->probability = static_cast<double>(it->count) / total;
            backoff = static_cast<double>(followers) / total / (1.0 - lowerSeen);
        } else {
            for (auto it = begin; it != end; ++it)
                it->probability =
                    static_cast<double>(it->count) / static_cast<double>(historyCount);
        }
        setBackoff(*begin, backoff);
        begin = end;
    }
}

class Estimator {
public:
    Estimator(const std::vector<IdTrigram> &trigrams, WordId vocabularySize,
              std::vector<bool> contextOnly)
        : m_contextOnly(std::move(contextOnly))
        , m_unigrams(vocabularySize + 1)
        , m_bigrams(countsOfOrder(trigrams, 2))
        , m_trigrams(countsOfOrder(trigrams, 3))
        , m_contextFollowers(vocabularySize + 1, 0)
    {
        m_contextOnly.resize(vocabularySize + 1);
        for (const Scored &unigram : countsOfOrder(trigrams, 1))
            m_unigrams[unigram.ids[0]] = unigram;
        for (WordId id = 1; id <= vocabularySize; ++id) {
            m_unigrams[id].ids[0] = id;
            if (!m_contextOnly[id])
                ++m_predictable;
        }
        for (const Scored &bigram : m_bigrams)
            m_contextFollowers[bigram.ids[0]] += m_contextOnly[bigram.ids[1]] ? 1 : 0;
    }

    [[nodiscard]] qsizetype predictable() const { return m_predictable; }

    /// The first 3-gram whose history is no 2-gram, or none.
    [[nodiscard]] const Scored *trigramWithoutHistory()
    {
        for (const Scored &trigram : m_trigrams) {
            if (find(m_bigrams, {trigram.ids[0], trigram.ids[1], 0}) == m_bigrams.end())
                return &trigram;
        }
        return nullptr;
    }

    TrigramModel estimate()
    {
        estimateUnigrams();
        discount(
            m_bigrams, 2, [this](const Scored &n) { return m_unigrams[n.ids[1]].probability; },
            [this](const Scored &) { return m_predictable; },
            [this](const Scored &n, double weight) { m_unigrams[n.ids[0]].backoff = weight; });
        discount(
            m_trigrams, 3,
            [this](const Scored &n) {
                // Each 3-gram's last two words are counted as a 2-gram too.
                return find(m_bigrams, {n.ids[1], n.ids[2], 0})->probability;
            },
            [this](const Scored &n) { return m_predictable + m_contextFollowers[n.ids[1]]; },
            [this](const Scored &n, double weight) {
                find(m_bigrams, {n.ids[0], n.ids[1], 0})->backoff = weight;
            });

        TrigramModel model;
        const auto section = [](const auto &ngrams, auto &&entry) {
            std::vector<ArpaEntry> entries;
            entries.reserve(ngrams.size());
            for (const Scored &n : ngrams)
                entries.push_back(entry(n));
            return entries;
        };
        model.sections[0] = section(std::span(m_unigrams).subspan(1), [](const Scored &n) {
            return ArpaEntry{n.ids, log10Of(n.probability), std::log10(n.backoff)};
        });
        model.sections[1] = section(m_bigrams, [](const Scored &n) {
            return ArpaEntry{n.ids, std::log10(n.probability), std::log10(n.backoff)};
        });
        model.sections[2] = section(m_trigrams, [](const Scored &n) {
            return ArpaEntry{n.ids, std::log10(n.probability), 0.0};
        });
        return model;
    }

private:
    void estimateUnigrams()
    {
        const auto words = std::span(m_unigrams).subspan(1);
        quint64 total = 0;
        quint64 seen = 0;
        for (const Scored &unigram : words) {
            if (!m_contextOnly[unigram.ids[0]]) {
                total += unigram.count;
                seen += unigram.count > 0 ? 1 : 0;
            }
        }
        const double uniform = 1.0 / static_cast<double>(m_predictable);
        for (Scored &unigram : words) {
            if (m_contextOnly[unigram.ids[0]])
                continue;
            unigram.probability =
                total == 0
                    ? uniform
                    : (static_cast<double>(unigram.count) + static_cast<double>(seen) * uniform) /
                          static_cast<double>(total + seen);
        }
    }

    std::vector<bool> m_contextOnly; // indexed by id
    qsizetype m_predictable{0};
    std::vector<Scored> m_unigrams; // indexed by id; index 0 unused
    std::vector<Scored> m_bigrams;
    std::vector<Scored> m_trigrams;
    std::vector<qsizetype> m_contextFollowers; // context-only words seen after each word
};

} // namespace

std::optional<TrigramModel> estimateWittenBell(const std::vector<IdTrigram> &trigrams,
                                               WordId vocabularySize, std::vector<bool> contextOnly)
{
    if (trigrams.empty()) {
        logError(QStringLiteral("The id n-grams hold no 3-gram"));
        return std::nullopt;
    }
    for (const IdTrigram &trigram : trigrams) {
        const WordId largest = *std::max_element(trigram.ids.begin(), trigram.ids.end());
        if (largest > vocabularySize) {
            logError(QStringLiteral("The id n-grams name word id %1 of a vocabulary of %2 words")
                         .arg(largest)
                         .arg(vocabularySize));
            return std::nullopt;
        }
    }
    Estimator estimator(trigrams, vocabularySize, std::move(contextOnly));
    if (const Scored *orphan = estimator.trigramWithoutHistory()) {
        logError(QStringLiteral("The id n-grams are damaged: 3-gram %1 %2 %3 without 2-gram %1 %2")
                     .arg(orphan->ids[0])
                     .arg(orphan->ids[1])
                     .arg(orphan->ids[2]));
        return std::nullopt;
    }
    if (estimator.predictable() == 0) {
        logError(QStringLiteral("No word of the vocabulary can be predicted"));
        return std::nullopt;
    }
    return estimator.estimate();
}

} // namespace lm
