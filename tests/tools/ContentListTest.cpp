#include "CliRunner.h"
#include "content/AppCommon.h"

#include <QDir>

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
    for (qsizetype i = 0; i < lines.size(); ++i) {
        PhraseInfo &phrase = *store.loadPhrases(u"3"_s)->at(i);
        EXPECT_EQ(lines[i].split(u'\t'),
                  (QStringList{phrase.id, phrase.content, phrase.phon, phrase.trans.value(u"fr"_s),
                               store.soundPath(phrase), store.imagePath(phrase)}));
    }
}

TEST(ContentList, BadInputFailsWithOneLine)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"photos"_s));
    expectOneLineFailure(listCourse({u"--category"_s, u"999"_s}), u"999"_s);
    expectOneLineFailure(listCourse({u"--lang"_s, u"xx"_s}), u"xx"_s, 1);
    const QString missing = folder.filePath(u"missing"_s);
    expectOneLineFailure(runCli({u"content"_s, u"list"_s, u"--resources"_s, missing}), missing);
    // A folder that is no course is bad input here, not a reason to abort.
    expectOneLineFailure(runCli({u"content"_s, u"list"_s, u"--resources"_s, folder.path()}),
                         u"photos"_s);
}
