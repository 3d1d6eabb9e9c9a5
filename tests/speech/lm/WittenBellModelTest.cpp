#include "LmTestSupport.h"
#include "speech/SphinxHandles.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <span>
#include <sphinxbase/err.h>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// @brief The model the generator makes of a corpus, as the decoder reads it.
struct DecoderModel {
    explicit DecoderModel(const QByteArray &corpus)
    {
        err_set_logfp(nullptr);
        const QString arpa = generateArpa(folder.path(), corpus);
        counts = arpaCounts(arpa);
        EXPECT_EQ(counts.announced, counts.listed) << "the header must tell what follows";
        model.reset(ngram_model_read(nullptr, QFile::encodeName(arpa).constData(), NGRAM_ARPA,
                                     logmath.get()));
        const QByteArrayList tokens = corpus.simplified().split(' ');
        words = QSet<QByteArray>(tokens.begin(), tokens.end()).values();
    }

    /// P(word | history), the history oldest first, backed off as the decoder does it.
    [[nodiscard]] double probability(const QByteArrayList &history, const QByteArray &word) const
    {
        std::vector<const char *> newestFirst{word.constData()};
        for (auto it = history.crbegin(); it != history.crend(); ++it)
            newestFirst.push_back(it->constData());
        return logmath_exp(logmath.get(), ngram_prob(model.get(), newestFirst.data(),
                                                     static_cast<int32>(newestFirst.size())));
    }

    QTemporaryDir folder;
    sphinx::LogmathPtr logmath{logmath_init(1.0001, 0, 0)};
    sphinx::NgramModelPtr model;
    QByteArrayList words;
    ArpaCounts counts;
};

} // namespace

// Worked by hand from the counts. The generator closes the text with "<s> X </s>", X outside
// the vocabulary: its n-grams drop out, but the "</s>" after it still counts. "<s>" is only
// context. Unigrams are (c + T/P) / (N + T), with N tokens counted, T words seen of P
// predictable; a history seen c times before t words gives c(w) / (c + t) and backs off with
// (t / (c + t)) / (1 - the lower order's share of the seen words).
TEST(WittenBellModel, ProbabilitiesWorkedByHand)
{
    struct Case {
        QByteArrayList history;
        QByteArray word;
        double expected;
    };
    // <s> 3, </s> 3, the rest 1: N = 7, T = P = 5, so (c + 1) / 12. "<s>" leads GUTEN and WIE:
    // 1/4 each, back-off (2/4) / (1 - 2/6) = 3/4. GUTEN leads MORGEN: 1/2, back-off
    // (1/2) / (5/6) = 3/5. "<s> GUTEN" leads MORGEN: 1/2, back-off (1/2) / (1 - 1/2) = 1.
    const Case twoPhrases[] = {
        {{}, "</s>", 4.0 / 12},
        {{}, "GUTEN", 2.0 / 12},
        {{"<s>"}, "GUTEN", 1.0 / 4},
        {{"<s>"}, "MORGEN", 3.0 / 4 * 2 / 12},
        {{"<s>"}, "</s>", 3.0 / 4 * 4 / 12},
        {{"GUTEN"}, "MORGEN", 1.0 / 2},
        {{"GUTEN"}, "</s>", 3.0 / 5 * 4 / 12},
        {{"<s>", "GUTEN"}, "MORGEN", 1.0 / 2},
        {{"<s>", "GUTEN"}, "WIE", 3.0 / 5 * 2 / 12},
        {{"GUTEN", "MORGEN"}, "</s>", 1.0 / 2},
        {{"WIE", "GEHT'S"}, "GUTEN", 3.0 / 4 * 2 / 12}, // back-off 1, then GEHT'S's 3/4
    };
    // <s> 2, DANKE 1, </s> 2: N = 3, T = P = 2, so (c + 1) / 5. "<s>" leads DANKE: 1/2,
    // back-off (1/2) / (1 - 2/5) = 5/6. DANKE leads </s>: 1/2, back-off (1/2) / (1 - 3/5) = 5/4.
    const Case onePhrase[] = {
        {{}, "</s>", 3.0 / 5},
        {{"<s>"}, "DANKE", 1.0 / 2},
        {{"<s>"}, "</s>", 5.0 / 6 * 3 / 5},
        {{"DANKE"}, "DANKE", 5.0 / 4 * 2 / 5},
        {{"<s>", "DANKE"}, "</s>", 1.0 / 2},
    };
    // Counted 2-grams and 3-grams that run from "</s>" into "<s>" are left out of the file.
    const std::tuple<QByteArray, std::span<const Case>, std::array<qint64, 3>> corpora[] = {
        {corpusOf({"GUTEN MORGEN", "WIE GEHT'S"}), twoPhrases, {6, 6, 4}},
        {corpusOf({"DANKE"}), onePhrase, {3, 2, 1}}};
    for (const auto &[corpus, cases, announced] : corpora) {
        SCOPED_TRACE(corpus.toStdString());
        const DecoderModel model(corpus);
        ASSERT_TRUE(model.model) << "SphinxBase cannot read the model";
        EXPECT_EQ(model.counts.announced, announced);
        for (const Case &c : cases) {
            EXPECT_NEAR(model.probability(c.history, c.word), c.expected, 1e-3 * c.expected)
                << (c.history.join(' ') + " | " + c.word).toStdString();
        }
    }
}

// Whatever the phrases, each history's distribution over the words is complete: seen words and
// the back-off share of the others add up to 1. A history ending in "</s>" is never asked for.
TEST(WittenBellModel, EveryDistributionSumsToOne)
{
    const QByteArray corpora[] = {
        corpusOf({"GUTEN MORGEN", "WIE GEHT'S"}),
        corpusOf({"JA JA JA", "JA NEIN", "NEIN"}),
        // one word a sentence, as a phrase's words are handed over
        corpusOf({"GUTEN", "MORGEN", "GUTEN"}),
        // an empty phrase: "<s>" is followed by every word it could predict
        corpusOf({"A", ""}),
    };
    for (const QByteArray &corpus : corpora) {
        SCOPED_TRACE(corpus.toStdString());
        const DecoderModel model(corpus);
        ASSERT_TRUE(model.model) << "SphinxBase cannot read the model";
        QList<QByteArrayList> histories{{}};
        for (const QByteArray &older : model.words) {
            histories += QByteArrayList{older};
            for (const QByteArray &newer : model.words)
                histories += QByteArrayList{older, newer};
        }
        for (const QByteArrayList &history : histories) {
            if (history.endsWith("</s>"))
                continue;
            double sum = 0.0;
            for (const QByteArray &word : model.words)
                sum += word == "<s>" ? 0.0 : model.probability(history, word);
            EXPECT_NEAR(sum, 1.0, 1e-3) << "after \"" << history.join(' ').toStdString() << '"';
        }
    }
}
