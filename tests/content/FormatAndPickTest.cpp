#include "QtPrinters.h"
#include "content/AppCommon.h"

#include <QSet>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

TEST(FormatDuration, MinutesCountTheWholeDuration)
{
    EXPECT_EQ(formatDuration(0.0F), u"00:00"_s);
    EXPECT_EQ(formatDuration(59.9F), u"00:59"_s);
    EXPECT_EQ(formatDuration(61.0F), u"01:01"_s);
    EXPECT_EQ(formatDuration(3599.0F), u"59:59"_s);
    EXPECT_EQ(formatDuration(3600.0F), u"01:60:00"_s);
    EXPECT_EQ(formatDuration(3700.0F), u"01:61:40"_s);
    EXPECT_EQ(formatDuration(36000.0F), u"10:600:00"_s);
}

TEST(RandomPick, DrawsWithoutReplacement)
{
    const QList<int> list{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QRandomGenerator random(4711);
    for (int round = 0; round < 20; ++round) {
        const QList<int> picked = randomPick(list, 4, random);
        ASSERT_EQ(picked.size(), 4);
        EXPECT_EQ(QSet<int>(picked.begin(), picked.end()).size(), 4);
        for (int value : picked)
            EXPECT_TRUE(list.contains(value));
    }
    QList<int> all = randomPick(list, list.size(), random);
    std::sort(all.begin(), all.end());
    EXPECT_EQ(all, list);
    EXPECT_TRUE(randomPick(list, 0, random).isEmpty());
    EXPECT_TRUE(randomPick(QList<int>(), 0, random).isEmpty());

    QRandomGenerator again(4711);
    QRandomGenerator same(4711);
    EXPECT_EQ(randomPick(list, 5, again), randomPick(list, 5, same));
}

TEST(FormatAndPickDeathTest, ImpossibleRequestsAreFatal)
{
    const char *fatal = "Tolvane/AppCommon";
    const QList<int> three{1, 2, 3};
    EXPECT_DEATH((void)randomPick(three, -1), fatal);
    EXPECT_DEATH((void)randomPick(three, 4), fatal);
    EXPECT_DEATH((void)formatDuration(std::numeric_limits<float>::quiet_NaN()), fatal);
    EXPECT_DEATH((void)formatDuration(std::numeric_limits<float>::infinity()), fatal);
    EXPECT_DEATH((void)formatDuration(-std::numeric_limits<float>::infinity()), fatal);
}
