#include "QtPrinters.h"
#include "content/AppCommon.h"
#include "content/VoAppCommon.h"
#include "support/TestPaths.h"

#include <QFileInfo>
#include <QSet>
#include <gtest/gtest.h>

// The course the build ships, read the way the app reads it: a file that fails to decipher or
// parse ends the program, so a broken build fails here rather than on a learner's phone.
TEST(ShippedCourse, EveryPhraseIsCompleteInEveryLanguage)
{
    ASSERT_TRUE(QFileInfo(TestPaths::course()).isDir()) << qPrintable(TestPaths::course());
    ContentStore store(TestPaths::course());
    ASSERT_FALSE(store.loadAllCategories().isEmpty());

    QSet<QString> ids;
    for (const CategoryInfo *category : store.loadAllCategories()) {
        SCOPED_TRACE(category->id.toStdString());
        EXPECT_FALSE(store.loadPhrases(category->id)->isEmpty());
        for (const QString &code : supportedLanguageCodes())
            EXPECT_TRUE(category->trans.contains(code)) << qPrintable(code);
    }
    for (PhraseInfo *phrase : store.allPhrases()) {
        SCOPED_TRACE(phrase->id.toStdString());
        // Recordings and speech models are kept per phrase id.
        EXPECT_FALSE(ids.contains(phrase->id));
        ids.insert(phrase->id);
        EXPECT_FALSE(phrase->phon.isEmpty());
        EXPECT_FALSE(VoAppCommon::getAllWordFromText(foreignText(*phrase), false).isEmpty());
        for (const QString &code : supportedLanguageCodes())
            EXPECT_FALSE(phrase->trans.value(code).isEmpty()) << qPrintable(code);
        EXPECT_GT(QFileInfo(store.soundPath(*phrase)).size(), 0);
        EXPECT_GT(QFileInfo(store.imagePath(*phrase)).size(), 0);
    }
}
