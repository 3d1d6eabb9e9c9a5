#include "LmTestSupport.h"
#include "speech/lm/IdNgramFile.h"
#include "speech/lm/VocabularyFile.h"

#include <QTemporaryDir>
#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The estimate of a corpus as the model step makes it, before the writer leaves anything out.
NgramTables estimateOf(const QByteArray &corpus)
{
    QTemporaryDir folder;
    const ModelFiles files(folder.path(), u"m"_s);
    if (!buildModel(files, corpus)) {
        ADD_FAILURE() << "the toolkit failed on " << corpus.toStdString();
        return {};
    }
    const auto vocabulary = lm::Vocabulary::read(files.vocabulary);
    const auto trigrams = lm::readIdNgrams(files.idNgrams);
    std::vector<bool> contextOnly(static_cast<size_t>(vocabulary->words.size()) + 1);
    contextOnly[vocabulary->idOf("<s>")] = true;
    const auto model = lm::estimateWittenBell(
        *trigrams, static_cast<lm::WordId>(vocabulary->words.size()), contextOnly);
    if (!model) {
        ADD_FAILURE() << "no estimate for " << corpus.toStdString();
        return {};
    }
    return NgramTables::fromModel(*model, vocabulary->words);
}

double probability(const NgramTables &tables, const QByteArrayList &history, const QByteArray &word)
{
    return std::pow(10.0, tables.log10Probability(history, word));
}

} // namespace

// Whatever the corpus, each history's distribution over the closed vocabulary is complete:
// seen words, the back-off share of unseen ones, sentence ends, all of it.
TEST(WittenBellModel, EveryDistributionSumsToOne)
{
    const QByteArray corpora[] = {
        corpusOf({"GUTEN MORGEN", "WIE GEHT'S"}),
        corpusOf({"DANKE"}),
        corpusOf({"ICH HAETTE GERN EINEN KAFFEE BITTE"}),
        corpusOf({"JA JA JA", "JA NEIN", "NEIN"}),
        // "<s>" is followed by every word it could predict: no unseen word is left to back off to
        "<s> A </s>\n<s> </s>\n",
        // no sentence markers at all
        "EINS ZWEI DREI EINS ZWEI",
    };
    for (const QByteArray &corpus : corpora) {
        SCOPED_TRACE(corpus.toStdString());
        const NgramTables tables = estimateOf(corpus);
        ASSERT_FALSE(tables.words.isEmpty());
        for (const QByteArrayList &history : tables.histories()) {
            double sum = 0.0;
            for (const QByteArray &word : tables.words)
                sum += probability(tables, history, word);
            EXPECT_NEAR(sum, 1.0, 1e-4) << "after \"" << history.join(' ').toStdString() << '"';
        }
    }
}

// One phrase worked by hand. Counts (two unknown words lead the stream, the generator's
// replacement line ends it): <s> 2, DANKE 1, </s> 2; "<s> DANKE", "DANKE </s>", "</s> <s>";
// 3-grams "<s> DANKE </s>" and "DANKE </s> <s>".
TEST(WittenBellModel, OnePhraseByHand)
{
    const NgramTables tables = estimateOf(corpusOf({"DANKE"}));
    // Unigrams: N = 3 predictable tokens, T = 2 seen, 2 words: (c + 1) / 5.
    EXPECT_NEAR(probability(tables, {}, "</s>"), 0.6, 1e-9);
    EXPECT_NEAR(probability(tables, {}, "DANKE"), 0.4, 1e-9);
    EXPECT_EQ(tables.sections[0].value("<s>").log10Probability, -99.0);
    // "<s>": c = 1, t = 1, so DANKE gets 1/2; the other half goes to "</s>" by back-off.
    EXPECT_NEAR(probability(tables, {"<s>"}, "DANKE"), 0.5, 1e-9);
    EXPECT_NEAR(tables.sections[0].value("<s>").log10Backoff, std::log10(0.5 / 0.6), 1e-9);
    EXPECT_NEAR(probability(tables, {"<s>"}, "</s>"), 0.5, 1e-9);
    EXPECT_NEAR(probability(tables, {"<s>", "DANKE"}, "</s>"), 0.5, 1e-9);
    // "</s>" was only ever followed by "<s>", which the unigrams never predict.
    EXPECT_NEAR(probability(tables, {"</s>"}, "<s>"), 0.5, 1e-9);
    EXPECT_NEAR(probability(tables, {"</s>"}, "DANKE"), 0.5 * 0.4, 1e-9);
}

// A word outside the vocabulary takes id 0: every n-gram holding it is dropped, but the
// n-grams around it keep their counts.
TEST(WittenBellModel, UnknownWordsDropOnlyTheirOwnNgrams)
{
    // Stream 0 0 A B 0 A B C: A=1, B=2, C=3.
    const std::vector<lm::IdTrigram> trigrams = {
        {{0, 0, 1}, 1}, {{0, 1, 2}, 2}, {{1, 2, 0}, 1}, {{1, 2, 3}, 1}, {{2, 0, 1}, 1}};
    const auto model = lm::estimateWittenBell(trigrams, 3, {});
    ASSERT_TRUE(model);
    const NgramTables tables = NgramTables::fromModel(*model, {"A", "B", "C"});
    EXPECT_EQ(tables.sections[1].keys(), (QByteArrayList{"A B", "B C"}));
    EXPECT_EQ(tables.sections[2].keys(), (QByteArrayList{"A B C"}));
    // "A B" twice and "B C" once: A 2, B 2, C 1 of 5, all three seen.
    EXPECT_NEAR(probability(tables, {}, "A"), (2 + 1.0) / 8, 1e-9);
    EXPECT_NEAR(probability(tables, {}, "C"), (1 + 1.0) / 8, 1e-9);
    EXPECT_NEAR(probability(tables, {"A"}, "B"), 2.0 / 3, 1e-9);
}
