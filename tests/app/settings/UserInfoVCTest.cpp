#include "app/UserInfoVC.h"

#include "app/UserRecord.h"
#include "content/QtPrinters.h"
#include "content/UserInfoFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList column(const UserInfoVC &screen, QString UserInfoVC::DetailRow::*field)
{
    QStringList values;
    for (const UserInfoVC::DetailRow &row : screen.details())
        values.append(row.*field);
    return values;
}

// "a * b" is a * b; a row without " * " is its number.
qint64 product(const QString &detail)
{
    const QStringList factors = detail.split(u" * "_s);
    qint64 result = 1;
    for (const QString &factor : factors)
        result *= factor.toLongLong();
    return result;
}

} // namespace

TEST(UserInfoVCTest, AfterTheFirstStart)
{
    QVariantMap record = initialUserInfo();
    record[UserInfoKey::startCount] = 1;
    ASSERT_TRUE(writeUserInfo(record));

    const UserInfoVC screen;
    EXPECT_EQ(screen.totalText(), u"10"_s);
    EXPECT_EQ(column(screen, &UserInfoVC::DetailRow::title),
              (QStringList{u"Start App"_s, u"Listen Word"_s, u"Write Word"_s, u"Read Word"_s,
                           u"Quiz Times"_s, u"Quiz Score"_s, u"Review App"_s}));
    EXPECT_EQ(column(screen, &UserInfoVC::DetailRow::detail),
              (QStringList{u"10 * 1"_s, u"5 * 0"_s, u"5 * 0"_s, u"5 * 0"_s, u"10 * 0"_s, u"0"_s,
                           u"1000 * 0"_s}));
    ASSERT_EQ(screen.detailRows().size(), 7);
    EXPECT_EQ(screen.detailRows().at(6).toMap().value(u"detail"_s), u"1000 * 0"_s);
}

TEST(UserInfoVCTest, RowsAddUpToTheTotal)
{
    QVariantMap record = initialUserInfo();
    const QList<std::pair<QString, qint64>> counters{
        {UserInfoKey::startCount, 3}, {UserInfoKey::listenCount, 41},
        {UserInfoKey::writeCount, 7}, {UserInfoKey::readCount, 2},
        {UserInfoKey::quizCount, 4},  {UserInfoKey::quizTotalScore, 265},
        {UserInfoKey::reviewed, 1},   {UserInfoKey::awordScore, 9}};
    for (const auto &[key, value] : counters)
        record[key] = value;
    ASSERT_TRUE(writeUserInfo(record));

    const UserInfoVC screen;
    EXPECT_EQ(column(screen, &UserInfoVC::DetailRow::detail),
              (QStringList{u"10 * 3"_s, u"5 * 41"_s, u"5 * 7"_s, u"5 * 2"_s, u"10 * 4"_s, u"265"_s,
                           u"1000 * 1"_s}));
    qint64 sum = 9; // "kAwordScore" has no row
    for (const QString &detail : column(screen, &UserInfoVC::DetailRow::detail))
        sum += product(detail);
    EXPECT_EQ(screen.totalText(), QString::number(sum));
    EXPECT_EQ(screen.totalText(), QString::number(totalExperience()));
}

TEST(UserInfoVCDeathTest, ARecordWithoutAKeyIsFatal)
{
    QVariantMap record = initialUserInfo();
    record.remove(UserInfoKey::reviewed);
    ASSERT_TRUE(writeUserInfo(record));
    EXPECT_DEATH({ const UserInfoVC screen; }, "kReviewed");
}
