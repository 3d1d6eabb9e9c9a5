#include "content/QtPrinters.h"
#include "content/VoFileUtil.h"
#include "speech/PronunciationList.h"
#include "speech/VoLanguageModelTrainer.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The forward-only scan over small lookup lists; its limits are kept on purpose.

namespace {

const QString listPath = u"/model/LanguageModelGeneratorLookupList.text"_s;

QStringList lookup(const QStringList &words, const QString &list)
{
    return VoLanguageModelTrainer::performDictionaryLookup(words, list, listPath);
}

// The window for alternates shrinks within the last 750 characters, so lists here end with
// enough lines that nobody asks for.
QString withTail(const QString &lines)
{
    return lines + QStringList(40, u"\nZZ\tZ IY Z IY"_s).join(QString());
}

// The first line of a list is never found, so lists here start with one nobody asks for.
const QString list = withTail(u"AA\tAA\n"
                              u"DANKE\tD AA NG K AH\n"
                              u"HALLO\tHH AA L OW\n"
                              u"HALLO(2)\tHH AH L OW\n"
                              u"HALLO(4)\tHH EH L OW\n"
                              u"HALLOWEEN\tHH AE L OW IY N\n"
                              u"WELT\tW EH L T"_s);

} // namespace

TEST(DictionaryLookup, FindsEachWordOnceInListOrder)
{
    EXPECT_EQ(lookup({u"DANKE"_s, u"WELT"_s}, list),
              QStringList({u"DANKE\tD AA NG K AH"_s, u"WELT\tW EH L T"_s}));
}

TEST(DictionaryLookup, TakesAlternatesUpToTheFirstMissingNumber)
{
    EXPECT_EQ(lookup({u"HALLO"_s}, list),
              QStringList({u"HALLO\tHH AA L OW"_s, u"HALLO(2)\tHH AH L OW"_s}));

    const QString five = withTail(u"AA\tAA\nJA\tY AA\nJA(2)\tY AH\nJA(3)\tY AE\nJA(4)\tY AO\n"
                                  u"JA(5)\tY EH\nJA(6)\tY IH"_s);
    EXPECT_EQ(lookup({u"JA"_s}, five).size(), 5) << "the fifth pronunciation is the last taken";
}

TEST(DictionaryLookup, MatchesTheWholeWordWithItsCase)
{
    EXPECT_TRUE(lookup({u"HALL"_s}, list).isEmpty());
    EXPECT_TRUE(lookup({u"hallo"_s}, list).isEmpty());
    EXPECT_EQ(lookup({u"HALLOWEEN"_s}, list), QStringList(u"HALLOWEEN\tHH AE L OW IY N"_s));
}

TEST(DictionaryLookup, KeepsTheLimitsOfItsSinglePass)
{
    EXPECT_TRUE(lookup({u"AA"_s}, list).isEmpty()) << "the first line is never found";
    EXPECT_EQ(lookup({u"WELT"_s, u"DANKE"_s}, list), QStringList(u"WELT\tW EH L T"_s))
        << "a word behind the previous find is dropped";
    EXPECT_EQ(lookup({u"NEIN"_s, u"DANKE"_s}, list), QStringList(u"DANKE\tD AA NG K AH"_s))
        << "a missing word does not move the scan";
    EXPECT_TRUE(lookup({u"DANKE"_s}, QString()).isEmpty());
    EXPECT_TRUE(lookup({}, list).isEmpty());
}

TEST(DictionaryLookup, SeeksAlternatesOnlyNearTheMainLine)
{
    // The window is a fifth of what follows the main line, at most 150 characters.
    const QString longPhones = QStringList(60, u"AH"_s).join(u' ');
    EXPECT_EQ(
        lookup({u"LANG"_s}, withTail(u"AA\tAA\nLANG\t"_s + longPhones + u"\nLANG(2)\tL"_s)).size(),
        1);
    EXPECT_EQ(lookup({u"JA"_s}, u"AA\tAA\nJA\tY AA\nJA(2)\tY AH\n"_s), QStringList(u"JA\tY AA"_s))
        << "near the end of the list the window is too short for the next line";
}

TEST(TrainerSteps, CompactsBlanksButKeepsLineBreaks)
{
    EXPECT_EQ(
        VoLanguageModelTrainer::compactWhitespaceOfArrayEntries(
            {u"  GUTEN \t MORGEN  "_s, u"WIE\u00a0GEHT'S"_s, u"EINS\nZWEI  DREI"_s, u"   "_s}),
        QStringList({u"GUTEN MORGEN"_s, u"WIE GEHT'S"_s, u"EINS\nZWEI DREI"_s, QString()}));
}

TEST(TrainerSteps, FindsNoContentInNothingButWhiteSpace)
{
    for (const QStringList &entries :
         {QStringList(), QStringList({QString(), QString()}), QStringList(u"\n"_s)}) {
        const LanguageModelError error = VoLanguageModelTrainer::checkModelForContent(entries);
        EXPECT_EQ(error.code, LanguageModelError::NoContent) << entries.join(u'|').toStdString();
        EXPECT_EQ(error.description, u"Language model has no content."_s);
        EXPECT_TRUE(error.domain.isEmpty());
    }
    EXPECT_TRUE(VoLanguageModelTrainer::checkModelForContent({QString(), u"JA"_s}).succeeded());
}

TEST(TrainerSteps, CleansWordsAndSortsThemAsTheLookupListIs)
{
    VoLanguageModelTrainer trainer;
    EXPECT_EQ(trainer.cleanDictionaryWordArray(
                  {u"WELT"_s, u"GEHT'S"_s, u"HALLO-WELT!"_s, u"ÄPFEL"_s, u"WELT"_s, u"danke"_s}),
              QStringList({u"ÄPFEL"_s, u"danke"_s, u"GEHT'S"_s, u"HALLOWELT"_s, u"WELT"_s}));
    EXPECT_EQ(trainer.cleanDictionaryWordArray({u"ZWEI EINS\nDREI"_s}),
              QStringList({u"DREI"_s, u"EINS"_s, u"ZWEI"_s}));
}

TEST(TrainerSteps, WritesOneSentenceALine)
{
    const QTemporaryDir base;
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(base.path());
    ASSERT_TRUE(
        trainer.writeOutCorpusForArray({u"GUTEN MORGEN"_s, u"ÄPFEL"_s}, u"test"_s).succeeded());
    QFile corpus(base.filePath(u"test.corpus"_s));
    ASSERT_TRUE(corpus.open(QIODevice::ReadOnly));
    EXPECT_EQ(corpus.readAll(), "<s> GUTEN MORGEN </s>\n<s> \xc3\x84PFEL </s>\n");
}

TEST(TrainerSteps, NamesTheFilesOfAModel)
{
    VoLanguageModelTrainer trainer;
    EXPECT_EQ(trainer.lmBasePath(), VoFileUtil::getCachesDirectory());
    trainer.setLmBasePath(u"/data/lm"_s);
    EXPECT_EQ(trainer.assembleUserInfoDictionaryForLanguageModelsForFilename(u"test"_s),
              QVariantMap({{u"LMFile"_s, u"test.DMP"_s},
                           {u"DictionaryFile"_s, u"test.dic"_s},
                           {u"LMPath"_s, u"/data/lm/test.DMP"_s},
                           {u"DictionaryPath"_s, u"/data/lm/test.dic"_s}}));
    EXPECT_EQ(trainer.englishAcousticModelPath(),
              QCoreApplication::applicationDirPath() + u"/AcousticModelEnglish.bundle"_s);
}

// The list the lookup scans is written from these entries: an alternate it cannot write back as
// itself must stop the build rather than become a second main line.
TEST(PronunciationList, RefusesAlternatesBelowOneOrPastInt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.dict"_s);
    for (const QByteArray line : {"HALLO(0) HH AH L OW\n", "HALLO(99999999999) HH AH L OW\n"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("HALLO HH AA L OW\n" + line);
        file.close();
        QString error;
        EXPECT_FALSE(readPronunciationDictionary(path, error)) << line.constData();
        EXPECT_TRUE(error.endsWith(u"line 2 has no alternate number from 1 on"_s))
            << qPrintable(error);
    }
}
