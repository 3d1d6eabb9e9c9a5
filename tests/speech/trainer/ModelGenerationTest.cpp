#include "content/QtPrinters.h"
#include "content/VoFileUtil.h"
#include "speech/NgramModelFile.h"
#include "speech/PronunciationList.h"
#include "speech/VoLanguageModelTrainer.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Whole generations into a private folder, against a small lookup list made here.

namespace {

// The scan looks for alternates only with enough list after them, hence the tail of lines
// nobody asks for; the list's first line is never found, hence AA.
const QString lookupList =
    u"AA\tAA\n"
    u"DANKE\tD AA NG K AH\n"
    u"GUTEN\tG UW T AH N\n"
    u"HALLO\tHH AA L OW\n"
    u"HALLOWEEN\tHH AE L OW IY N\n"
    u"JA\tY AA\nJA(2)\tY AH\nJA(3)\tY AE\nJA(4)\tY AO\nJA(5)\tY EH\nJA(6)\tY IH\n"
    u"MORGEN\tM AO R G AH N\n"
    u"MORGEN(2)\tM AO R G EH N\n"
    u"MORGEN(4)\tM AO R G IH N\n"
    u"TAG\tT AA G\n"_s +
    QString(u"ZZ\tZ IY Z IY\n"_s).repeated(40);

QString text(const QString &path)
{
    return QString::fromUtf8(VoFileUtil::readFile(path).value_or(QByteArray()));
}

class ModelGenerationTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_base.isValid() && m_model.isValid());
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(
            VoLanguageModelTrainer::lookupListPath(m_model.path()), lookupList.toUtf8()));
        m_trainer.setLmBasePath(m_base.path());
    }

    LanguageModelError generate(const QStringList &words)
    {
        return m_trainer.generateLanguageModelFromArray(words, u"test"_s, m_model.path());
    }
    [[nodiscard]] QString inBase(const QString &name) const { return m_base.filePath(name); }
    [[nodiscard]] QStringList filesInBase() const
    {
        return QDir(m_base.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }

    QTemporaryDir m_base;
    QTemporaryDir m_model;
    VoLanguageModelTrainer m_trainer;
};

} // namespace

TEST(DictionaryLookup, FindsWholeWordsAndTheirAlternatesInOnePass)
{
    const std::pair<QStringList, QStringList> cases[] = {
        {{u"DANKE"_s, u"TAG"_s}, {u"DANKE\tD AA NG K AH"_s, u"TAG\tT AA G"_s}},
        // alternates up to the first missing number
        {{u"MORGEN"_s}, {u"MORGEN\tM AO R G AH N"_s, u"MORGEN(2)\tM AO R G EH N"_s}},
        {{u"HALL"_s, u"hallo"_s, u"HALLOWEEN"_s}, {u"HALLOWEEN\tHH AE L OW IY N"_s}},
        // a missing word does not move the scan; a word behind the last find is dropped
        {{u"NEIN"_s, u"TAG"_s, u"DANKE"_s}, {u"TAG\tT AA G"_s}},
    };
    for (const auto &[words, lines] : cases)
        EXPECT_EQ(VoLanguageModelTrainer::performDictionaryLookup(words, lookupList, u"/m"_s),
                  lines);
    EXPECT_TRUE(
        VoLanguageModelTrainer::performDictionaryLookup({u"DANKE"_s}, {}, u"/m"_s).isEmpty());
    EXPECT_EQ(
        VoLanguageModelTrainer::performDictionaryLookup({u"JA"_s}, lookupList, u"/m"_s).size(), 5)
        << "the fifth pronunciation is the last taken";
}

// The words are cut out of the phrases and put in the lookup list's order.
TEST(DictionaryLookup, CleansWordsAndSortsThemAsTheListIs)
{
    VoLanguageModelTrainer trainer;
    EXPECT_EQ(trainer.cleanDictionaryWordArray(
                  {u"WELT"_s, u"GEHT'S"_s, u"HALLO-WELT!"_s, u"ÄPFEL"_s, u"WELT"_s, u"danke"_s}),
              QStringList({u"ÄPFEL"_s, u"danke"_s, u"GEHT'S"_s, u"HALLOWELT"_s, u"WELT"_s}));
    EXPECT_EQ(trainer.cleanDictionaryWordArray({u"ZWEI EINS\nDREI"_s}),
              QStringList({u"DREI"_s, u"EINS"_s, u"ZWEI"_s}));
}

TEST_F(ModelGenerationTest, WritesTheDictionaryAndBothModels)
{
    // ANNA is not in the list: the dictionary goes without it, the language model keeps it.
    const LanguageModelError result =
        generate({u"  GUTEN \t MORGEN "_s, u"ANNA"_s, u"WIE\u00a0GEHT'S"_s});
    ASSERT_TRUE(result.succeeded()) << result.description.toStdString();
    EXPECT_EQ(result.userInfo.value(u"LMPath"_s), inBase(u"test.DMP"_s));
    EXPECT_EQ(result.userInfo.value(u"DictionaryPath"_s), inBase(u"test.dic"_s));
    EXPECT_EQ(filesInBase(), QStringList({u"test.DMP"_s, u"test.arpa"_s, u"test.dic"_s}))
        << "every intermediate file is removed";
    EXPECT_EQ(text(inBase(u"test.dic"_s)),
              u"GUTEN\tG UW T AH N\nMORGEN\tM AO R G AH N\nMORGEN(2)\tM AO R G EH N"_s);
    // Each phrase is one sentence, its blanks compacted.
    const QString arpa = text(inBase(u"test.arpa"_s));
    for (const QString &trigram :
         {u" <s> GUTEN MORGEN\n"_s, u" WIE GEHT'S </s>\n"_s, u" <s> ANNA </s>\n"_s})
        EXPECT_TRUE(arpa.contains(trigram)) << arpa.toStdString();
    EXPECT_NE(sphinx::readNgramModel(inBase(u"test.DMP"_s), NGRAM_BIN), nullptr)
        << "SphinxBase loads the binary model";
}

TEST_F(ModelGenerationTest, ReportsNoContentAndWritesNothing)
{
    for (const QStringList &words :
         {QStringList(), QStringList({u"  "_s, u"\t\u00a0"_s}), QStringList(u"\n"_s)}) {
        const LanguageModelError result = generate(words);
        EXPECT_EQ(result.code, LanguageModelError::NoContent);
        EXPECT_EQ(result.description, u"Language model has no content."_s);
        EXPECT_TRUE(filesInBase().isEmpty()) << filesInBase().join(u' ').toStdString();
    }
}

// A second generation of the same name replaces every file; one that knows no word still
// succeeds, with an empty dictionary.
TEST_F(ModelGenerationTest, OverwritesTheFilesOfAnEarlierRun)
{
    ASSERT_TRUE(generate({u"GUTEN"_s, u"TAG"_s}).succeeded());
    const QByteArray firstBinary = VoFileUtil::readFile(inBase(u"test.DMP"_s)).value_or("");
    ASSERT_TRUE(generate({u"DANKE"_s}).succeeded());
    EXPECT_EQ(text(inBase(u"test.dic"_s)), u"DANKE\tD AA NG K AH"_s);
    EXPECT_TRUE(text(inBase(u"test.arpa"_s)).contains(u" DANKE "_s));
    EXPECT_FALSE(text(inBase(u"test.arpa"_s)).contains(u"GUTEN"_s));
    EXPECT_NE(VoFileUtil::readFile(inBase(u"test.DMP"_s)).value_or(""), firstBinary);

    ASSERT_TRUE(generate({u"ANNA"_s, u"BERLIN"_s}).succeeded());
    EXPECT_TRUE(QFileInfo::exists(inBase(u"test.dic"_s)));
    EXPECT_TRUE(text(inBase(u"test.dic"_s)).isEmpty());
    EXPECT_EQ(filesInBase(), QStringList({u"test.DMP"_s, u"test.arpa"_s, u"test.dic"_s}));
}

TEST_F(ModelGenerationTest, ReportsFilesItCannotReadOrWrite)
{
    QFile::remove(VoLanguageModelTrainer::lookupListPath(m_model.path()));
    LanguageModelError result = generate({u"GUTEN"_s});
    EXPECT_EQ(result.code, LanguageModelError::FileReadFailed);
    EXPECT_EQ(result.userInfo.value(u"FilePath"_s),
              VoLanguageModelTrainer::lookupListPath(m_model.path()));
    EXPECT_EQ(filesInBase(), QStringList({u"test.DMP"_s, u"test.arpa"_s}));

    m_trainer.setLmBasePath(inBase(u"missing"_s));
    result = generate({u"GUTEN"_s});
    EXPECT_EQ(result.code, LanguageModelError::FileWriteFailed);
    EXPECT_EQ(result.userInfo.value(u"FilePath"_s), inBase(u"missing/test.corpus"_s));
    EXPECT_FALSE(QFileInfo::exists(inBase(u"missing"_s)));
}

// The command line tool's default acoustic model.
TEST(ModelGeneration, EnglishModelIsTheOneBesideTheProgram)
{
    EXPECT_EQ(VoLanguageModelTrainer().englishAcousticModelPath(),
              QCoreApplication::applicationDirPath() + u"/AcousticModelEnglish.bundle"_s);
}

// The lookup list is written from these entries: an alternate it cannot write back as itself
// must stop the build rather than become a second main line.
TEST(PronunciationList, RefusesAlternatesBelowOneOrPastInt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.dict"_s);
    for (const QByteArray line : {"HALLO(0) HH AH L OW\n", "HALLO(99999999999) HH AH L OW\n"}) {
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(path, "HALLO HH AA L OW\n" + line));
        QString error;
        EXPECT_FALSE(readPronunciationDictionary(path, error)) << line.constData();
        EXPECT_TRUE(error.endsWith(u"line 2 has no alternate number from 1 on"_s))
            << qPrintable(error);
    }
}
