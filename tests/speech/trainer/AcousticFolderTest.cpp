#include "content/AppCommon.h"
#include "content/VoFileUtil.h"
#include "speech/RecognizerWords.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/WordOrder.h"
#include "tools/CliRunner.h"

#include <QDir>
#include <QRegularExpression>

// The acoustic model folder the build made with tolvane-cli, and that tool on damaged input.

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

} // namespace

// Each word of the course is found by the generator's own scan, so the list's order and the
// generator's must agree.
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

// Every English entry, sorted for the forward scan, alternates right after their word; German
// words the dictionary lacks are pronounced from the phone table.
TEST(AcousticFolder, ListsEnglishEntriesAndGermanWordsInOrder)
{
    static const QRegularExpression line(u"^([A-Z0-9'._-]+)(?:\\((\\d)\\))?\\t[A-Z]+( [A-Z]+)*$"_s);
    const QStringList lines = CliRun::lines(builtList());
    ASSERT_GT(lines.size(), 130000);
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
    for (const QString &entry :
         {u"\nHELLO\tHH AH L OW\nHELLO(2)\tHH EH L OW\n"_s, u"\nDIE\tD AY\nDIE(2)\tD IY\n"_s,
          u"\nDANKE\tD AA NG K AH\n"_s, u"\nZWANZIG\tT S V AA N T S IH SH\n"_s,
          u"\nENTSCHULDIGUNG\tEH N T SH UH L D IH G UH NG\n"_s, u"\nGEHT'S\tG EY T S\n"_s})
        EXPECT_TRUE(builtList().contains(entry)) << entry.toStdString();
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

// A damaged phone table or model stops the build with one line naming the fault, and no list.
TEST(AcousticFolder, StopsOnDamagedInput)
{
    const QTemporaryDir scratch;
    const QString table = scratch.filePath(u"phones.tsv"_s);
    const QString output = scratch.filePath(u"out"_s);
    const QByteArray realTable =
        VoFileUtil::readFile(QStringLiteral(TOLVANE_PHONE_TABLE)).value_or("");
    const QByteArray withoutTs =
        QString::fromUtf8(realTable).remove(QRegularExpression(u"(?m)^ts\\t.*\\n"_s)).toUtf8();
    const struct {
        QByteArray phones;
        QString model;
        QString mentioned;
    } cases[] = {
        {withoutTs, QStringLiteral(TOLVANE_ACOUSTIC_SOURCES), u"phoneme \"ts\""_s},
        {"# German a\na\tAA XX\n", QStringLiteral(TOLVANE_ACOUSTIC_SOURCES),
         u"\"XX\", which the model lacks"_s},
        {"a AA\n", QStringLiteral(TOLVANE_ACOUSTIC_SOURCES), u"line 1"_s},
        {realTable, scratch.path(), u"mdef"_s},
        {realTable, scratch.filePath(u"model"_s), u"not a binary model definition"_s},
    };
    ASSERT_TRUE(QDir(scratch.path()).mkdir(u"model"_s));
    ASSERT_TRUE(VoFileUtil::writeFileAtomically(scratch.filePath(u"model/mdef"_s), "BMDF\1"));
    for (const auto &[phones, model, mentioned] : cases) {
        SCOPED_TRACE(mentioned.toStdString());
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(table, phones));
        expectOneLineFailure(
            runCli({u"acoustic"_s, u"build"_s, u"--course"_s, TestPaths::course(), u"--model"_s,
                    model, u"--dict"_s, QStringLiteral(TOLVANE_ENGLISH_DICTIONARY), u"--phones"_s,
                    table, output}),
            mentioned);
        EXPECT_FALSE(QFileInfo::exists(VoLanguageModelTrainer::lookupListPath(output)));
    }
}
