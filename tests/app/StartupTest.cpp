#include "app/AppDelegate.h"
#include "app/AppPaths.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/CourseFixture.h"
#include "content/UserInfoFile.h"

#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>

namespace {

// Each case starts as a fresh installation: no record, no settings.
class StartupTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        CourseFixture::appCourse();
        QFile::remove(AppPaths::userInfoPath());
        QSettings().clear();
    }

    static bool start() { return AppDelegate().didFinishLaunching(); }
};

} // namespace

TEST_F(StartupTest, FirstStartCreatesTheRecordAndLoadsTheCourse)
{
    ASSERT_TRUE(start());
    QVariantMap expected = initialUserInfo();
    expected[UserInfoKey::startCount] = qint64{1};
    EXPECT_EQ(readUserInfo(), expected);
    EXPECT_EQ(expected.size(), 10);
    EXPECT_EQ(totalExperience(), 10);
    for (const CategoryInfo *category : loadAllCategories())
        EXPECT_TRUE(category->phraseInfoList) << qPrintable(category->id);
}

TEST_F(StartupTest, LaterStartsKeepWhatWasEarned)
{
    ASSERT_TRUE(start());
    recordQuizResult(70);
    incrementUserInfoCounter(UserInfoKey::listenCount);
    ASSERT_TRUE(start());
    EXPECT_EQ(userInfoInt(UserInfoKey::startCount), 2);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), 1);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), 70);
    EXPECT_EQ(totalExperience(), 20 + 10 + 70 + 5);
}

TEST_F(StartupTest, ChosenPlaySpeedLastsOneRun)
{
    ASSERT_TRUE(start());
    Preferences::instance().setPlaySpeed(0.5F);
    EXPECT_EQ(QSettings().value(Preferences::playSpeedKey).toFloat(), 0.5F);
    ASSERT_TRUE(start());
    EXPECT_EQ(Preferences::instance().playSpeed(), 1.0F);
    EXPECT_EQ(QSettings().value(Preferences::playSpeedKey).toFloat(), 1.0F);
}

TEST_F(StartupTest, ExistingRecordIsNeverExtended)
{
    QVariantMap old = initialUserInfo();
    old.remove(UserInfoKey::awordScore);
    old[UserInfoKey::startCount] = qint64{4};
    ASSERT_TRUE(writeUserInfo(old));
    ASSERT_TRUE(start());
    old[UserInfoKey::startCount] = qint64{5};
    EXPECT_EQ(readUserInfo(), old);
}

using StartupDeathTest = StartupTest;

TEST_F(StartupDeathTest, DamagedRecordStopsTheStart)
{
    QFile file(AppPaths::userInfoPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("damaged");
    file.close();
    EXPECT_DEATH(start(), "Tolvane/AppCommon");
}
