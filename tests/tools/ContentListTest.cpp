#include "CliRunner.h"
#include "content/AppCommon.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

namespace {

CliRun listCourse(const QStringList &options)
{
    return runCli(QStringList{u"content"_s, u"list"_s, u"--resources"_s, TestPaths::course()} +
                  options);
}

} // namespace

TEST(ContentList, CategoriesAndOneCategorysPhrasesInTheChosenLanguage)
{
    ContentStore store(TestPaths::course());
    const CliRun categories = listCourse({u"--lang"_s, u"fr"_s});
    ASSERT_EQ(categories.exitCode, 0) << categories.err.toStdString();
    EXPECT_TRUE(categories.err.isEmpty()) << categories.err.toStdString();
    QStringList expected;
    for (const CategoryInfo *category : store.loadAllCategories())
        expected.append(category->id + u'\t' + category->trans.value(u"fr"_s) + u'\t' +
                        QString::number(store.loadPhrases(category->id)->size()));
    EXPECT_EQ(categories.outLines(), expected);
    EXPECT_TRUE(expected.value(1).startsWith(u"10\t"_s)) << "ids sorted as text";

    const CliRun phrases = listCourse({u"--category"_s, u"3"_s, u"--lang"_s, u"fr"_s});
    ASSERT_EQ(phrases.exitCode, 0) << phrases.err.toStdString();
    const QStringList lines = phrases.outLines();
    ASSERT_EQ(lines.size(), store.loadPhrases(u"3"_s)->size());
    const QString folder = QDir(TestPaths::course()).filePath(u"3/"_s);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(lines[i].toStdString());
        const PhraseInfo &phrase = *store.loadPhrases(u"3"_s)->at(i);
        const QStringList columns = lines[i].split(u'\t');
        ASSERT_EQ(columns.size(), 6);
        EXPECT_EQ(columns.mid(0, 4), (QStringList{phrase.id, phrase.content, phrase.phon,
                                                  phrase.trans.value(u"fr"_s)}));
        EXPECT_TRUE(columns[4].startsWith(folder + u"voices/"_s));
        EXPECT_GT(QFileInfo(columns[4]).size(), 0);
        EXPECT_TRUE(columns[5].startsWith(folder + u"images/"_s));
        EXPECT_FALSE(QImage(columns[5]).isNull());
    }
}

TEST(ContentList, BadInputFailsWithOneLine)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"photos"_s));
    expectOneLineFailure(listCourse({u"--category"_s, u"999"_s}), u"999"_s);
    expectOneLineFailure(listCourse({u"--lang"_s, u"xx"_s}), u"xx"_s);
    const QString missing = folder.filePath(u"missing"_s);
    expectOneLineFailure(runCli({u"content"_s, u"list"_s, u"--resources"_s, missing}), missing);
    // A folder that is no course is bad input here, not a reason to abort.
    expectOneLineFailure(runCli({u"content"_s, u"list"_s, u"--resources"_s, folder.path()}),
                         u"photos"_s);
}
