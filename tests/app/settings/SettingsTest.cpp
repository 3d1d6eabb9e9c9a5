#include "AppWindow.h"
#include "UrlRecorder.h"
#include "app/AppConfig.h"
#include "app/Preferences.h"
#include "app/RatingPrompt.h"
#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/QtPrinters.h"
#include "content/RecordWriter.h"
#include "content/VoFileUtil.h"

#include <QDir>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTest>
#include <QUrlQuery>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A pop-up is no item: its contents hang under the item it draws in the window's overlay.
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

class SettingsTest : public ::testing::Test {
protected:
    void TearDown() override { Preferences::instance().setLanguageType(u"en"_s); }

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

    [[nodiscard]] QQuickItem *row(const QString &name) const
    {
        return findItem(app.currentPage(), name);
    }
    [[nodiscard]] QString detail(const QString &objectName) const
    {
        return textOf(row(objectName), u"settingDetail"_s);
    }

    UrlRecorder links;
    AppWindow app;
};

} // namespace

TEST_F(SettingsTest, SpeedDurationLanguageCacheAndLinks)
{
    const QString cache = VoFileUtil::getCachesDirectory();
    VoFileUtil::removeFileInFolder(cache);
    for (const auto &[file, kilobytes] :
         {std::pair{u"a.bin"_s, 1024}, {u".hidden"_s, 256}, {u"models/12/b.bin"_s, 256}}) {
        QDir().mkpath(QFileInfo(cache + u'/' + file).path());
        ASSERT_TRUE(VoFileUtil::writeFileAtomically(cache + u'/' + file,
                                                    QByteArray(kilobytes * 1024, 'x')));
    }
    openFromMain(u"settingButton"_s);
    EXPECT_EQ(textOf(app.currentPage(), u"toolBarTitle"_s), u"Settings"_s);
    EXPECT_EQ(detail(u"speedRow"_s), u"1.0x"_s);
    (void)app.screenshot(u"settings"_s);

    // Folders count with their own few kilobytes, as the file system gives them.
    const QString size = detail(u"cacheRow"_s);
    EXPECT_TRUE(size.endsWith(u" MB"_s)) << qPrintable(size);
    EXPECT_NEAR(size.chopped(3).toDouble(), 1.5, 0.05);
    app.tapCentre(findItem(row(u"cacheRow"_s), u"clearCacheButton"_s));
    EXPECT_EQ(detail(u"cacheRow"_s), u"0.00 MB"_s);
    EXPECT_TRUE(QDir(cache).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_TRUE(QFileInfo(cache).isDir());

    // The slider gives whole tenths between 0.2 and 2, stored as the number shown.
    QQuickItem *slider = findItem(row(u"speedRow"_s), u"speedSlider"_s);
    ASSERT_NE(slider, nullptr);
    const std::pair<double, float> taps[] = {{0.0, 0.2F}, {0.5, 1.1F}, {1.0, 2.0F}};
    for (const auto &[where, speed] : taps) {
        app.tap(slider, QPointF(2 + where * (slider->width() - 4), slider->height() / 2));
        EXPECT_EQ(QSettings().value(u"playSpeed"_s).toFloat(), speed) << where;
        EXPECT_EQ(detail(u"speedRow"_s), QString::number(speed, 'f', 1) + u'x');
    }

    EXPECT_EQ(detail(u"durationRow"_s), u"60 seconds"_s);
    QObject *pickerView = app.currentPage()->findChild<QObject *>(u"durationPicker"_s);
    ASSERT_NE(pickerView, nullptr);
    QQuickItem *picker = drawnItem(pickerView);
    QQuickItem *list = findItem(picker, u"durationList"_s);
    const auto open = [&] {
        app.tapCentre(row(u"durationRow"_s));
        ASSERT_TRUE(waitUntilShown(pickerView, true));
    };

    open();
    EXPECT_EQ(textOf(picker, u"durationTitle"_s), u"Test Duration"_s);
    // 10 to 300 seconds in steps of 5; the current 60 is selected.
    EXPECT_EQ(list->property("count").toInt(), 59);
    EXPECT_EQ(list->property("currentIndex").toInt(), 10);
    (void)app.screenshot(u"duration_picker"_s);

    // Cancel keeps 60 even with another row selected, here with the keyboard.
    QTest::keyClick(app.window(), Qt::Key_Down);
    EXPECT_EQ(list->property("currentIndex").toInt(), 11);
    app.tapCentre(findItem(picker, u"durationCancel"_s));
    ASSERT_TRUE(waitUntilShown(pickerView, false));
    EXPECT_FALSE(QSettings().contains(Preferences::testDurationKey));

    open();
    EXPECT_EQ(list->property("currentIndex").toInt(), 10) << "the stored duration, not the last";
    app.tapCentre(AppWindow::listRow(list, 58));
    app.tapCentre(findItem(picker, u"durationOk"_s));
    ASSERT_TRUE(waitUntilShown(pickerView, false));
    EXPECT_EQ(QSettings().value(u"TestDuration"_s).toFloat(), 300.0F);
    EXPECT_EQ(detail(u"durationRow"_s), u"300 seconds"_s);

    // A duration no row shows (from an older version, say) selects none and stays on OK.
    QSettings().setValue(Preferences::testDurationKey, 62);
    open();
    EXPECT_EQ(list->property("currentIndex").toInt(), -1);
    QTest::keyClick(app.window(), Qt::Key_Return);
    ASSERT_TRUE(waitUntilShown(pickerView, false));
    EXPECT_EQ(Preferences::instance().testDuration(), 62.0F);

    QQuickItem *box = findItem(row(u"languageRow"_s), u"languageBox"_s);
    EXPECT_EQ(box->property("displayText").toString(), u"English"_s);
    const QStringList codes = supportedLanguageCodes();
    const std::pair<QString, QString> names[] = {
        {u"zh-Hant"_s, u"繁體中文"_s}, {u"ms"_s, u"Bahasa Melayu"_s}, {u"fr"_s, u"Français"_s}};
    for (const auto &[code, name] : names) {
        QMetaObject::invokeMethod(box, "activated", Q_ARG(int, int(codes.indexOf(code))));
        EXPECT_EQ(box->property("displayText").toString(), name);
        EXPECT_EQ(QSettings().value(u"LanguageType"_s).toString(), code);
    }

    app.tapCentre(row(u"feedbackRow"_s));
    ASSERT_EQ(links.urls.size(), 1);
    const QUrl mail = links.urls.constFirst();
    EXPECT_EQ(mail.toString(QUrl::RemoveQuery), u"mailto:feedback@tolvane.app"_s);
    EXPECT_TRUE(QUrlQuery(mail).queryItemValue(u"subject"_s).contains(AppConfig::appVersion()));

    // Reviewing earns its points once, however often the page is opened.
    const qint64 before = totalExperience();
    app.tapCentre(row(u"reviewRow"_s));
    app.tapCentre(row(u"reviewRow"_s));
    EXPECT_EQ(totalExperience(), before + 1000);
    ASSERT_EQ(links.urls.size(), 3);
    EXPECT_EQ(links.urls.at(1).toString(),
              u"https://apps.apple.com/app/id1458237904?mt=8&action=write-review"_s);

    // The main screen follows the chosen language.
    back();
    QQuickItem *first = AppWindow::listRow(findItem(app.currentPage(), u"categoryList"_s), 0);
    EXPECT_EQ(textOf(first, u"categoryName"_s), u"Dire bonjour et au revoir"_s);
}

TEST_F(SettingsTest, UserInfoShowsHowTheTotalWasEarnedAndThePromptWaitsForThreeUses)
{
    ASSERT_TRUE(writeUserInfo(initialUserInfo()));
    userRecord().add({{UserInfoKey::startCount, 3},
                      {UserInfoKey::listenCount, 41},
                      {UserInfoKey::writeCount, 7},
                      {UserInfoKey::readCount, 2},
                      {UserInfoKey::quizCount, 4},
                      {UserInfoKey::quizTotalScore, 265},
                      {UserInfoKey::reviewed, 1},
                      {UserInfoKey::awordScore, 9}});

    openFromMain(u"userInfoButton"_s);
    EXPECT_EQ(textOf(app.currentPage(), u"toolBarTitle"_s), u"User Info"_s);
    QQuickItem *list = findItem(app.currentPage(), u"userInfoList"_s);
    ASSERT_NE(list, nullptr);
    QStringList rows;
    for (int i = 0; i < list->property("count").toInt(); ++i) {
        QQuickItem *shown = AppWindow::listRow(list, i);
        rows.append(textOf(shown, u"userInfoRowTitle"_s) + u": "_s +
                    textOf(shown, u"userInfoRowDetail"_s));
    }
    EXPECT_EQ(rows,
              (QStringList{u"Start App: 10 * 3"_s, u"Listen Word: 5 * 41"_s, u"Write Word: 5 * 7"_s,
                           u"Read Word: 5 * 2"_s, u"Quiz Times: 10 * 4"_s, u"Quiz Score: 265"_s,
                           u"Review App: 1000 * 1"_s}));
    // 30 + 205 + 35 + 10 + 40 + 265 + 1000, and the word score of 9 that has no row.
    EXPECT_EQ(textOf(app.currentPage(), u"userInfoTotal"_s), u"1,594"_s)
        << "grouped as the main screen groups it";
    (void)app.screenshot(u"user_info"_s);

    // The rating prompt asks on coming back to the main screen after three uses.
    back();
    QObject *dialog = app.window()->findChild<QObject *>(u"ratingPrompt"_s);
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(dialog->property("visible").toBool()) << "one start is not enough";

    // Two more starts of the app make three uses.
    RatingPrompt::instance().logUse();
    RatingPrompt::instance().logUse();
    openFromMain(u"userInfoButton"_s);
    back();
    ASSERT_TRUE(waitUntilShown(dialog, true));
    (void)app.screenshot(u"rating_prompt"_s);
    app.tapCentre(findItem(drawnItem(dialog), u"ratingRate"_s));
    ASSERT_TRUE(waitUntilShown(dialog, false));
    ASSERT_EQ(links.urls.size(), 1);
    EXPECT_TRUE(links.urls[0].toString().endsWith(u"id1458237904?mt=8&action=write-review"_s));
    EXPECT_FALSE(RatingPrompt::instance().shouldPrompt());
}

TEST(RatingPrompt, AsksOncePerVersionAndLaterWaitsAsLongAgain)
{
    QSettings().clear();
    const UrlRecorder links;
    const QUrl page(u"https://store.example/app/id42"_s);
    RatingPrompt prompt(nullptr);
    EXPECT_FALSE(prompt.shouldPrompt()) << "not configured";
    const auto run = [&](const QString &version, int uses) {
        prompt.configure({version, 3, page});
        for (int i = 0; i < uses; ++i)
            prompt.logUse();
        return prompt.shouldPrompt();
    };
    EXPECT_FALSE(run(u"1.0"_s, 2));
    EXPECT_TRUE(run(u"1.0"_s, 1));
    prompt.later();
    EXPECT_FALSE(run(u"1.0"_s, 2));
    EXPECT_TRUE(run(u"1.0"_s, 1));
    prompt.rate();
    EXPECT_EQ(links.urls, QList<QUrl>{page});
    EXPECT_FALSE(run(u"1.0"_s, 10));
    EXPECT_FALSE(run(u"1.1"_s, 2)) << "a new version counts afresh";
    EXPECT_TRUE(run(u"1.1"_s, 1));
    prompt.decline();
    EXPECT_FALSE(run(u"1.1"_s, 10));
    EXPECT_EQ(links.urls.size(), 1) << "declining opens nothing";

    // The count is kept between runs; a damaged one starts again.
    EXPECT_EQ(RatingPrompt(nullptr).usesCount(), 13);
    QSettings().setValue(u"RatingPrompt/uses"_s, -7);
    prompt.logUse();
    EXPECT_EQ(prompt.usesCount(), 1);
}
