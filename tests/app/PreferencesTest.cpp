#include "app/Preferences.h"

#include "content/AppCommon.h"
#include "content/QtPrinters.h"

#include <QSettings>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PreferencesTest : public ::testing::Test {
protected:
    void SetUp() override { QSettings().clear(); }

    // What another run of the app, or an older version, left in the settings.
    static void store(const QString &key, const QVariant &value)
    {
        QSettings().setValue(key, value);
    }

    Preferences &preferences = Preferences::instance();
};

} // namespace

TEST_F(PreferencesTest, UnsetOrNonsenseValuesReadAsDefaults)
{
    EXPECT_EQ(preferences.playSpeed(), 1.0F);
    EXPECT_EQ(preferences.testDuration(), 60.0F);
    EXPECT_EQ(preferences.languageType(), defaultLanguageCode());

    for (const QVariant &bad : {QVariant(-5), QVariant(0), QVariant(u"long"_s), QVariant()}) {
        store(Preferences::testDurationKey, bad);
        store(Preferences::playSpeedKey, bad);
        EXPECT_EQ(preferences.testDuration(), 60.0F) << qPrintable(bad.toString());
        EXPECT_EQ(preferences.playSpeed(), 1.0F) << qPrintable(bad.toString());
    }
    store(Preferences::testDurationKey, u"90"_s);
    EXPECT_EQ(preferences.testDuration(), 90.0F);

    for (const QString &bad : {u"xx"_s, u"FR"_s, u"zh"_s, QString()}) {
        store(Preferences::languageTypeKey, bad);
        EXPECT_EQ(preferences.languageType(), defaultLanguageCode()) << qPrintable(bad);
    }
    store(Preferences::languageTypeKey, u"zh-Hant"_s);
    EXPECT_EQ(preferences.languageType(), u"zh-Hant"_s);
}

TEST_F(PreferencesTest, SettersStoreUnderTheAppKeysAndSignalChanges)
{
    QSignalSpy speed(&preferences, &Preferences::playSpeedChanged);
    QSignalSpy duration(&preferences, &Preferences::testDurationChanged);
    QSignalSpy language(&preferences, &Preferences::languageTypeChanged);

    preferences.setPlaySpeed(1.5F);
    preferences.setPlaySpeed(1.5F);
    preferences.setTestDuration(120.0F);
    preferences.setTestDuration(120.0F);
    preferences.setLanguageType(u"ja"_s);
    preferences.setLanguageType(u"ja"_s);

    EXPECT_EQ(speed.count(), 1);
    EXPECT_EQ(duration.count(), 1);
    EXPECT_EQ(language.count(), 1);
    const QSettings settings;
    EXPECT_EQ(settings.value(u"playSpeed"_s).toFloat(), 1.5F);
    EXPECT_EQ(settings.value(u"TestDuration"_s).toFloat(), 120.0F);
    EXPECT_EQ(settings.value(u"LanguageType"_s).toString(), u"ja"_s);
    EXPECT_EQ(preferences.languageType(), u"ja"_s);
}
