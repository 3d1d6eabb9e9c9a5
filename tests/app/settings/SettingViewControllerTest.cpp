#include "app/SettingViewController.h"

#include "UrlRecorder.h"
#include "app/AppConfig.h"
#include "app/CategoryViewController.h"
#include "app/MainViewController.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/CourseFixture.h"
#include "content/UserInfoFile.h"
#include "content/VoFileUtil.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QUrlQuery>
#include <cmath>
#include <gtest/gtest.h>

namespace {

class SettingViewControllerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        CourseFixture::appCourse();
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        QSettings().clear();
        Preferences::instance().setLanguageType(u"en"_s);
    }

    static void store(const QString &key, const QVariant &value)
    {
        QSettings().setValue(key, value);
    }

    static void writeCacheFile(const QString &relativePath, qsizetype bytes)
    {
        const QString path = VoFileUtil::getCachesDirectory() + relativePath;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
        file.write(QByteArray(bytes, 'x'));
    }

    static int languageRow(const QString &code)
    {
        return static_cast<int>(supportedLanguageCodes().indexOf(code));
    }
};

} // namespace

TEST_F(SettingViewControllerTest, ChoosingALanguageRenamesWhatOtherScreensShow)
{
    MainViewController main;
    CategoryViewController category;
    category.setCategoryId(u"10"_s);
    SettingViewController settings;
    QSignalSpy language(&settings, &SettingViewController::languageChanged);
    QSignalSpy names(main.categories(), &QAbstractItemModel::dataChanged);
    QSignalSpy translations(category.phrases(), &QAbstractItemModel::dataChanged);

    settings.setLanguageIndex(languageRow(u"fr"_s));
    EXPECT_EQ(QSettings().value(u"LanguageType"_s).toString(), u"fr"_s);
    EXPECT_EQ(settings.languageIndex(), languageRow(u"fr"_s));
    EXPECT_EQ(language.count(), 1);
    EXPECT_EQ(names.count(), 1);
    EXPECT_EQ(translations.count(), 1);
    const CategoryListModel &categories = *main.categories();
    EXPECT_EQ(categories.data(categories.index(0), CategoryListModel::NameRole), u"Salutations"_s);
    const PhraseListModel &phrases = *category.phrases();
    EXPECT_EQ(phrases.data(phrases.index(0), PhraseListModel::TranslationRole), u"Bonjour !"_s);
    EXPECT_EQ(category.title(), u"Salutations"_s);

    for (const int outside : {-1, 16})
        settings.setLanguageIndex(outside);
    EXPECT_EQ(Preferences::instance().languageType(), u"fr"_s);
    EXPECT_EQ(language.count(), 1);
}

TEST_F(SettingViewControllerTest, EveryLanguageIsNamedInItself)
{
    const QStringList names = SettingViewController::languageNames();
    ASSERT_EQ(names.size(), supportedLanguageCodes().size());
    EXPECT_EQ(names.at(languageRow(u"en"_s)), u"English"_s);
    EXPECT_EQ(names.at(languageRow(u"zh-Hant"_s)), u"繁體中文"_s);
    EXPECT_EQ(names.at(languageRow(u"ms"_s)), u"Bahasa Melayu"_s);
    for (qsizetype i = 0; i < names.size(); ++i)
        EXPECT_NE(names.at(i), supportedLanguageCodes().at(i)) << "no name for a code";
}

TEST_F(SettingViewControllerTest, NonsenseSettingsShowTheDefaults)
{
    store(Preferences::playSpeedKey, -2);
    store(Preferences::testDurationKey, u"soon"_s);
    store(Preferences::languageTypeKey, u"xx"_s);
    const SettingViewController settings;
    EXPECT_EQ(settings.playSpeed(), 1.0F);
    EXPECT_EQ(settings.testDuration(), 60.0F);
    EXPECT_EQ(settings.languageIndex(), languageRow(defaultLanguageCode()));
}

TEST_F(SettingViewControllerTest, SpeedStaysInThePlayersRangeInTenths)
{
    SettingViewController settings;
    QSignalSpy speed(&settings, &SettingViewController::playSpeedChanged);
    for (const auto &[asked, stored] :
         {std::pair{0.64F, 0.6F}, {1.45F, 1.5F}, {5.0F, 2.0F}, {0.0F, 0.2F}, {-1.0F, 0.2F}}) {
        settings.setPlaySpeed(asked);
        EXPECT_EQ(QSettings().value(u"playSpeed"_s).toFloat(), stored) << asked;
    }
    EXPECT_EQ(speed.count(), 4) << "0 and -1 both clamp to the 0.2 already stored";
    settings.setPlaySpeed(std::nanf(""));
    EXPECT_EQ(settings.playSpeed(), 0.2F);
}

TEST_F(SettingViewControllerTest, ShowsAndClearsTheCache)
{
    VoFileUtil::removeFileInFolder(VoFileUtil::getCachesDirectory());
    writeCacheFile(u"a.bin"_s, 1024 * 1024);
    writeCacheFile(u"models/12/b.bin"_s, 512 * 1024);
    // Folders count with their own few kilobytes, as the file system gives them.
    constexpr float folderSlack = 0.05F;
    SettingViewController settings;
    EXPECT_NEAR(settings.cacheSize(), 1.5F, folderSlack);

    QSignalSpy size(&settings, &SettingViewController::cacheSizeChanged);
    writeCacheFile(u"c.bin"_s, 1024 * 1024);
    settings.refreshCacheSize();
    EXPECT_NEAR(settings.cacheSize(), 2.5F, folderSlack);
    settings.clearCache();
    EXPECT_EQ(settings.cacheSize(), 0.0F);
    EXPECT_EQ(size.count(), 2);
    EXPECT_TRUE(QDir(VoFileUtil::getCachesDirectory()).isEmpty());
}

TEST_F(SettingViewControllerTest, ReviewLinkEarnsItsPointsOnce)
{
    const UrlRecorder links;
    SettingViewController settings;
    const qint64 before = totalExperience();
    EXPECT_TRUE(settings.openReviewPage());
    EXPECT_TRUE(settings.openReviewPage());
    EXPECT_EQ(userInfoInt(UserInfoKey::reviewed), 1);
    EXPECT_EQ(totalExperience(), before + 1000);

    ASSERT_EQ(links.urls.size(), 2);
    const QString review = links.urls.at(0).toString();
    EXPECT_TRUE(review.contains(AppConfig::appId())) << qPrintable(review);
    EXPECT_TRUE(review.endsWith(u"?mt=8&action=write-review"_s)) << qPrintable(review);
}

TEST_F(SettingViewControllerTest, FeedbackOpensAMailToTheConfiguredAddress)
{
    const UrlRecorder links;
    SettingViewController settings;
    EXPECT_TRUE(settings.sendFeedback());
    ASSERT_EQ(links.urls.size(), 1);
    const QUrl mail = links.urls.constFirst();
    EXPECT_EQ(mail.scheme(), u"mailto"_s);
    EXPECT_EQ(mail.path(), AppConfig::feedbackAddress());
    EXPECT_TRUE(QUrlQuery(mail).queryItemValue(u"subject"_s).contains(AppConfig::appVersion()));
    EXPECT_EQ(userInfoInt(UserInfoKey::reviewed), 0);
}
