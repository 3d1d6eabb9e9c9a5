#include "AppWindow.h"
#include "TsFile.h"
#include "app/Preferences.h"
#include "app/SettingViewController.h"
#include "app/UiLanguage.h"
#include "content/AppCommon.h"
#include "stubs/AudioPlayerStub.h"

#include <QFontDatabase>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// English texts that the language's file says otherwise: seen on its screens, they escaped
/// translation.
QSet<QString> englishOnly(const QString &code)
{
    QSet<QString> texts;
    for (const TsMessage &message : readTsFile(tsFileOf(code)))
        if (!message.numerus && !message.source.contains(u'%') &&
            message.translations.value(0) != message.source)
            texts.insert(message.source);
    return texts;
}

/// Every text a learner can see in the window: labels, buttons, a choice box's choice.
void collectVisibleTexts(QQuickItem *item, QStringList &texts)
{
    if (!item->isVisible())
        return;
    static const QRegularExpression tags(u"<[^>]*>"_s);
    for (const char *property : {"text", "displayText"}) {
        const QVariant value = item->property(property);
        if (value.typeId() == QMetaType::QString && !value.toString().isEmpty())
            texts.append(value.toString().remove(tags));
    }
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectVisibleTexts(child, texts);
}

void expectNothingEnglish(const AppWindow &app, const QString &code, const QString &screen)
{
    const QSet<QString> english = englishOnly(code);
    QStringList texts;
    collectVisibleTexts(app.window()->contentItem(), texts);
    ASSERT_FALSE(texts.isEmpty());
    for (const QString &text : std::as_const(texts)) {
        // "Progress: 3/10" is a translated label and a count, whatever the colon.
        static const QRegularExpression colon(u"[\\s\\x{a0}]*[:\\x{ff1a}]"_s);
        const QString label = text.section(colon, 0, 0);
        EXPECT_FALSE(english.contains(text) || english.contains(label))
            << qPrintable(code) << " " << qPrintable(screen) << ": \"" << qPrintable(text)
            << "\" is in English";
    }
}

class LanguagesTest : public ::testing::Test {
protected:
    void TearDown() override { Preferences::instance().setLanguageType(u"en"_s); }

    AudioPlayerStubFactory players;
    AppWindow app;
};

} // namespace

TEST_F(LanguagesTest, SettingsSwitchesEveryScreenAtOnceToEachMotherLanguage)
{
    app.tapCentre(findItem(app.currentPage(), u"settingButton"_s));
    ASSERT_TRUE(app.waitForDepth(2));
    auto *settings = app.currentPage()->findChild<SettingViewController *>();
    ASSERT_NE(settings, nullptr);
    const QStringList &codes = supportedLanguageCodes();
    for (int index = 0; index < codes.size(); ++index) {
        settings->setLanguageIndex(index);
        ASSERT_EQ(UiLanguage::instance().code(), codes.at(index));
        if (codes.at(index) != u"en"_s)
            expectNothingEnglish(app, codes.at(index), u"settings over the main screen"_s);
    }

    // A language whose translation is missing from the build shows English, not the last one.
    settings->setLanguageIndex(static_cast<int>(codes.indexOf(u"ja"_s)));
    EXPECT_FALSE(UiLanguage::instance().apply(u"xx"_s));
    EXPECT_EQ(textOf(app.currentPage(), u"toolBarTitle"_s), u"Settings"_s);
}

// Each script needs its fonts installed, or the learner sees boxes; Arabic mirrors the screens.
TEST_F(LanguagesTest, MainScreenQuizAndResultsInFourScripts)
{
    const QList<std::pair<QString, QFontDatabase::WritingSystem>> languages{
        {u"ja"_s, QFontDatabase::Japanese},
        {u"ar"_s, QFontDatabase::Arabic},
        {u"hi"_s, QFontDatabase::Devanagari},
        {u"th"_s, QFontDatabase::Thai}};
    for (const auto &[code, script] : languages) {
        EXPECT_FALSE(QFontDatabase::families(script).isEmpty())
            << "no font for " << qPrintable(code);
        Preferences::instance().setLanguageType(code);
        (void)app.screenshot(u"main-"_s + code);
        expectNothingEnglish(app, code, u"main screen"_s);

        QQmlExpression push(qmlContext(app.stack()), app.stack(),
                            u"push(\"Listen2SelectPage.qml\", {categoryId: \"1\"})"_s);
        push.evaluate();
        ASSERT_TRUE(app.waitForDepth(2));
        (void)app.screenshot(u"quiz-"_s + code);
        expectNothingEnglish(app, code, u"quiz"_s);
        QQuickItem *back = findItem(app.currentPage(), u"backButton"_s);
        ASSERT_NE(back, nullptr);
        const bool backOnTheRight = back->mapToScene({}).x() > app.window()->width() / 2.0;
        EXPECT_EQ(backOnTheRight, code == u"ar"_s) << qPrintable(code);

        for (int question = 0; question < 10; ++question)
            QTest::keyClick(app.window(), Qt::Key_Return);
        QQuickItem *table = findItem(app.currentPage(), u"resultTable"_s);
        ASSERT_TRUE(table && table->isVisible()) << qPrintable(code);
        (void)app.screenshot(u"results-"_s + code);
        expectNothingEnglish(app, code, u"quiz results"_s);

        QTest::keyClick(app.window(), Qt::Key_Escape);
        ASSERT_TRUE(app.waitForDepth(1));

        app.tapCentre(AppWindow::listRow(findItem(app.currentPage(), u"categoryList"_s), 0));
        ASSERT_TRUE(app.waitForDepth(2));
        (void)app.screenshot(u"category-"_s + code);
        expectNothingEnglish(app, code, u"category"_s);
        const qreal previous = findItem(app.currentPage(), u"lastButton"_s)->mapToScene({}).x();
        const qreal next = findItem(app.currentPage(), u"nextButton"_s)->mapToScene({}).x();
        EXPECT_EQ(previous > next, code == u"ar"_s) << qPrintable(code) << ": the player bar";
        QTest::keyClick(app.window(), Qt::Key_Escape);
        ASSERT_TRUE(app.waitForDepth(1));
    }
}
