#include "AppWindow.h"
#include "app/AppColors.h"
#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString toolBarTitle(const AppWindow &app)
{
    return textOf(app.currentPage(), u"toolBarTitle"_s);
}

// The whole window, the tool bar's colour at the top and enough colours below it to be text.
void expectPainted(const QImage &image, QSize size)
{
    EXPECT_EQ(image.size(), size);
    EXPECT_EQ(image.pixelColor(image.width() / 2, 4).rgb(), AppColors::barBlue().rgb());
    QSet<QRgb> colours;
    for (int y = image.height() / 8; y < image.height(); y += 2)
        for (int x = 0; x < image.width(); x += 2)
            colours.insert(image.pixel(x, y));
    EXPECT_GT(colours.size(), 20);
}

class BrowsingTest : public ::testing::Test {
protected:
    AppWindow app;

    [[nodiscard]] QQuickItem *categoryRow(int index) const
    {
        return AppWindow::listRow(findItem(app.stack(), u"categoryList"_s), index);
    }
};

} // namespace

TEST_F(BrowsingTest, MainScreenListsEveryCategoryAndOpensOneInTheLearnersLanguage)
{
    EXPECT_EQ(toolBarTitle(app), u"Tolvane"_s);
    EXPECT_EQ(textOf(app.currentPage(), u"experienceTotal"_s), u"10"_s);
    EXPECT_FALSE(findItem(app.currentPage(), u"backButton"_s)->isVisible());
    expectPainted(app.screenshot(u"main"_s), app.window()->size());

    const QList<CategoryInfo *> &categories = loadAllCategories();
    ASSERT_EQ(findItem(app.stack(), u"categoryList"_s)->property("count").toInt(), 10);
    for (int i = 0; i < categories.size(); ++i) {
        QQuickItem *row = categoryRow(i);
        ASSERT_NE(row, nullptr) << i;
        EXPECT_EQ(textOf(row, u"categoryName"_s), categories.at(i)->trans.value(u"en"_s));
        EXPECT_EQ(row->property("germanName").toString(), categories.at(i)->name);
        EXPECT_EQ(row->property("phraseCount").toInt(), 14);
    }

    // Category "1": "Guten Morgen!" first.
    app.tapCentre(categoryRow(0));
    ASSERT_TRUE(app.waitForDepth(2));
    EXPECT_EQ(toolBarTitle(app), u"Greetings and Goodbyes"_s);
    QQuickItem *list = findItem(app.currentPage(), u"phraseList"_s);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->property("count").toInt(), 14);
    QQuickItem *first = AppWindow::listRow(list, 0);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(textOf(first, u"phraseText"_s), u"Guten Morgen!"_s);
    EXPECT_EQ(textOf(first, u"phraseTranslation"_s), u"Good morning!"_s);
    EXPECT_EQ(first->property("model").value<QObject *>()->property("phonetics").toString(),
              u"ˈɡuːtn̩ ˈmɔʁɡn̩"_s);
    expectPainted(app.screenshot(u"category"_s), app.window()->size());

    Preferences::instance().setLanguageType(u"fr"_s);
    EXPECT_EQ(toolBarTitle(app), u"Dire bonjour et au revoir"_s);
    EXPECT_EQ(textOf(first, u"phraseTranslation"_s),
              loadPhrases(u"1"_s)->at(0)->trans.value(u"fr"_s));
    Preferences::instance().setLanguageType(u"en"_s);

    // Points earned on the way show on the main screen once the learner is back.
    incrementUserInfoCounter(UserInfoKey::listenCount);
    QQuickItem *back = findItem(app.currentPage(), u"backButton"_s);
    ASSERT_TRUE(back && back->isVisible());
    app.tapCentre(back);
    ASSERT_TRUE(app.waitForDepth(1));
    EXPECT_EQ(toolBarTitle(app), u"Tolvane"_s);
    EXPECT_EQ(textOf(app.currentPage(), u"experienceTotal"_s), u"15"_s);
    setUserInfoInt(UserInfoKey::listenCount, 0);
}

// A held key repeats and an impatient finger taps again while the screen is still growing; the
// learner still gets one screen to go back from, not two.
TEST_F(BrowsingTest, KeysAndTapsOpenOneCategoryAtATimeZoomingAtTheTappedPoint)
{
    QTest::keyClick(app.window(), Qt::Key_Return);
    QTest::keyClick(app.window(), Qt::Key_Return);
    app.tapCentre(categoryRow(3));
    ASSERT_TRUE(app.waitForDepth(2));
    QTest::qWait(200);
    EXPECT_EQ(app.depth(), 2);
    EXPECT_EQ(toolBarTitle(app), loadAllCategories().at(0)->trans.value(u"en"_s));

    const std::pair<Qt::Key, Qt::KeyboardModifiers> backKeys[] = {
        {Qt::Key_Escape, Qt::NoModifier},
        {Qt::Key_Backspace, Qt::NoModifier},
        {Qt::Key_Left, Qt::AltModifier}};
    for (int next = 0; next < 3; ++next) {
        if (next > 0) {
            QTest::keyClick(app.window(), Qt::Key_Down);
            QTest::keyClick(app.window(), Qt::Key_Return);
            ASSERT_TRUE(app.waitForDepth(2)) << next;
            EXPECT_EQ(toolBarTitle(app), loadAllCategories().at(next)->trans.value(u"en"_s));
        }
        QTest::keyClick(app.window(), backKeys[next].first, backKeys[next].second);
        ASSERT_TRUE(app.waitForDepth(1)) << next;
    }
    QTest::keyClick(app.window(), Qt::Key_Escape);
    EXPECT_EQ(app.depth(), 1) << "the main screen stays";

    // The screen grows out of the finger and shrinks back into it, not into a corner or the
    // middle (where the back button's tap would put it).
    QQuickItem *row = categoryRow(2);
    ASSERT_NE(row, nullptr);
    const QPointF tapped = row->mapToScene(QPointF(row->width() * 0.8, row->height() / 2));
    QTest::mouseClick(app.window(), Qt::LeftButton, Qt::NoModifier, tapped.toPoint());
    const auto expectFixedWhileScaling = [&](bool growing) {
        QQuickItem *moving = app.stack()->childItems().constLast();
        ASSERT_TRUE(QTest::qWaitFor([&] { return moving->scale() > 0.2 && moving->scale() < 0.8; }))
            << (growing ? "push" : "pop");
        const QPointF now = moving->mapToScene(app.stack()->mapFromScene(tapped));
        EXPECT_NEAR(now.x(), tapped.x(), 1.5);
        EXPECT_NEAR(now.y(), tapped.y(), 1.5);
        EXPECT_GT(moving->opacity(), 0);
        EXPECT_LT(moving->opacity(), 1);
    };
    expectFixedWhileScaling(true);
    ASSERT_TRUE(app.waitForDepth(2));
    EXPECT_DOUBLE_EQ(app.currentPage()->scale(), 1);
    EXPECT_EQ(app.currentPage()->position(), QPointF(0, 0));
    app.tapCentre(findItem(app.currentPage(), u"backButton"_s));
    expectFixedWhileScaling(false);
    ASSERT_TRUE(app.waitForDepth(1));
}

// Screens count on a label's text sitting in the middle of its box and wrapping when long.
TEST_F(BrowsingTest, LabelTextSitsInTheMiddleAndWraps)
{
    app.stack()->setVisible(false); // a plain background, so the only ink is the label's
    const auto view = app.createView(
        u"VoLabel.qml"_s,
        {{u"width"_s, 300}, {u"height"_s, 120}, {u"color"_s, u"black"_s}, {u"text"_s, u"Hallo"_s}});
    auto *label = qobject_cast<QQuickItem *>(view.get());
    ASSERT_NE(label, nullptr);
    const QImage image = app.window()->grabWindow();
    const QPoint origin = label->mapToScene(QPointF(0, 0)).toPoint();
    int top = -1;
    int bottom = -1;
    for (int y = 0; y < label->height(); ++y)
        for (int x = 0; x < label->width(); ++x)
            if (qGray(image.pixel(origin + QPoint(x, y))) < 128) {
                top = top < 0 ? y : top;
                bottom = y;
                break;
            }
    EXPECT_NEAR(top + bottom, label->height(), 8);

    label->setProperty("text", u"Ein Kaffee und ein Stück Kuchen, bitte, und dann die Rechnung"_s);
    EXPECT_GT(label->property("lineCount").toInt(), 1);
    EXPECT_LE(label->property("contentWidth").toDouble(), label->width());
}
