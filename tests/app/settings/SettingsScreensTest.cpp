#include "AppWindow.h"
#include "app/Preferences.h"
#include "app/RatingPrompt.h"
#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/QtPrinters.h"
#include "content/UserInfoFile.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString textOf(QQuickItem *root, const QString &objectName)
{
    QQuickItem *item = root ? findItem(root, objectName) : nullptr;
    return item ? item->property("text").toString() : u"<no %1>"_s.arg(objectName);
}

// Pop-ups are not items: they are found in the object tree of what declared them, and their
// contents under the item they draw in the window's overlay.
QObject *popUp(QObject *declaredIn, const QString &objectName)
{
    return declaredIn->findChild<QObject *>(objectName);
}

QQuickItem *drawnItem(QObject *popUp)
{
    auto *content = popUp->property("contentItem").value<QQuickItem *>();
    return content ? content->parentItem() : nullptr;
}

bool waitUntilShown(QObject *popUp, bool shown)
{
    return QTest::qWaitFor([&] {
        return popUp->property("opened").toBool() == shown &&
               popUp->property("visible").toBool() == shown;
    });
}

class SettingsScreensTest : public ::testing::Test {
protected:
    void SetUp() override { QSettings().remove(Preferences::testDurationKey); }
    void TearDown() override { Preferences::instance().setLanguageType(u"en"_s); }

    // Opens a screen through the main screen's tool bar button.
    void openFromMain(const QString &button)
    {
        QQuickItem *item = findItem(app.currentPage(), button);
        ASSERT_NE(item, nullptr) << qPrintable(button);
        app.tapCentre(item);
        ASSERT_TRUE(app.waitForDepth(2));
    }

    void back() const
    {
        app.tapCentre(findItem(app.currentPage(), u"backButton"_s));
        ASSERT_TRUE(app.waitForDepth(1));
    }

    AppWindow app;
};

} // namespace

TEST_F(SettingsScreensTest, DurationPickerStoresTheChosenRow)
{
    openFromMain(u"settingButton"_s);
    EXPECT_EQ(textOf(app.currentPage(), u"toolBarTitle"_s), u"Settings"_s);
    QQuickItem *durationRow = findItem(app.currentPage(), u"durationRow"_s);
    ASSERT_NE(durationRow, nullptr);
    EXPECT_EQ(textOf(durationRow, u"settingDetail"_s), u"60 seconds"_s);
    (void)app.screenshot(u"settings"_s);

    app.tapCentre(durationRow);
    QObject *pickerView = popUp(app.currentPage(), u"durationPicker"_s);
    ASSERT_NE(pickerView, nullptr);
    ASSERT_TRUE(waitUntilShown(pickerView, true));
    QQuickItem *picker = drawnItem(pickerView);
    EXPECT_EQ(textOf(picker, u"durationTitle"_s), u"Test Duration"_s);
    QQuickItem *list = findItem(picker, u"durationList"_s);
    EXPECT_EQ(list->property("currentIndex").toInt(), 10);
    (void)app.screenshot(u"duration_picker"_s);

    // Cancel keeps 60 even with another row selected, here with the keyboard.
    QTest::keyClick(app.window(), Qt::Key_Down);
    EXPECT_EQ(list->property("currentIndex").toInt(), 11);
    app.tapCentre(findItem(picker, u"durationCancel"_s));
    ASSERT_TRUE(waitUntilShown(pickerView, false));
    EXPECT_FALSE(QSettings().contains(Preferences::testDurationKey));

    app.tapCentre(durationRow);
    ASSERT_TRUE(waitUntilShown(pickerView, true));
    app.tapCentre(AppWindow::listRow(list, 12));
    app.tapCentre(findItem(picker, u"durationOk"_s));
    ASSERT_TRUE(waitUntilShown(pickerView, false));
    EXPECT_EQ(Preferences::instance().testDuration(), 70.0F);
    EXPECT_EQ(textOf(durationRow, u"settingDetail"_s), u"70 seconds"_s);
}

TEST_F(SettingsScreensTest, ChosenLanguageReachesTheMainScreen)
{
    openFromMain(u"settingButton"_s);
    QQuickItem *box = findItem(app.currentPage(), u"languageBox"_s);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->property("displayText").toString(), u"English"_s);
    const int french = static_cast<int>(supportedLanguageCodes().indexOf(u"fr"_s));
    QMetaObject::invokeMethod(box, "activated", Q_ARG(int, french));
    EXPECT_EQ(box->property("displayText").toString(), u"Français"_s);
    EXPECT_EQ(Preferences::instance().languageType(), u"fr"_s);

    back();
    QQuickItem *row = AppWindow::listRow(findItem(app.currentPage(), u"categoryList"_s), 0);
    const CategoryInfo &first = *loadAllCategories().constFirst();
    EXPECT_EQ(textOf(row, u"categoryName"_s), first.trans.value(u"fr"_s, first.name));
}

TEST_F(SettingsScreensTest, UserInfoShowsHowTheTotalWasEarned)
{
    openFromMain(u"userInfoButton"_s);
    EXPECT_EQ(textOf(app.currentPage(), u"toolBarTitle"_s), u"User Info"_s);
    QQuickItem *list = findItem(app.currentPage(), u"userInfoList"_s);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->property("count").toInt(), 7);
    const QString total = textOf(app.currentPage(), u"userInfoTotal"_s);
    EXPECT_EQ(total, QString::number(totalExperience()));
    EXPECT_EQ(textOf(AppWindow::listRow(list, 0), u"userInfoRowDetail"_s),
              u"10 * %1"_s.arg(userInfoInt(UserInfoKey::startCount)));
    EXPECT_EQ(textOf(AppWindow::listRow(list, 6), u"userInfoRowTitle"_s), u"Review App"_s);
    (void)app.screenshot(u"user_info"_s);
}

TEST_F(SettingsScreensTest, RatingPromptAsksOnComingBackAfterThreeUses)
{
    openFromMain(u"userInfoButton"_s);
    back();
    QObject *dialog = popUp(app.window(), u"ratingPrompt"_s);
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(dialog->property("visible").toBool()) << "one start is not enough";

    while (!RatingPrompt::instance().shouldPrompt())
        RatingPrompt::instance().logUse();
    openFromMain(u"userInfoButton"_s);
    back();
    ASSERT_TRUE(waitUntilShown(dialog, true));
    (void)app.screenshot(u"rating_prompt"_s);
    app.tapCentre(findItem(drawnItem(dialog), u"ratingDecline"_s));
    ASSERT_TRUE(waitUntilShown(dialog, false));
    EXPECT_FALSE(RatingPrompt::instance().shouldPrompt());
}
