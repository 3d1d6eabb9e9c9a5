#include "QtPrinters.h"
#include "content/AppCommon.h"

#include <QSet>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

TEST(FormatDuration, MinutesCountTheWholeDuration)
{
    const std::pair<float, QString> cases[] = {
        {59.9F, u"00:59"_s}, {61.0F, u"01:01"_s}, {300.0F, u"05:00"_s}, {3700.0F, u"01:61:40"_s}};
    for (const auto &[seconds, text] : cases)
        EXPECT_EQ(formatDuration(seconds), text) << seconds;
}

TEST(RandomPick, DrawsWithoutReplacement)
{
    const QList<int> list{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QRandomGenerator random(4711);
    for (int round = 0; round < 20; ++round) {
        const QList<int> picked = randomPick(list, 4, random);
        const QSet<int> distinct(picked.begin(), picked.end());
        EXPECT_EQ(distinct.size(), 4);
        EXPECT_TRUE(QSet<int>(list.begin(), list.end()).contains(distinct));
    }
    QList<int> all = randomPick(list, list.size(), random);
    std::sort(all.begin(), all.end());
    EXPECT_EQ(all, list);
    EXPECT_TRUE(randomPick(QList<int>(), 0, random).isEmpty());
}

TEST(FormatAndPickDeathTest, ImpossibleRequestsAreFatal)
{
    const char *fatal = "Tolvane/AppCommon";
    EXPECT_DEATH((void)randomPick(QList<int>{1, 2, 3}, 4), fatal);
    EXPECT_DEATH((void)randomPick(QList<int>{1, 2, 3}, -1), fatal);
    EXPECT_DEATH((void)formatDuration(std::numeric_limits<float>::quiet_NaN()), fatal);
    EXPECT_DEATH((void)formatDuration(std::numeric_limits<float>::infinity()), fatal);
}
