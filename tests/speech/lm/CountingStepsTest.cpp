#include "LmTestSupport.h"
#include "content/VoFileUtil.h"
#include "speech/lm/LmToolkit.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Bytes of a literal, NULs included.
template <qsizetype N> QByteArray bytesOf(const char (&text)[N])
{
    return QByteArray(text, N - 1);
}

QByteArray frequenciesOf(const QByteArray &text)
{
    QByteArray input = text;
    QBuffer in(&input);
    QByteArray output;
    QBuffer out(&output);
    in.open(QIODevice::ReadOnly);
    out.open(QIODevice::WriteOnly);
    EXPECT_TRUE(lm::text2wfreq(in, out, 7500, -1));
    return output;
}

// The vocabulary's words, comment lines dropped.
QByteArrayList vocabularyOf(const QByteArray &frequencies, int cutoff, int size)
{
    QByteArray input = frequencies;
    QBuffer in(&input);
    QByteArray output;
    QBuffer out(&output);
    in.open(QIODevice::ReadOnly);
    out.open(QIODevice::WriteOnly);
    if (!lm::wfreq2vocab(in, out, cutoff, size, 64000, -1))
        return {};
    QByteArrayList words;
    for (const QByteArray &line : output.split('\n')) {
        if (!line.isEmpty() && !line.startsWith("##"))
            words += line;
    }
    return words;
}

} // namespace

// Tokens are split on any white space and NUL, never on other bytes, and listed in byte order.
TEST(CountingSteps, WordFrequencies)
{
    const QByteArray text =
        bytesOf("<s> GUTEN MORGEN </s>\r\n<s>\tWIE  GEHT'S </s>\n\vGUTEN\fA\0B");
    EXPECT_EQ(frequenciesOf(text),
              bytesOf("</s> 2\n<s> 2\nA 1\nB 1\nGEHT'S 1\nGUTEN 2\nMORGEN 1\nWIE 1\n"));
}

TEST(CountingSteps, VocabularyCutoffAndSize)
{
    const QByteArray frequencies = "D 3\nA 5\nB 1\nC 3\n";
    EXPECT_EQ(vocabularyOf(frequencies, -1, -1), (QByteArrayList{"A", "B", "C", "D"}));
    EXPECT_EQ(vocabularyOf(frequencies, 1, -1), (QByteArrayList{"A", "C", "D"}));
    // The most frequent win; of the two with count 3, C comes first in byte order.
    EXPECT_EQ(vocabularyOf(frequencies, -1, 2), (QByteArrayList{"A", "C"}));
    EXPECT_EQ(vocabularyOf(frequencies, 3, 5), (QByteArrayList{"A"}));
}

// A word that reads as a comment line could never come back out of the vocabulary file.
TEST(CountingSteps, CommentLikeWordIsLeftOutAndLogged)
{
    const LmLogCapture log;
    EXPECT_EQ(vocabularyOf("##X 4\nA 1\n", -1, -1), QByteArrayList{"A"});
    ASSERT_EQ(log.errors().size(), 1);
    EXPECT_TRUE(log.errors().first().contains(u"##X"_s));
}

// Big-endian records of the 3-grams of the whole stream, two unknown words in front; words
// missing from the vocabulary are 0; equal 3-grams merge; the scratch folder is removed.
TEST(CountingSteps, IdNgramRecords)
{
    QTemporaryDir folder;
    const ModelFiles files(folder.path(), u"m"_s);
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(files.vocabulary, "## made by hand\nA\nB\nC\n"));
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(files.alternativeCorpus, "A B X\nA B C"));
    ASSERT_EQ(lm::text2idngram(files.text2idngramArguments()), 0);

    const quint32 expected[][4] = {
        {0, 0, 1, 1}, {0, 1, 2, 2}, {1, 2, 0, 1}, {1, 2, 3, 1}, {2, 0, 1, 1}};
    QByteArray records;
    for (const auto &record : expected) {
        for (quint32 field : record) {
            char bytes[4];
            qToBigEndian(field, bytes);
            records.append(bytes, 4);
        }
    }
    EXPECT_EQ(VoFileUtil::readFile(files.idNgrams), records);
    EXPECT_TRUE(QDir(folder.path()).entryList({u"cmuclmtk-*"_s}, QDir::AllEntries).isEmpty());
}
