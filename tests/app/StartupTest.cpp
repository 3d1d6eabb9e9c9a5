#include "app/AppDelegate.h"
#include "app/AppPaths.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "app/WindowPlacement.h"
#include "content/AppCommon.h"
#include "content/QtPrinters.h"
#include "content/UserInfoFile.h"
#include "support/TestPaths.h"

#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Each case starts as a fresh installation: no record, no settings.
class StartupTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        setResourceRoot(TestPaths::course());
        // The writer first, or a pending write would bring the record back.
        flushUserRecord();
        QFile::remove(AppPaths::userInfoPath());
        QFile::remove(AppPaths::userInfoPath() + u".previous"_s);
        QSettings().clear();
    }

    static bool start() { return AppDelegate().didFinishLaunching(); }
};
using StartupDeathTest = StartupTest;

} // namespace

TEST_F(StartupTest, FirstStartCreatesTheRecordLaterStartsCountUpAndResetTheSpeed)
{
    ASSERT_TRUE(start());
    EXPECT_EQ(takeRecordNotice(), QString()) << "a first start has nothing to tell";
    QVariantMap record = initialUserInfo();
    record[UserInfoKey::startCount] = qint64{1};
    EXPECT_EQ(readUserInfo(), record);
    for (const CategoryInfo *category : loadAllCategories())
        EXPECT_TRUE(category->phraseInfoList) << qPrintable(category->id);

    record[UserInfoKey::quizTotalScore] = qint64{70};
    ASSERT_TRUE(writeUserInfo(record));
    Preferences::instance().setPlaySpeed(0.5F);
    ASSERT_TRUE(start());
    EXPECT_EQ(Preferences::instance().playSpeed(), 1.0F) << "the chosen speed lasts one run";
    record[UserInfoKey::startCount] = qint64{2};
    EXPECT_EQ(readUserInfo(), record);
}

TEST_F(StartupDeathTest, OverflowsAndAMissingCounterAreFatal)
{
    const char *fatal = "Tolvane/AppCommon";
    QVariantMap record = initialUserInfo();
    record[UserInfoKey::reviewed] = std::numeric_limits<qint64>::max() / 1000 + 1;
    EXPECT_DEATH((void)totalExperience(record), fatal);
    record = initialUserInfo();
    record[UserInfoKey::awordScore] = std::numeric_limits<qint64>::max();
    record[UserInfoKey::startCount] = 1;
    EXPECT_DEATH((void)totalExperience(record), fatal);
    record = initialUserInfo();
    record.remove(UserInfoKey::writeCount);
    EXPECT_DEATH((void)totalExperience(record), "kWriteCount");
}

// What an older version or a damaged settings file left reads as the defaults.
TEST_F(StartupTest, NonsensePreferencesReadAsDefaults)
{
    const Preferences &preferences = Preferences::instance();
    for (const QVariant &bad : {QVariant(-5), QVariant(0), QVariant(u"long"_s), QVariant()}) {
        QSettings().setValue(Preferences::testDurationKey, bad);
        QSettings().setValue(Preferences::playSpeedKey, bad);
        EXPECT_EQ(preferences.testDuration(), 60.0F) << qPrintable(bad.toString());
        EXPECT_EQ(preferences.playSpeed(), 1.0F) << qPrintable(bad.toString());
    }
    for (const QString &bad : {u"xx"_s, u"FR"_s, u"zh"_s, QString()}) {
        QSettings().setValue(Preferences::languageTypeKey, bad);
        EXPECT_EQ(preferences.languageType(), defaultLanguageCode()) << qPrintable(bad);
    }
}

// The window comes back where it was, unless that place is on a screen that has gone: then it
// keeps its size and the window manager places it.
TEST(WindowPlacement, TheWindowReturnsWhereItWasWhileThatPlaceIsOnAScreen)
{
    const QList<QRect> screens{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    const QRect onSecond(2000, 100, 400, 700);
    EXPECT_EQ(WindowPlacement::placement(onSecond, screens), onSecond);
    EXPECT_EQ(WindowPlacement::placement(onSecond, screens.mid(0, 1)), QRect(0, 0, 400, 700));
    EXPECT_TRUE(WindowPlacement::placement(QRect(), screens).isNull()) << "nothing saved yet";
}
