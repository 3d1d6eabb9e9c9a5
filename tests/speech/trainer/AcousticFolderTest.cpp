#include "content/AppCommon.h"
#include "content/VoFileUtil.h"
#include "speech/RecognizerWords.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/WordOrder.h"
#include "tools/CliRunner.h"

#include <QDir>
#include <QRegularExpression>

// The acoustic model folder the build made, and the tool that makes it.

namespace {

QString builtList()
{
    static const QString list = QString::fromUtf8(
        VoFileUtil::readFile(VoLanguageModelTrainer::lookupListPath(TestPaths::acousticModel()))
            .value_or(QByteArray()));
    return list;
}

QStringList courseWords()
{
    ContentStore store(TestPaths::course());
    QStringList words;
    for (const CategoryInfo *category : store.loadAllCategories()) {
        for (const PhraseInfo *phrase : *store.loadPhrases(category->id))
            words += recognizerWords(foreignText(*phrase), true);
    }
    return words;
}

QStringList buildArguments(const QString &phoneTable, const QString &output)
{
    return {u"acoustic"_s, u"build"_s,
            u"--course"_s, TestPaths::course(),
            u"--model"_s,  QStringLiteral(TOLVANE_ACOUSTIC_SOURCES),
            u"--dict"_s,   QStringLiteral(TOLVANE_ENGLISH_DICTIONARY),
            u"--phones"_s, phoneTable,
            output};
}

QString phoneTable()
{
    return QStringLiteral(TOLVANE_PHONE_TABLE);
}

} // namespace

TEST(AcousticFolder, FindsEveryWordOfTheCourse)
{
    const QStringList words = courseWords();
    ASSERT_GT(words.size(), 100);
    VoLanguageModelTrainer trainer;
    const QStringList sortedWords = trainer.cleanDictionaryWordArray(words);
    ASSERT_EQ(sortedWords.size(), QSet<QString>(words.begin(), words.end()).size())
        << "the course's words need no cleaning";
    const QStringList lines = VoLanguageModelTrainer::performDictionaryLookup(
        sortedWords, builtList(), VoLanguageModelTrainer::lookupListPath(u"AcousticModel"_s));

    QSet<QString> found;
    for (const QString &line : lines)
        found.insert(line.section(u'\t', 0, 0).section(u'(', 0, 0));
    for (const QString &word : sortedWords)
        EXPECT_TRUE(found.contains(word)) << word.toStdString() << " is not found";
}

TEST(AcousticFolder, SortsTheListForTheForwardScan)
{
    static const QRegularExpression line(u"^([A-Z0-9'._-]+)(?:\\((\\d)\\))?\\t[A-Z]+( [A-Z]+)*$"_s);
    const QStringList lines = CliRun::lines(builtList());
    ASSERT_GT(lines.size(), 130000) << "every English entry is in the list";
    QString previousWord;
    int previousAlternate = 0;
    for (const QString &text : lines) {
        const QRegularExpressionMatch match = line.match(text);
        ASSERT_TRUE(match.hasMatch()) << text.toStdString();
        const QString word = match.captured(1);
        const int alternate = match.hasCaptured(2) ? match.captured(2).toInt() : 1;
        if (alternate > 1) {
            ASSERT_EQ(word, previousWord) << text.toStdString();
            ASSERT_EQ(alternate, previousAlternate + 1) << text.toStdString();
        } else {
            ASSERT_LE(compareWords(previousWord, word), 0) << text.toStdString();
            ASSERT_NE(word, previousWord) << text.toStdString();
        }
        previousWord = word;
        previousAlternate = alternate;
    }
}

TEST(AcousticFolder, HoldsEnglishEntriesAndGermanWords)
{
    const QString list = builtList();
    for (const QString &entry :
         {u"\nHELLO\tHH AH L OW\nHELLO(2)\tHH EH L OW\n"_s, u"\nDIE\tD AY\nDIE(2)\tD IY\n"_s,
          u"\nDANKE\tD AA NG K AH\n"_s, u"\nZWANZIG\tT S V AA N T S IH SH\n"_s,
          u"\nENTSCHULDIGUNG\tEH N T SH UH L D IH G UH NG\n"_s, u"\nGEHT'S\tG EY T S\n"_s})
        EXPECT_TRUE(list.contains(entry)) << entry.toStdString();
}

TEST(AcousticFolder, CopiesTheModelFiles)
{
    const QDir source(QStringLiteral(TOLVANE_ACOUSTIC_SOURCES));
    const QStringList files = source.entryList(QDir::Files);
    ASSERT_TRUE(files.contains(u"mdef"_s));
    for (const QString &file : files) {
        EXPECT_EQ(VoFileUtil::readFile(QDir(TestPaths::acousticModel()).filePath(file)),
                  VoFileUtil::readFile(source.filePath(file)))
            << file.toStdString();
    }
}

TEST(AcousticFolder, BuildsTheSameFolderAgain)
{
    const QTemporaryDir output;
    const CliRun run = runCli(buildArguments(phoneTable(), output.path()));
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.out.contains(u"course words"_s)) << run.out.toStdString();
    const QDir built(TestPaths::acousticModel());
    EXPECT_EQ(QDir(output.path()).entryList(QDir::Files), built.entryList(QDir::Files));
    for (const QString &file : built.entryList(QDir::Files)) {
        EXPECT_TRUE(VoFileUtil::readFile(built.filePath(file)) ==
                    VoFileUtil::readFile(QDir(output.path()).filePath(file)))
            << file.toStdString() << " differs";
    }
}

TEST(AcousticFolder, StopsOnAPhonemeTheTableLacks)
{
    const QTemporaryDir scratch;
    const QString table = scratch.filePath(u"phones.tsv"_s);
    QString withoutTs = QString::fromUtf8(VoFileUtil::readFile(phoneTable()).value_or(""));
    withoutTs.remove(QRegularExpression(u"(?m)^ts\\t.*\\n"_s));
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(table, withoutTs.toUtf8()));

    const QString output = scratch.filePath(u"out"_s);
    expectOneLineFailure(runCli(buildArguments(table, output)), u"phoneme \"ts\""_s);
    EXPECT_FALSE(QFileInfo::exists(VoLanguageModelTrainer::lookupListPath(output)));
}

TEST(AcousticFolder, RejectsBadToolInput)
{
    const QTemporaryDir scratch;
    const QString table = scratch.filePath(u"phones.tsv"_s);
    const QString output = scratch.filePath(u"out"_s);

    ASSERT_TRUE(VoFileUtil::writeFileAtomically(table, "# German a\na\tAA XX\n"));
    expectOneLineFailure(runCli(buildArguments(table, output)), u"\"XX\", which the model lacks"_s);
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(table, "a AA\n"));
    expectOneLineFailure(runCli(buildArguments(table, output)), u"line 1"_s);

    QStringList otherModel = buildArguments(phoneTable(), output);
    otherModel[5] = scratch.path();
    expectOneLineFailure(runCli(otherModel), u"mdef"_s);
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(scratch.filePath(u"mdef"_s), "BMDF\1"));
    expectOneLineFailure(runCli(otherModel), u"not a binary model definition"_s);

    expectOneLineFailure(runCli(buildArguments(phoneTable(), output).mid(0, 10)),
                         u"one output folder"_s);
    expectOneLineFailure(runCli({u"acoustic"_s, u"build"_s, output}), u"--course"_s);
    EXPECT_FALSE(QFileInfo::exists(output));
}
