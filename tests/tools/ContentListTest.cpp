#include "CliRunner.h"
#include "content/AppCommon.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <algorithm>

namespace {

CliRun listCourse(const QStringList &options)
{
    return runCli(QStringList{u"content"_s, u"list"_s, u"--resources"_s, TestPaths::course()} +
                  options);
}

} // namespace

TEST(ContentList, EveryCategoryInTextOrderWithTranslatedNameAndCount)
{
    const CliRun run = listCourse({u"--lang"_s, u"fr"_s});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();

    ContentStore store(TestPaths::course());
    const QStringList lines = run.outLines();
    QStringList ids;
    for (const QString &line : lines) {
        const QStringList columns = line.split(u'\t');
        ASSERT_EQ(columns.size(), 3) << line.toStdString();
        ids.append(columns[0]);
        SCOPED_TRACE(line.toStdString());
        const CategoryInfo *category = store.category(columns[0]);
        ASSERT_TRUE(category);
        EXPECT_EQ(columns[1], category->trans.value(u"fr"_s));
        EXPECT_NE(columns[1], category->name) << "the French name, not the German one";
        const qsizetype phrases = store.loadPhrases(category->id)->size();
        EXPECT_GT(phrases, 0);
        EXPECT_EQ(columns[2], QString::number(phrases));
    }

    QStringList folders = QDir(TestPaths::course()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(folders.begin(), folders.end());
    EXPECT_EQ(ids, folders) << "every category once, ids sorted as text";
    ASSERT_GE(ids.size(), 3);
    EXPECT_EQ(ids.mid(0, 3), (QStringList{u"1"_s, u"10"_s, u"2"_s}));
}

TEST(ContentList, CategoryShowsItsPhrasesWithTheirMedia)
{
    const CliRun run = listCourse({u"--category"_s, u"3"_s, u"--lang"_s, u"fr"_s});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();

    ContentStore store(TestPaths::course());
    const QList<PhraseInfo *> &phrases = *store.loadPhrases(u"3"_s);
    const QStringList lines = run.outLines();
    ASSERT_EQ(lines.size(), phrases.size());
    ASSERT_FALSE(lines.isEmpty());
    const QString folder = QDir(TestPaths::course()).filePath(u"3/"_s);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(lines[i].toStdString());
        const QStringList columns = lines[i].split(u'\t');
        ASSERT_EQ(columns.size(), 6);
        const PhraseInfo &phrase = *phrases[i];
        EXPECT_EQ(columns[0], phrase.id) << "file order";
        EXPECT_EQ(columns[1], phrase.content);
        EXPECT_FALSE(columns[2].isEmpty());
        EXPECT_EQ(columns[2], phrase.phon);
        EXPECT_FALSE(columns[3].isEmpty());
        EXPECT_EQ(columns[3], phrase.trans.value(u"fr"_s));

        const QFileInfo audio(columns[4]);
        EXPECT_TRUE(columns[4].startsWith(folder + u"voices/"_s));
        EXPECT_TRUE(audio.isFile() && audio.size() > 0);
        EXPECT_TRUE(columns[5].startsWith(folder + u"images/"_s));
        EXPECT_FALSE(QImage(columns[5]).isNull()) << "a picture that loads";
    }
}

TEST(ContentList, BadInputFailsWithOneLine)
{
    const QTemporaryDir empty;
    const QString missing = empty.filePath(u"missing"_s);
    expectOneLineFailure(listCourse({u"--category"_s, u"999"_s}), u"999"_s);
    expectOneLineFailure(listCourse({u"--lang"_s, u"xx"_s}), u"xx"_s);
    expectOneLineFailure(runCli({u"content"_s, u"list"_s, u"--resources"_s, missing}), missing);
}

TEST(ContentList, FolderThatIsNoCourseFailsWithoutAborting)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"photos"_s));
    expectOneLineFailure(runCli({u"content"_s, u"list"_s, u"--resources"_s, folder.path()}),
                         u"photos"_s);
}
