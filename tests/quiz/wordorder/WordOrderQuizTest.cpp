#include "quiz/QuizUiTest.h"
#include "quiz/wordorder/WordOrderAdjustVC.h"

#include <QQuickWindow>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using WordOrderQuizTest = QuizTest;

bool inOrder(const WordOrderBoard &board)
{
    return board.testOrderedWords() == board.standardOrderedWords();
}

class WordOrderQuizUiTest : public QuizCourseUiTest {
protected:
    [[nodiscard]] static QRectF sceneRect(const QQuickItem *label)
    {
        return label->mapRectToScene(QRectF(0, 0, label->width(), label->height()));
    }

    [[nodiscard]] QList<QQuickItem *> labels() const
    {
        QList<QQuickItem *> found = findItems(app.window()->contentItem(), u"wordLabel"_s);
        std::sort(found.begin(), found.end(), [](const QQuickItem *a, const QQuickItem *b) {
            return sceneRect(a).top() != sceneRect(b).top()
                       ? sceneRect(a).top() < sceneRect(b).top()
                       : sceneRect(a).left() < sceneRect(b).left();
        });
        return found;
    }

    void dragTo(const QQuickItem *label, double x) const
    {
        const QPoint press = sceneRect(label).center().toPoint();
        const QPointF offset(x - sceneRect(label).left(), 0);
        QTest::mousePress(app.window(), Qt::LeftButton, Qt::NoModifier, press);
        for (int step = 1; step <= 6; ++step)
            QTest::mouseMove(app.window(), press + (offset * step / 6).toPoint(), 10);
        QTest::mouseRelease(app.window(), Qt::LeftButton, Qt::NoModifier, press + offset.toPoint(),
                            10);
    }
};

} // namespace

// The full stop of "Guten Tag." is no word to place, so it cannot cost the answer.
TEST_F(WordOrderQuizTest, AFullStopIsNoWordToPlace)
{
    WordOrderAdjustVC quiz(random);
    quiz.setupQuiz(10, u"Reorder Words"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    WordOrderBoard &board = *quiz.wordOrderAdjustView();
    bool fullStop = false;
    for (int i = 0; i < 10; ++i) {
        fullStop = fullStop || quiz.phraseInfos().at(i)->content == u"Guten Tag."_s;
        ASSERT_EQ(board.standardOrderedWords().size(), 2);
        if (!inOrder(board))
            board.shiftWord(static_cast<int>(board.randomOrderedWords().indexOf(
                                board.testOrderedWords().constFirst())),
                            1);
        ASSERT_TRUE(inOrder(board));
        quiz.submitAction();
    }
    ASSERT_TRUE(fullStop) << "the draw must ask the phrase with the full stop";
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), 100);
}

TEST_F(WordOrderQuizUiTest, PlaysASessionByMouseAndKeysThenALongPhraseWrapsInTheArea)
{
    auto *quiz = pushQuiz<WordOrderAdjustVC>(u"WordOrderAdjustPage.qml"_s, u"categoryId: \"1\""_s);
    ASSERT_NE(quiz, nullptr);
    const WordOrderBoard &board = *quiz->wordOrderAdjustView();
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Reorder Words"_s);
    EXPECT_EQ(text(u"tipLbl"_s), u"Drag the word to reorder it."_s);
    (void)app.screenshot(u"word-order-question"_s);

    // Eight put right by dragging the second word before the first, one by the arrow keys, the
    // last left wrong; submitted by tapping and by Return in turn.
    QString leftWrong;
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz->currIndex(), i);
        const QList<QQuickItem *> shown = labels();
        ASSERT_EQ(shown.size(), 2);
        if (i < 8 && !inOrder(board)) {
            dragTo(shown.at(1), sceneRect(shown.at(0)).left() - 1);
        } else if (i == 8) {
            shown.at(0)->parentItem()->forceActiveFocus();
            QTest::keyClick(app.window(), Qt::Key_Right);
            if (!inOrder(board))
                QTest::keyClick(app.window(), Qt::Key_Left);
        } else if (i == 9 && inOrder(board)) {
            shown.at(0)->parentItem()->forceActiveFocus();
            QTest::keyClick(app.window(), Qt::Key_Right);
        }
        EXPECT_EQ(inOrder(board), i < 9) << qPrintable(board.answerText());
        leftWrong = board.answerText();
        if (i % 2 == 0)
            app.tapCentre(item(u"submitBtn"_s));
        else
            QTest::keyClick(app.window(), Qt::Key_Return);
    }

    ASSERT_TRUE(quiz->finished());
    expectScoreLabel(90, "#2e8b57");
    EXPECT_FALSE(item(u"wordOrderAdjustView"_s)->isVisible());
    expectOneQuizRecorded(90);
    ASSERT_TRUE(item(u"resultTable"_s)->isVisible());
    expectAnswer(9, leftWrong, false);
    (void)app.screenshot(u"word-order-results"_s);
    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(app.waitForDepth(1));

    leaveHalfWay<WordOrderAdjustVC>(u"WordOrderAdjustPage.qml"_s);
    expectOneQuizRecorded(90);

    // The work area alone, a phrase too long for one row shown last word first: the labels,
    // read row by row, give the board's order.
    WordOrderBoard longBoard;
    const QStringList words =
        u"Entschuldigung können Sie mir bitte sagen wie ich zum Hauptbahnhof komme"_s.split(u' ');
    longBoard.setWords(words, QStringList(words.crbegin(), words.crend()));
    const auto view =
        app.createView(u"WordOrderBoardView.qml"_s, {{u"board"_s, QVariant::fromValue(&longBoard)},
                                                     {u"y"_s, 100},
                                                     {u"width"_s, app.window()->width()},
                                                     {u"height"_s, 200}});
    ASSERT_NE(view, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return longBoard.workAreaW() > 0; }));
    const QList<QQuickItem *> shown = labels();
    ASSERT_EQ(shown.size(), words.size());
    QStringList reading;
    for (const QQuickItem *label : shown) {
        EXPECT_LE(sceneRect(label).right(), app.window()->width());
        reading.append(label->parentItem()->property("word").toString());
    }
    EXPECT_EQ(reading, longBoard.testOrderedWords());
    EXPECT_GT(sceneRect(shown.constLast()).top(), sceneRect(shown.constFirst()).top());
}
