#include "LmTestSupport.h"
#include "content/VoFileUtil.h"
#include "speech/SphinxHandles.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sphinxbase/err.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

const QByteArray twoPhrases = corpusOf({"GUTEN MORGEN", "WIE GEHT'S"});
const QByteArray sixWords = corpusOf({"ICH HAETTE GERN EINEN KAFFEE BITTE"});

// Corpora of the shapes the model generator writes (several phrases, one word, a longer phrase,
// a word repeated within and across phrases) and a lone token with no sentence marks, whose
// model has no 2-grams at all.
const QByteArray corpora[] = {twoPhrases, corpusOf({"DANKE"}), sixWords,
                              corpusOf({"JA JA JA", "JA NEIN", "NEIN"}), "HALLO"};

QString goldenPath(const QString &name)
{
    return QStringLiteral(LM_TEST_DATA "/") + name;
}

} // namespace

// Any change to the estimate or the file layout shows up as a diff against this file. The
// writer's temporary copy, the scratch folder and the placeholders must all be gone.
TEST(ArpaModel, TwoPhrasesGiveTheGoldenFile)
{
    QTemporaryDir folder;
    const ModelFiles files(folder.path(), u"two"_s);
    ASSERT_TRUE(buildModel(files, twoPhrases));

    const auto written = VoFileUtil::readFile(files.arpa);
    const auto golden = VoFileUtil::readFile(goldenPath(u"two-phrases.arpa"_s));
    ASSERT_TRUE(written && golden);
    EXPECT_EQ(written->toStdString(), golden->toStdString());
    EXPECT_FALSE(written->contains("PLACEHOLDER"));
    EXPECT_FALSE(QFile::exists(files.arpa + u".temp"_s));
    EXPECT_TRUE(QDir(folder.path()).entryList({u"cmuclmtk-*"_s}, QDir::AllEntries).isEmpty());
}

// The header must tell the decoder exactly what follows, and no n-gram may run from the end of
// one phrase into the start of the next.
TEST(ArpaModel, HeaderCountsMatchTheSectionsWithoutSentenceSpans)
{
    for (const QByteArray &corpus : corpora) {
        SCOPED_TRACE(corpus.toStdString());
        QTemporaryDir folder;
        const ModelFiles files(folder.path(), u"m"_s);
        ASSERT_TRUE(buildModel(files, corpus));
        const NgramTables tables = NgramTables::fromArpa(files.arpa);
        for (int order = 1; order <= 3; ++order)
            EXPECT_EQ(tables.headerCounts[order - 1], tables.sections[order - 1].size()) << order;
        const QByteArrayList tokens = corpus.simplified().split(' ');
        EXPECT_EQ(tables.words.size(), QSet<QByteArray>(tokens.begin(), tokens.end()).size());
        for (const QByteArray &bigram : tables.sections[1].keys())
            EXPECT_FALSE(bigram.startsWith("</s> ")) << bigram.toStdString();
        for (const QByteArray &trigram : tables.sections[2].keys()) {
            EXPECT_FALSE(trigram.startsWith("</s> ")) << trigram.toStdString();
            EXPECT_FALSE(trigram.endsWith(" <s>")) << trigram.toStdString();
        }
    }
}

// The decoder reads the file with SphinxBase: it must load, and every probability the decoder
// computes, backed off or not, must be the one the file states.
TEST(ArpaModel, SphinxBaseReadsTheFilesProbabilities)
{
    err_set_logfp(nullptr);
    for (const QByteArray &corpus : corpora) {
        SCOPED_TRACE(corpus.toStdString());
        QTemporaryDir folder;
        const ModelFiles files(folder.path(), u"m"_s);
        ASSERT_TRUE(buildModel(files, corpus));
        const NgramTables tables = NgramTables::fromArpa(files.arpa);

        const sphinx::LogmathPtr logmath(logmath_init(1.0001, 0, 0));
        const sphinx::NgramModelPtr model(ngram_model_read(
            nullptr, QFile::encodeName(files.arpa).constData(), NGRAM_ARPA, logmath.get()));
        ASSERT_TRUE(model);
        for (const QByteArrayList &history : tables.histories()) {
            for (const QByteArray &word : tables.words) {
                const double expected = tables.log10Probability(history, word);
                if (expected < -90.0)
                    continue; // a context cue: the decoder has its own floor for "never"
                // SphinxBase takes the word first, then its history newest first.
                std::vector<const char *> words{word.constData()};
                for (auto it = history.crbegin(); it != history.crend(); ++it)
                    words.push_back(it->constData());
                const int32 score =
                    ngram_prob(model.get(), words.data(), static_cast<int32>(words.size()));
                EXPECT_NEAR(logmath_log_to_log10(logmath.get(), score), expected, 1e-3)
                    << (history.join(' ') + " | " + word).toStdString();
            }
        }
    }
}

// The writer's counters belong to each run, so two models made at once come out as if made
// one after the other.
TEST(ArpaModel, TwoRunsAtOnceGiveIdenticalFiles)
{
    QTemporaryDir folder;
    const ModelFiles alone(folder.path(), u"alone"_s);
    ASSERT_TRUE(buildModel(alone, sixWords));
    const ModelFiles first(folder.path(), u"first"_s);
    const ModelFiles second(folder.path(), u"second"_s);
    for (int round = 0; round < 20; ++round) {
        bool firstBuilt = false;
        bool secondBuilt = false;
        std::thread other([&] { secondBuilt = buildModel(second, sixWords); });
        firstBuilt = buildModel(first, sixWords);
        other.join();
        ASSERT_TRUE(firstBuilt && secondBuilt);
        const auto expected = VoFileUtil::readFile(alone.arpa);
        EXPECT_EQ(VoFileUtil::readFile(first.arpa), expected);
        EXPECT_EQ(VoFileUtil::readFile(second.arpa), expected);
    }
}
