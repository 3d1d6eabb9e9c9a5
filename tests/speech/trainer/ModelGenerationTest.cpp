#include "content/QtPrinters.h"
#include "content/VoFileUtil.h"
#include "speech/NgramModelFile.h"
#include "speech/VoLanguageModelTrainer.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Whole generations into a private folder, against a small lookup list made here.

namespace {

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QString text(const QString &path)
{
    return QString::fromUtf8(VoFileUtil::readFile(path).value_or(QByteArray()));
}

/// The words of one section ("\1-grams:", ...) of an ARPA model.
QStringList arpaSection(const QString &arpa, const QString &heading)
{
    QStringList entries;
    bool inside = false;
    for (const QString &line : arpa.split(u'\n')) {
        if (line.startsWith(u'\\')) {
            inside = line == heading;
            continue;
        }
        const QStringList fields = line.split(u' ', Qt::SkipEmptyParts);
        if (inside && fields.size() >= 2)
            entries.append(fields.mid(1, heading.at(1).digitValue()).join(u' '));
    }
    return entries;
}

class ModelGenerationTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_base.isValid() && m_model.isValid());
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(
            VoLanguageModelTrainer::lookupListPath(m_model.path()),
            "AA\tAA\n"
            "DANKE\tD AA NG K AH\n"
            "GUTEN\tG UW T AH N\n"
            "MORGEN\tM AO R G AH N\n"
            "MORGEN(2)\tM AO R G EH N\n"
            "MORGEN(4)\tM AO R G IH N\n"
            "TAG\tT AA G\n" +
                // The scan looks for alternates only with enough list after them.
                QByteArray("ZZ\tZ IY Z IY\n").repeated(40)));
        m_trainer.setLmBasePath(m_base.path());
    }

    LanguageModelError generate(const QStringList &words)
    {
        return m_trainer.generateLanguageModelFromArray(words, u"test"_s, m_model.path());
    }
    [[nodiscard]] QString inBase(const QString &name) const { return m_base.filePath(name); }
    [[nodiscard]] QStringList filesInBase() const
    {
        return sorted(QDir(m_base.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot));
    }

    QTemporaryDir m_base;
    QTemporaryDir m_model;
    VoLanguageModelTrainer m_trainer;
};

} // namespace

TEST_F(ModelGenerationTest, WritesTheDictionaryAndBothModels)
{
    const LanguageModelError result = generate({u"GUTEN"_s, u"MORGEN"_s, u"ANNA"_s});
    ASSERT_TRUE(result.succeeded()) << result.description.toStdString();
    EXPECT_EQ(result.domain, QString::fromLatin1(LanguageModelError::generalDomain));
    EXPECT_EQ(result.userInfo, QVariantMap({{u"LMFile"_s, u"test.DMP"_s},
                                            {u"DictionaryFile"_s, u"test.dic"_s},
                                            {u"LMPath"_s, inBase(u"test.DMP"_s)},
                                            {u"DictionaryPath"_s, inBase(u"test.dic"_s)}}));
    EXPECT_EQ(filesInBase(), QStringList({u"test.DMP"_s, u"test.arpa"_s, u"test.dic"_s}))
        << "every intermediate file is removed";

    // ANNA is not in the list: the dictionary goes without it, the language model keeps it.
    EXPECT_EQ(text(inBase(u"test.dic"_s)),
              u"GUTEN\tG UW T AH N\nMORGEN\tM AO R G AH N\nMORGEN(2)\tM AO R G EH N"_s);
    const QStringList unigrams = arpaSection(text(inBase(u"test.arpa"_s)), u"\\1-grams:"_s);
    for (const QString &word : {u"GUTEN"_s, u"MORGEN"_s, u"ANNA"_s})
        EXPECT_TRUE(unigrams.contains(word))
            << word.toStdString() << " in " << unigrams.join(u' ').toStdString();

    EXPECT_NE(sphinx::readNgramModel(inBase(u"test.DMP"_s), NGRAM_BIN), nullptr)
        << "SphinxBase loads the binary model";
}

TEST_F(ModelGenerationTest, ReportsNoContentAndWritesNothing)
{
    for (const QStringList &words : {QStringList(), QStringList({u"  "_s, u"\t "_s})}) {
        const LanguageModelError result = generate(words);
        EXPECT_EQ(result.code, LanguageModelError::NoContent);
        EXPECT_EQ(result.description, u"Language model has no content."_s);
        EXPECT_TRUE(filesInBase().isEmpty()) << filesInBase().join(u' ').toStdString();
    }
}

TEST_F(ModelGenerationTest, SucceedsWithAnEmptyDictionaryWhenNoWordIsKnown)
{
    ASSERT_TRUE(generate({u"ANNA"_s, u"BERLIN"_s}).succeeded());
    EXPECT_TRUE(text(inBase(u"test.dic"_s)).isEmpty());
    EXPECT_TRUE(QFileInfo::exists(inBase(u"test.dic"_s)));
}

TEST_F(ModelGenerationTest, OverwritesTheFilesOfAnEarlierRun)
{
    ASSERT_TRUE(generate({u"GUTEN"_s, u"TAG"_s}).succeeded());
    const QByteArray firstBinary = VoFileUtil::readFile(inBase(u"test.DMP"_s)).value_or("");
    ASSERT_TRUE(generate({u"DANKE"_s}).succeeded());

    EXPECT_EQ(text(inBase(u"test.dic"_s)), u"DANKE\tD AA NG K AH"_s);
    const QStringList unigrams = arpaSection(text(inBase(u"test.arpa"_s)), u"\\1-grams:"_s);
    EXPECT_TRUE(unigrams.contains(u"DANKE"_s));
    EXPECT_FALSE(unigrams.contains(u"GUTEN"_s));
    EXPECT_NE(VoFileUtil::readFile(inBase(u"test.DMP"_s)).value_or(""), firstBinary);
    EXPECT_EQ(filesInBase(), QStringList({u"test.DMP"_s, u"test.arpa"_s, u"test.dic"_s}));
}

TEST_F(ModelGenerationTest, KeepsSentencesApartInTheModel)
{
    ASSERT_TRUE(generate({u"GUTEN TAG"_s, u"DANKE"_s}).succeeded());
    const QString arpa = text(inBase(u"test.arpa"_s));
    const QStringList bigrams = arpaSection(arpa, u"\\2-grams:"_s);
    EXPECT_TRUE(bigrams.contains(u"GUTEN TAG"_s));
    for (const QString &bigram : bigrams)
        EXPECT_FALSE(bigram.startsWith(u"</s>"_s)) << bigram.toStdString();
    for (int order = 1; order <= 3; ++order) {
        const QString count =
            u"ngram %1=%2"_s.arg(order).arg(arpaSection(arpa, u"\\%1-grams:"_s.arg(order)).size());
        EXPECT_TRUE(arpa.contains(u'\n' + count + u'\n')) << count.toStdString();
    }
}

TEST_F(ModelGenerationTest, ReportsAMissingLookupListAfterBuildingTheModel)
{
    QFile::remove(VoLanguageModelTrainer::lookupListPath(m_model.path()));
    const LanguageModelError result = generate({u"GUTEN"_s});
    EXPECT_EQ(result.code, LanguageModelError::FileReadFailed);
    EXPECT_EQ(result.userInfo.value(u"FilePath"_s),
              VoLanguageModelTrainer::lookupListPath(m_model.path()));
    EXPECT_EQ(filesInBase(), QStringList({u"test.DMP"_s, u"test.arpa"_s}));
}

TEST_F(ModelGenerationTest, ReportsAFolderItCannotWriteTo)
{
    m_trainer.setLmBasePath(inBase(u"missing"_s));
    const LanguageModelError result = generate({u"GUTEN"_s});
    EXPECT_EQ(result.code, LanguageModelError::FileWriteFailed);
    EXPECT_EQ(result.userInfo.value(u"FilePath"_s), inBase(u"missing/test.corpus"_s));
    EXPECT_TRUE(filesInBase().isEmpty());
}

TEST_F(ModelGenerationTest, UsesTheEnglishModelFolderItIsGiven)
{
    m_trainer.setEnglishAcousticModelPath(m_model.path());
    ASSERT_TRUE(m_trainer.generateEnglishLanguageModelFromArray({u"TAG"_s}, u"test"_s).succeeded());
    EXPECT_EQ(text(inBase(u"test.dic"_s)), u"TAG\tT AA G"_s);
}
