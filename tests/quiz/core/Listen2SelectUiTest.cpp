#include "quiz/Listen2SelectVC.h"
#include "quiz/QuizOutlineVC.h"
#include "quiz/QuizUiTest.h"

#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Listen2SelectUiTest = QuizCourseUiTest;

} // namespace

TEST_F(Listen2SelectUiTest, PlaysAUnitQuizFromTheMenuThenLeavesAnotherHalfWay)
{
    app.tapCentre(AppWindow::listRow(item(u"categoryList"_s), 0));
    ASSERT_TRUE(app.waitForDepth(2));
    app.tapCentre(findItem(app.window()->contentItem(), u"unitQuizButton"_s));
    ASSERT_TRUE(app.waitForDepth(3));
    EXPECT_EQ(app.currentPage()->findChild<QuizOutlineVC *>()->titleText(), u"Unit Quiz"_s);
    (void)app.screenshot(u"quiz-menu"_s);
    app.tapCentre(item(u"quizButton1"_s));
    ASSERT_TRUE(app.waitForDepth(4));
    auto *quiz = app.currentPage()->findChild<Listen2SelectVC *>();
    ASSERT_NE(quiz, nullptr);
    ASSERT_EQ(quiz->categoryInfo() ? quiz->categoryInfo()->id : QString(), u"1"_s);
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Listen And Select"_s);
    EXPECT_EQ(text(u"limitedTimeLbl"_s), u"01:00"_s);
    app.tapCentre(item(u"loudspeakerButton"_s));
    EXPECT_EQ(players.requested.constLast(), soundPath(*quiz->phraseInfos().at(0)));

    // Eight right by taps (the first replaces a wrong tap), one wrong by keys, one left blank.
    QString wrongText;
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz->currIndex(), i);
        const QStringList options = quiz->optionTexts();
        EXPECT_EQ(QSet<QString>(options.cbegin(), options.cend()).size(), 4);
        const int right = option(*quiz, true);
        const int wrong = option(*quiz, false);
        ASSERT_TRUE(right >= 0 && wrong >= 0);
        EXPECT_EQ(text(u"option%1"_s.arg(right)), foreignText(*quiz->phraseInfos().at(i)));
        if (i < 8) {
            if (i == 0)
                app.tapCentre(item(u"option%1"_s.arg(wrong)));
            app.tapCentre(item(u"option%1"_s.arg(right)));
            if (i == 0)
                (void)app.screenshot(u"listen-select-question"_s);
            app.tapCentre(item(u"submitBtn"_s));
        } else {
            if (i == 8) {
                wrongText = text(u"option%1"_s.arg(wrong));
                QTest::keyClick(app.window(), Qt::Key(Qt::Key_1 + wrong));
            }
            QTest::keyClick(app.window(), Qt::Key_Return);
        }
    }

    ASSERT_TRUE(quiz->finished());
    EXPECT_EQ(text(u"quizStatusLbl"_s), u"Over"_s);
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 10/10"_s);
    expectScoreLabel(80, "#2e8b57");
    EXPECT_FALSE(item(u"submitBtn"_s)->isVisible());
    expectOneQuizRecorded(80);

    QQuickItem *table = item(u"resultTable"_s);
    ASSERT_TRUE(table->isVisible());
    EXPECT_EQ(table->property("count").toInt(), 10);
    PhraseInfo &first = *quiz->phraseInfos().at(0);
    EXPECT_EQ(findItem(AppWindow::listRow(table, 0), u"srcTextLbl"_s)->property("text").toString(),
              first.content);
    EXPECT_EQ(
        findItem(AppWindow::listRow(table, 0), u"rightTextLbl"_s)->property("text").toString(),
        u"Sentence %1"_s.arg(first.id.toInt() - 100));
    expectAnswer(0, first.content, true);
    expectAnswer(8, wrongText, false);
    expectAnswer(9, u"-"_s, false);
    EXPECT_GE(AppWindow::listRow(table, 0)->height(),
              quiz->minRowH() * 0.99 * app.window()->height() / 568);
    (void)app.screenshot(u"listen-select-results"_s);

    // A tapped row is lit while its phrase plays; another row takes the light, and a phrase
    // without a recording leaves none lit.
    const auto colour = [](const QQuickItem *row) {
        return row->property("color").value<QColor>();
    };
    QQuickItem *row0 = AppWindow::listRow(table, 0);
    app.tapCentre(row0);
    EXPECT_EQ(players.requested.constLast(), soundPath(first));
    EXPECT_EQ(colour(row0), BaseQuizViewController::playingRowColor());
    QQuickItem *row1 = AppWindow::listRow(table, 1);
    app.tapCentre(row1);
    EXPECT_EQ(colour(row0), QColor(Qt::white));
    EXPECT_EQ(colour(row1), BaseQuizViewController::playingRowColor());
    ASSERT_NE(players.last, nullptr);
    players.last->finishPlaying();
    EXPECT_EQ(colour(row1), QColor(Qt::white));
    players.unplayable.append(soundPath(*quiz->phraseInfos().at(2)));
    QQuickItem *row2 = AppWindow::listRow(table, 2);
    app.tapCentre(row2);
    EXPECT_EQ(colour(row2), QColor(Qt::white));
    for (int depth : {3, 2, 1}) {
        QTest::keyClick(app.window(), Qt::Key_Escape);
        ASSERT_TRUE(app.waitForDepth(depth));
    }
    leaveHalfWay<Listen2SelectVC>(u"Listen2SelectPage.qml"_s);
    expectOneQuizRecorded(80);
}
