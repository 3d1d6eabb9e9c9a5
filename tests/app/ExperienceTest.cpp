#include "app/UserRecord.h"
#include "content/QtPrinters.h"
#include "content/UserInfoFile.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

TEST(Experience, InitialRecordHoldsTheTenCountersAtZero)
{
    const QVariantMap record = initialUserInfo();
    EXPECT_EQ(record.keys(),
              (QStringList{u"kAdvised"_s, u"kAwordScore"_s, u"kListenCount"_s, u"kQuizCount"_s,
                           u"kQuizTotalScore"_s, u"kReadCount"_s, u"kReviewed"_s, u"kStartCount"_s,
                           u"kWriteCount"_s, u"kshared"_s}));
    for (const QVariant &value : record)
        EXPECT_EQ(value.toLongLong(), 0);
    EXPECT_EQ(totalExperience(record), 0);
}

TEST(Experience, EachCounterHasItsWeight)
{
    QVariantMap record = initialUserInfo();
    record[UserInfoKey::startCount] = 1;
    record[UserInfoKey::listenCount] = 2;
    record[UserInfoKey::readCount] = 3;
    record[UserInfoKey::writeCount] = 4;
    record[UserInfoKey::quizCount] = 5;
    record[UserInfoKey::quizTotalScore] = 6;
    record[UserInfoKey::reviewed] = 1;
    record[UserInfoKey::awordScore] = 7;
    record[UserInfoKey::advised] = 100;
    record[UserInfoKey::shared] = 100;
    EXPECT_EQ(totalExperience(record), 10 + 10 + 15 + 20 + 50 + 6 + 1000 + 7);
}

TEST(ExperienceDeathTest, OverflowAndMissingCountersAreFatal)
{
    constexpr qint64 max = std::numeric_limits<qint64>::max();
    const char *fatal = "Tolvane/AppCommon";
    QVariantMap record = initialUserInfo();
    record[UserInfoKey::reviewed] = max / 1000 + 1;
    EXPECT_DEATH((void)totalExperience(record), fatal);

    record = initialUserInfo();
    record[UserInfoKey::awordScore] = max;
    record[UserInfoKey::startCount] = 1;
    EXPECT_DEATH((void)totalExperience(record), fatal);

    record = initialUserInfo();
    record.remove(UserInfoKey::writeCount);
    EXPECT_DEATH((void)totalExperience(record), fatal);

    record = initialUserInfo();
    record[UserInfoKey::quizTotalScore] = max - 10;
    ASSERT_TRUE(writeUserInfo(record));
    EXPECT_DEATH(recordQuizResult(11), fatal);
}
