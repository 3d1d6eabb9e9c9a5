#include "AppWindow.h"
#include "app/CategoryViewController.h"
#include "content/AppCommon.h"
#include "content/QtPrinters.h"
#include "stubs/AudioPlayerStub.h"

#include <QFile>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

class CategoryPlayingUiTest : public ::testing::Test {
protected:
    AudioPlayerStubFactory players;
    AppWindow app;

    void SetUp() override
    {
        QQuickItem *row = AppWindow::listRow(findItem(app.stack(), u"categoryList"_s), 1);
        ASSERT_NE(row, nullptr);
        app.tapCentre(row);
        ASSERT_TRUE(app.waitForDepth(2));
        screen = app.currentPage()->findChild<CategoryViewController *>();
        ASSERT_NE(screen, nullptr);
    }

    [[nodiscard]] QQuickItem *control(const QString &name) const
    {
        return findItem(app.currentPage(), name);
    }

    [[nodiscard]] double rowTint(int index) const
    {
        QQuickItem *row = AppWindow::listRow(control(u"phraseList"_s), index);
        return row ? findItem(row, u"phraseRowBackground"_s)->property("tint").toDouble() : -1;
    }

    CategoryViewController *screen{nullptr};
};

} // namespace

TEST_F(CategoryPlayingUiTest, PlayingMarksThePhraseAndTheBarFollowsTheEngine)
{
    QQuickItem *play = control(u"playButton"_s);
    ASSERT_NE(play, nullptr);
    EXPECT_EQ(play->property("image").toString(), u"vo_play"_s);
    EXPECT_FALSE(control(u"stopButton"_s)->isEnabled());
    EXPECT_EQ(rowTint(0), 0);

    app.tapCentre(play);
    ASSERT_EQ(screen->player()->playStatus(), VoPlayerBox::Playing);
    EXPECT_EQ(players.requested.constFirst(), soundPath(*loadPhrases(screen->categoryId())->at(0)));
    EXPECT_EQ(play->property("image").toString(), u"vo_pause"_s);
    EXPECT_TRUE(control(u"stopButton"_s)->isEnabled());
    EXPECT_GT(rowTint(0), 0);

    app.tapCentre(control(u"nextButton"_s));
    EXPECT_EQ(screen->playingIndex(), 1);
    EXPECT_GT(rowTint(1), 0);
    EXPECT_EQ(rowTint(0), 0);
    app.tapCentre(control(u"speedUpButton"_s));
    QQuickItem *badge = control(u"speedRemindLabel"_s);
    EXPECT_EQ(badge->property("text").toString(), u"1.2X"_s);
    QImage shot = app.screenshot(u"category_playing"_s);
    EXPECT_FALSE(shot.isNull());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !badge->isVisible(); }, 1000));

    // Space pauses, as the play button does; the right arrow steps on.
    ASSERT_EQ(screen->player()->playStatus(), VoPlayerBox::Playing);
    QTest::keyClick(app.window(), Qt::Key_Space);
    EXPECT_EQ(screen->player()->playStatus(), VoPlayerBox::Paused);
    EXPECT_EQ(play->property("image").toString(), u"vo_play"_s);
    EXPECT_EQ(app.depth(), 2);
    QTest::keyClick(app.window(), Qt::Key_Right);
    EXPECT_EQ(screen->playingIndex(), 2);
}

// The buttons of a bar, centred in one row: the first at (bar width - n buttons - n-1 margins) / 2.
void expectCentredRow(QQuickItem *bar, const QStringList &names, double side, double margin)
{
    const double first = (bar->width() - names.size() * side - (names.size() - 1) * margin) / 2;
    for (int i = 0; i < names.size(); ++i) {
        QQuickItem *button = findItem(bar, names[i]);
        ASSERT_NE(button, nullptr) << qPrintable(names[i]);
        const QPointF at = button->mapToItem(bar, QPointF(0, 0));
        EXPECT_NEAR(at.x(), first + i * (side + margin), 1e-6) << qPrintable(names[i]);
        EXPECT_NEAR(at.y(), (bar->height() - side) / 2, 1e-6) << qPrintable(names[i]);
        EXPECT_EQ(button->size(), QSizeF(side, side)) << qPrintable(names[i]);
    }
}

TEST_F(CategoryPlayingUiTest, BarsAreCentredRowsOfTheirSizes)
{
    QQuickItem *bar = control(u"listPlayerBar"_s);
    ASSERT_NE(bar, nullptr);
    const QStringList listButtons{
        u"stopButton"_s,    u"lastButton"_s, u"speedDownButton"_s,      u"playButton"_s,
        u"speedUpButton"_s, u"nextButton"_s, u"playModelSwitchButton"_s};
    expectCentredRow(bar, listButtons, 32, 15);
    app.tapCentre(findItem(bar, u"playModelSwitchButton"_s));
    EXPECT_EQ(screen->player()->playModel(), VoPlayerBox::RepeatOne);

    // The compact bar scales with the screen and has no previous or next.
    QQmlComponent compact(&app.engine());
    compact.setData("import Tolvane\n"
                    "VoPlayerBoxView { width: 300; height: 60; engine: VoPlayerBox {} }",
                    QUrl(u"qrc:/Tolvane/CompactBarUnderTest.qml"_s));
    std::unique_ptr<QObject> made(compact.create());
    auto *compactBar = qobject_cast<QQuickItem *>(made.get());
    ASSERT_NE(compactBar, nullptr) << qPrintable(compact.errorString());
    compactBar->setParentItem(app.window()->contentItem());
    QTest::qWait(50);
    const double scale = app.window()->width() / 320.0;
    expectCentredRow(compactBar,
                     {u"stopButton"_s, u"speedDownButton"_s, u"playButton"_s, u"speedUpButton"_s},
                     25 * scale, 20 * scale);
    EXPECT_EQ(findItem(compactBar, u"nextButton"_s), nullptr);
    EXPECT_EQ(findItem(compactBar, u"lastButton"_s), nullptr);
    made.reset();

    // Wider than 760 points, the list bar's buttons grow.
    app.window()->resize(800, app.window()->height());
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar->width() == 800; }));
    QTest::qWait(50);
    expectCentredRow(bar, listButtons, 40, 20);
}

TEST_F(CategoryPlayingUiTest, TappingAPhraseOpensThePhraseCardsThere)
{
    app.tapCentre(control(u"playButton"_s));
    app.tapCentre(AppWindow::listRow(control(u"phraseList"_s), 1));
    if (!QFile::exists(u":/Tolvane/PhraseCardPage.qml"_s)) {
        QTest::qWait(100);
        EXPECT_EQ(app.depth(), 2) << "no phrase cards yet: the list stays";
        return;
    }
    ASSERT_TRUE(app.waitForDepth(3));
    EXPECT_EQ(app.currentPage()->property("categoryId").toString(), screen->categoryId());
    EXPECT_EQ(app.currentPage()->property("phraseIndex").toInt(), 1);
    EXPECT_EQ(screen->player()->playStatus(), VoPlayerBox::Stopped);
}
