#include "app/RatingPrompt.h"

#include "UrlRecorder.h"
#include "app/AppConfig.h"
#include "app/AppDelegate.h"
#include "content/CourseFixture.h"

#include <QSettings>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QUrl storePage(u"https://store.example/app/id42?mt=8&action=write-review"_s);

class RatingPromptTest : public ::testing::Test {
protected:
    void SetUp() override { QSettings().clear(); }

    // A run of the given version that has been started the given number of times.
    static void start(RatingPrompt &prompt, const QString &version, int uses = 1)
    {
        prompt.configure({version, 3, storePage});
        for (int i = 0; i < uses; ++i)
            prompt.logUse();
    }
};

} // namespace

TEST_F(RatingPromptTest, AsksFromTheThirdUse)
{
    RatingPrompt prompt(nullptr);
    EXPECT_FALSE(prompt.shouldPrompt()) << "not configured";
    start(prompt, u"1.0"_s, 2);
    EXPECT_FALSE(prompt.shouldPrompt());
    prompt.logUse();
    EXPECT_TRUE(prompt.shouldPrompt());

    // The count is kept between runs of the app.
    RatingPrompt nextRun(nullptr);
    start(nextRun, u"1.0"_s);
    EXPECT_EQ(nextRun.usesCount(), 4);
    EXPECT_TRUE(nextRun.shouldPrompt());
}

TEST_F(RatingPromptTest, RateAndNoThanksSettleTheVersionUntilTheNext)
{
    const UrlRecorder links;
    RatingPrompt prompt(nullptr);
    start(prompt, u"1.0"_s, 3);
    prompt.rate();
    EXPECT_EQ(links.urls, QList<QUrl>{storePage});
    start(prompt, u"1.0"_s, 10);
    EXPECT_FALSE(prompt.shouldPrompt());

    // A new version asks again, even though the learner has rated.
    start(prompt, u"1.1"_s, 2);
    EXPECT_FALSE(prompt.shouldPrompt());
    prompt.logUse();
    EXPECT_TRUE(prompt.shouldPrompt());
    prompt.decline();
    start(prompt, u"1.1"_s, 10);
    EXPECT_FALSE(prompt.shouldPrompt());
    EXPECT_EQ(links.urls.size(), 1) << "declining opens nothing";

    start(prompt, u"2.0"_s, 3);
    EXPECT_TRUE(prompt.shouldPrompt());
}

TEST_F(RatingPromptTest, LaterAsksAgainAfterAsManyUses)
{
    RatingPrompt prompt(nullptr);
    start(prompt, u"1.0"_s, 3);
    prompt.later();
    EXPECT_FALSE(prompt.shouldPrompt());
    start(prompt, u"1.0"_s, 2);
    EXPECT_FALSE(prompt.shouldPrompt());
    prompt.logUse();
    EXPECT_TRUE(prompt.shouldPrompt());
}

TEST_F(RatingPromptTest, DamagedCountsStartAgain)
{
    for (const QVariant &bad : {QVariant(-7), QVariant(u"many"_s)}) {
        QSettings().setValue(u"RatingPrompt/version"_s, u"1.0"_s);
        QSettings().setValue(u"RatingPrompt/uses"_s, bad);
        RatingPrompt prompt(nullptr);
        start(prompt, u"1.0"_s);
        EXPECT_EQ(prompt.usesCount(), 1) << qPrintable(bad.toString());
    }
}

TEST_F(RatingPromptTest, StartUpCountsUsesForTheStorePage)
{
    CourseFixture::appCourse();
    for (int run = 0; run < 3; ++run)
        ASSERT_TRUE(AppDelegate().didFinishLaunching());
    EXPECT_TRUE(RatingPrompt::instance().shouldPrompt());

    const UrlRecorder links;
    RatingPrompt::instance().rate();
    EXPECT_EQ(links.urls, QList<QUrl>{AppConfig::reviewPageUrl()});
    EXPECT_EQ(QSettings().value(u"RatingPrompt/version"_s).toString(), AppConfig::appVersion());
}
