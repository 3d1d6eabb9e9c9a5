#include "LmTestSupport.h"
#include "content/VoFileUtil.h"
#include "speech/lm/LmToolkit.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Bytes of a literal, NULs included.
template <qsizetype N> QByteArray bytesOf(const char (&text)[N])
{
    return QByteArray(text, N - 1);
}

// The files of "<s> A </s>" with </s> = 1, <s> = 2, A = 3, from which both steps succeed.
void writeIntactModel(const ModelFiles &files)
{
    for (const auto &[path, bytes] :
         {std::pair{files.vocabulary, QByteArray("</s>\n<s>\nA\n")},
          {files.text, "<s> A </s>\n"},
          {files.contextCues, "<s>\n</s>"},
          {files.idNgrams, idRecords({{0, 0, 2, 1}, {0, 2, 3, 1}, {2, 3, 1, 1}})}})
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(path, bytes));
}

} // namespace

// Tokens split on any white space and on nothing else, counted and listed in byte order.
TEST(CountingSteps, WordFrequencies)
{
    QByteArray text = bytesOf("<s> GUTEN MORGEN </s>\r\n<s>\tWIE  GEHT'S </s>\n\vGUTEN\fA\0B");
    QBuffer textIn(&text);
    QByteArray frequencies;
    QBuffer frequenciesOut(&frequencies);
    ASSERT_TRUE(textIn.open(QIODevice::ReadOnly) && frequenciesOut.open(QIODevice::WriteOnly));
    ASSERT_TRUE(lm::text2wfreq(textIn, frequenciesOut, 7500, -1));
    EXPECT_EQ(frequencies,
              bytesOf("</s> 2\n<s> 2\nA 1\nB 1\nGEHT'S 1\nGUTEN 2\nMORGEN 1\nWIE 1\n"));
}

// Stream 0 0 A B X A B C (two unknown words lead, X is unknown too): big-endian records sorted
// by ids, equal 3-grams merged; the scratch folder is gone afterwards.
TEST(CountingSteps, IdNgramRecords)
{
    QTemporaryDir folder;
    const ModelFiles files(folder.path());
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(files.vocabulary, "## made by hand\nA\nB\nC\n"));
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(files.text, "A B X\nA B C"));
    ASSERT_EQ(lm::text2idngram(files.text2idngramArguments()), 0);
    EXPECT_EQ(VoFileUtil::readFile(files.idNgrams),
              idRecords({{0, 0, 1, 1}, {0, 1, 2, 2}, {1, 2, 0, 1}, {1, 2, 3, 1}, {2, 0, 1, 1}}));
    EXPECT_TRUE(QDir(folder.path()).entryList({u"cmuclmtk-*"_s}, QDir::AllEntries).isEmpty());
}

// Each case damages one file of a model that builds fine and reruns the step reading it: the
// step must fail, not crash and not pretend.
TEST(BadInput, DamagedFilesFailTheStep)
{
    struct Damage {
        const char *what;
        QString ModelFiles::*file;
        std::optional<QByteArray> bytes; // none: the file is removed
        bool counting;                   // text2idngram, else idngram2lm
    };
    const Damage cases[] = {
        {"no damage", nullptr, std::nullopt, true},
        {"missing vocabulary", &ModelFiles::vocabulary, std::nullopt, true},
        {"vocabulary of comments", &ModelFiles::vocabulary, "## nothing here\n", true},
        {"vocabulary with a word twice", &ModelFiles::vocabulary, "A\nB\nA\n", true},
        {"missing text", &ModelFiles::text, std::nullopt, true},
        {"empty text", &ModelFiles::text, " \n\t\n", true},
        {"no damage", nullptr, std::nullopt, false},
        {"missing context cues", &ModelFiles::contextCues, std::nullopt, false},
        {"no id n-grams", &ModelFiles::idNgrams, "", false},
        {"id n-grams cut inside a record", &ModelFiles::idNgrams,
         idRecords({{0, 0, 2, 1}, {0, 2, 3, 1}}).chopped(3), false},
        {"word id beyond the vocabulary", &ModelFiles::idNgrams,
         idRecords({{0, 0, 1, 1}, {0, 1, 99, 1}}), false},
        {"3-gram without its history", &ModelFiles::idNgrams, idRecords({{1, 2, 3, 1}}), false},
    };
    for (const Damage &damage : cases) {
        SCOPED_TRACE(damage.what);
        QTemporaryDir folder;
        const ModelFiles files(folder.path());
        writeIntactModel(files);
        if (damage.file) {
            ASSERT_TRUE(damage.bytes
                            ? VoFileUtil::writeFileAtomically(files.*damage.file, *damage.bytes)
                            : QFile::remove(files.*damage.file));
        }
        const int exitCode = damage.counting ? lm::text2idngram(files.text2idngramArguments())
                                             : lm::idngram2lm(files.idngram2lmArguments());
        EXPECT_EQ(exitCode != 0, damage.file != nullptr);
    }
    // The folder went away under the generator: what the steps write cannot be made.
    QTemporaryDir folder;
    const ModelFiles files(folder.path());
    writeIntactModel(files);
    QStringList counting = files.text2idngramArguments();
    counting.replace(counting.indexOf(files.idNgrams), folder.filePath(u"gone/m.idngram"_s));
    EXPECT_NE(lm::text2idngram(counting), 0);
    QStringList estimating = files.idngram2lmArguments();
    estimating.replace(estimating.indexOf(files.arpa), folder.filePath(u"gone/m.arpa"_s));
    EXPECT_NE(lm::idngram2lm(estimating), 0);
}

// A frequency list cut short or garbled, as a full disk leaves it.
TEST(BadInput, DamagedFrequenciesFailTheVocabulary)
{
    for (QByteArray frequencies : {"", "A\n", "A B\n", "A 2\nB -1\n", "A 2 B 3 C\n"}) {
        SCOPED_TRACE(frequencies.toStdString());
        QBuffer in(&frequencies);
        QBuffer out;
        ASSERT_TRUE(in.open(QIODevice::ReadOnly) && out.open(QIODevice::WriteOnly));
        EXPECT_FALSE(lm::wfreq2vocab(in, out, -1, -1, 64000, -1));
    }
}

// Phrases from a damaged course still give a model whose header matches its sections.
TEST(BadInput, OddPhrasesGiveConsistentModels)
{
    QByteArray garbage(64 * 1024, Qt::Uninitialized);
    QRandomGenerator random(20261122);
    for (char &byte : garbage)
        byte = static_cast<char>(random.bounded(256));
    const std::pair<const char *, QByteArray> corpora[] = {
        // far longer than the line buffer the writer copies the file through
        {"a huge token", corpusOf({"GUTEN " + QByteArray(1 << 20, 'X') + " MORGEN"})},
        {"binary garbage", corpusOf({garbage})},
    };
    for (const auto &[what, corpus] : corpora) {
        SCOPED_TRACE(what);
        QTemporaryDir folder;
        const ArpaCounts counts = arpaCounts(generateArpa(folder.path(), corpus));
        EXPECT_GT(counts.listed[2], 0);
        EXPECT_EQ(counts.announced, counts.listed);
    }
}
