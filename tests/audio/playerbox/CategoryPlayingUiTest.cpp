#include "AppWindow.h"
#include "app/CategoryViewController.h"
#include "app/Preferences.h"
#include "content/AppCommon.h"
#include "content/QtPrinters.h"
#include "stubs/AudioPlayerStub.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The buttons of a bar, centred in one row: the first at (bar width - n buttons - n-1 margins) / 2.
void expectCentredRow(QQuickItem *bar, const QStringList &names, double side, double margin)
{
    const double first = (bar->width() - names.size() * side - (names.size() - 1) * margin) / 2;
    for (int i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(qPrintable(names[i]));
        QQuickItem *button = findItem(bar, names[i]);
        ASSERT_NE(button, nullptr);
        const QPointF at = button->mapToItem(bar, QPointF(0, 0));
        EXPECT_NEAR(at.x(), first + i * (side + margin), 1e-6);
        EXPECT_NEAR(at.y(), (bar->height() - side) / 2, 1e-6);
        EXPECT_EQ(button->size(), QSizeF(side, side));
    }
}

} // namespace

// The list the category screen plays as a learner meets it, and its bars; the choices of its
// options panel are made on the screen's controller.
TEST(CategoryPlayingUi, PlayingMarksThePhraseTheBarFollowsAndTheChoicesReachThePlayer)
{
    AudioPlayerStubFactory players;
    AppWindow app;
    Preferences::instance().setPlaySpeed(1.4F);
    app.tapCentre(AppWindow::listRow(findItem(app.stack(), u"categoryList"_s), 1));
    ASSERT_TRUE(app.waitForDepth(2));
    auto *screen = app.currentPage()->findChild<CategoryViewController *>();
    ASSERT_NE(screen, nullptr);
    const auto control = [&app](const QString &name) {
        return findItem(app.currentPage(), name);
    };
    const auto rowTint = [&control](int index) {
        QQuickItem *row = AppWindow::listRow(control(u"phraseList"_s), index);
        return row ? findItem(row, u"phraseRowBackground"_s)->property("tint").toDouble() : -1;
    };
    VoPlayerBox &player = *screen->player();
    const QList<PhraseInfo *> &phrases = *loadPhrases(screen->categoryId());
    QQuickItem *play = control(u"playButton"_s);
    ASSERT_NE(play, nullptr);
    EXPECT_EQ(play->property("image").toString(), u"vo_play"_s);
    EXPECT_FALSE(control(u"stopButton"_s)->isEnabled());
    EXPECT_EQ(rowTint(0), 0);

    QQuickItem *bar = control(u"listPlayerBar"_s);
    ASSERT_NE(bar, nullptr);
    const QStringList listButtons{
        u"stopButton"_s,    u"lastButton"_s, u"speedDownButton"_s,      u"playButton"_s,
        u"speedUpButton"_s, u"nextButton"_s, u"playModelSwitchButton"_s};
    expectCentredRow(bar, listButtons, 32, 15);
    // The compact bar scales with the screen and has no previous or next.
    QQmlComponent compact(&app.engine());
    compact.setData("import Tolvane\n"
                    "VoPlayerBoxView { width: 300; height: 60; engine: VoPlayerBox {} }",
                    QUrl(u"qrc:/Tolvane/CompactBarUnderTest.qml"_s));
    std::unique_ptr<QObject> made(compact.create());
    auto *compactBar = qobject_cast<QQuickItem *>(made.get());
    ASSERT_NE(compactBar, nullptr) << qPrintable(compact.errorString());
    compactBar->setParentItem(app.window()->contentItem());
    const double scale = app.window()->width() / 320.0;
    expectCentredRow(compactBar,
                     {u"stopButton"_s, u"speedDownButton"_s, u"playButton"_s, u"speedUpButton"_s},
                     25 * scale, 20 * scale);
    EXPECT_EQ(findItem(compactBar, u"nextButton"_s), nullptr);
    EXPECT_EQ(findItem(compactBar, u"lastButton"_s), nullptr);
    made.reset();

    app.tapCentre(play);
    ASSERT_EQ(player.playStatus(), VoPlayerBox::Playing);
    EXPECT_EQ(players.requested, QStringList{soundPath(*phrases.at(0))});
    EXPECT_FLOAT_EQ(players.last->rate(), 1.4F) << "the speed setting";
    EXPECT_EQ(play->property("image").toString(), u"vo_pause"_s);
    EXPECT_TRUE(control(u"stopButton"_s)->isEnabled());
    EXPECT_GT(rowTint(0), 0);

    app.tapCentre(control(u"nextButton"_s));
    EXPECT_EQ(players.requested.constLast(), soundPath(*phrases.at(1)));
    EXPECT_GT(rowTint(1), 0);
    EXPECT_EQ(rowTint(0), 0);
    app.tapCentre(control(u"speedUpButton"_s));
    QQuickItem *badge = control(u"speedRemindLabel"_s);
    EXPECT_EQ(badge->property("text").toString(), u"1.6X"_s);
    EXPECT_FLOAT_EQ(Preferences::instance().playSpeed(), 1.6F);
    EXPECT_FALSE(app.screenshot(u"category_playing"_s).isNull());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !badge->isVisible(); }, 1000));

    // Space pauses, as the play button does, and the phrase stays marked; the right arrow steps on.
    QTest::keyClick(app.window(), Qt::Key_Space);
    EXPECT_EQ(player.playStatus(), VoPlayerBox::Paused);
    EXPECT_EQ(play->property("image").toString(), u"vo_play"_s);
    EXPECT_GT(rowTint(1), 0);
    EXPECT_EQ(app.depth(), 2);
    QTest::keyClick(app.window(), Qt::Key_Right);
    EXPECT_EQ(screen->playingIndex(), 2);

    // Each repeat choice sounds a phrase that many times.
    for (const int count : CategoryViewController::repeatChoices()) {
        screen->setRepeatCount(count);
        player.playItem(0);
        EXPECT_EQ(players.last->numberOfLoops() + 1, count);
    }

    // During the pause before a phrase, that phrase is marked already; after the last, none is.
    screen->setItemDelay(1);
    players.last->finishPlaying();
    EXPECT_TRUE(player.waitingToStart());
    EXPECT_EQ(screen->playingIndex(), 1);
    player.stop();
    EXPECT_EQ(screen->playingIndex(), -1);
    screen->setItemDelay(0);
    player.playItem(static_cast<int>(phrases.size()) - 1);
    players.last->finishPlaying();
    EXPECT_EQ(screen->playingIndex(), -1);

    // The speed kept is the one heard, never below the slowest.
    player.playItem(0);
    for (int press = 0; press < 9; ++press)
        player.speedDown();
    EXPECT_LT(player.playRate(), 0.2F);
    EXPECT_FLOAT_EQ(Preferences::instance().playSpeed(), 0.2F);
    Preferences::instance().setPlaySpeed(1.4F);

    // Another category stops the sound and starts from its first phrase.
    const QString other = screen->categoryId() == u"1"_s ? u"2"_s : u"1"_s;
    screen->setCategoryId(other);
    EXPECT_EQ(player.playStatus(), VoPlayerBox::Stopped);
    EXPECT_EQ(player.audioFileList().constFirst(), soundPath(*loadPhrases(other)->at(0)));
    EXPECT_EQ(player.currItemIndex(), 0);

    // Wider than 760 points, the list bar's buttons grow.
    app.window()->resize(800, app.window()->height());
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar->width() == 800; }));
    QTest::qWait(50);
    expectCentredRow(bar, listButtons, 40, 20);
    app.tapCentre(findItem(bar, u"playModelSwitchButton"_s));
    EXPECT_EQ(player.playModel(), VoPlayerBox::RepeatOne);

    // A tapped phrase opens the phrase cards there, and the list stops sounding.
    player.play(true);
    app.tapCentre(AppWindow::listRow(control(u"phraseList"_s), 1));
    ASSERT_TRUE(app.waitForDepth(3));
    EXPECT_EQ(app.currentPage()->property("categoryId").toString(), other);
    EXPECT_EQ(app.currentPage()->property("phraseIndex").toInt(), 1);
    EXPECT_EQ(player.playStatus(), VoPlayerBox::Stopped);
}
