#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"
#include "quiz/Listen2SelectVC.h"
#include "quiz/QuizAnswer.h"
#include "quiz/QuizUiTest.h"
#include "stubs/AudioPlayerStub.h"

#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Listen2SelectUiTest : public QuizUiTest {
protected:
    Listen2SelectVC *openQuiz(const QString &categoryId)
    {
        return pushQuiz<Listen2SelectVC>(u"Listen2SelectPage.qml"_s,
                                         u"categoryId: \"%1\""_s.arg(categoryId));
    }
};

} // namespace

TEST_F(Listen2SelectUiTest, PlaysTenQuestionsToTheResultsAndHearsARow)
{
    const qint64 quizzesBefore = userInfoInt(UserInfoKey::quizCount);
    const qint64 totalBefore = userInfoInt(UserInfoKey::quizTotalScore);
    Listen2SelectVC *quiz = openQuiz(u"1"_s);
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Listen And Select"_s);
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 0/10"_s);
    EXPECT_EQ(text(u"limitedTimeLbl"_s), u"01:00"_s);
    EXPECT_TRUE(item(u"loudspeakerButton"_s)->isVisible());
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(text(u"option%1"_s.arg(i)), quiz->optionTexts().at(i));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !players.requested.isEmpty(); }, 3000));
    EXPECT_EQ(players.requested.constFirst(), soundPath(*quiz->phraseInfos().at(0)));
    app.tapCentre(item(u"loudspeakerButton"_s));
    EXPECT_EQ(players.requested.size(), 2);

    // Eight right answers by tapping, one wrong by keys, one left without a choice.
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz->currIndex(), i);
        if (i < 8) {
            app.tapCentre(item(u"option%1"_s.arg(rightOption(*quiz))));
            if (i == 0) {
                EXPECT_EQ(quiz->selectedOption(), rightOption(*quiz));
                (void)app.screenshot(u"listen-select-question"_s);
            }
            app.tapCentre(item(u"submitBtn"_s));
        } else if (i == 8) {
            QTest::keyClick(app.window(), Qt::Key(Qt::Key_1 + (rightOption(*quiz) + 1) % 4));
            QTest::keyClick(app.window(), Qt::Key_Return);
        } else {
            QTest::keyClick(app.window(), Qt::Key_Return);
        }
    }

    ASSERT_TRUE(quiz->finished());
    EXPECT_EQ(text(u"quizStatusLbl"_s), u"Over"_s);
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 10/10"_s);
    EXPECT_TRUE(text(u"scoreLbl"_s).contains(u">80</font>/100"_s));
    EXPECT_FALSE(item(u"submitBtn"_s)->isVisible());
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzesBefore + 1);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), totalBefore + 80);

    QQuickItem *table = item(u"resultTable"_s);
    ASSERT_TRUE(table->isVisible());
    EXPECT_EQ(table->property("count").toInt(), 10);
    QQuickItem *row = AppWindow::listRow(table, 0);
    ASSERT_NE(row, nullptr);
    EXPECT_GE(row->height(), quiz->minRowH() * 0.99 * app.window()->height() / 568);
    EXPECT_EQ(findItem(row, u"testTextLbl"_s)->property("text").toString(),
              foreignText(*quiz->phraseInfos().at(0)));
    (void)app.screenshot(u"listen-select-results"_s);

    app.tapCentre(row);
    EXPECT_EQ(players.requested.constLast(), soundPath(*quiz->phraseInfos().at(0)));
    EXPECT_EQ(quiz->results()->rowColor(0), BaseQuizViewController::playingRowColor());
    EXPECT_EQ(row->property("color").value<QColor>(), BaseQuizViewController::playingRowColor());
    ASSERT_NE(players.last, nullptr);
    players.last->finishPlaying();
    EXPECT_EQ(row->property("color").value<QColor>(), QColor(Qt::white));

    // The last question was left without a choice.
    QQuickItem *unanswered = findItem(AppWindow::listRow(table, 9), u"testTextLbl"_s);
    ASSERT_NE(unanswered, nullptr);
    EXPECT_EQ(unanswered->property("text").toString(), u"-"_s);
    EXPECT_EQ(unanswered->property("color").value<QColor>(), QuizResultModel::wrongColor());
    (void)app.screenshot(u"listen-select-results-end"_s);

    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(app.waitForDepth(1));
}

TEST_F(Listen2SelectUiTest, LeavingHalfWayStopsTheCountdownAndRecordsNothing)
{
    const qint64 quizzesBefore = userInfoInt(UserInfoKey::quizCount);
    Listen2SelectVC *quiz = openQuiz(QString());
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(quiz->categoryInfo(), nullptr) << "no category: all phrases";
    EXPECT_TRUE(quiz->isCountingDown());
    app.tapCentre(item(u"submitBtn"_s));
    EXPECT_EQ(quiz->currIndex(), 1);
    QTest::keyClick(app.window(), Qt::Key_Escape);
    EXPECT_FALSE(quiz->isCountingDown()) << "the countdown stops as the screen starts to go";
    ASSERT_TRUE(app.waitForDepth(1));
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzesBefore);
}
