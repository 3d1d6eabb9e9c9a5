#include "LmTestSupport.h"
#include "content/VoFileUtil.h"
#include "speech/lm/LmToolkit.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Bytes of a literal, NULs included.
template <qsizetype N> QByteArray bytesOf(const char (&text)[N])
{
    return QByteArray(text, N - 1);
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
    EXPECT_EQ(frequencies, bytesOf("</s> 2\n<s> 2\nA\0B 1\nGEHT'S 1\nGUTEN 2\nMORGEN 1\nWIE 1\n"));
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
