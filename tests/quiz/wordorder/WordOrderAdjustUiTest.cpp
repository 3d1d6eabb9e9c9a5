#include "app/UserRecord.h"
#include "content/UserInfoFile.h"
#include "quiz/QuizUiTest.h"
#include "quiz/wordorder/WordOrderAdjustVC.h"
#include "stubs/AudioPlayerStub.h"

#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class WordOrderAdjustUiTest : public QuizUiTest {
protected:
    WordOrderAdjustVC *openQuiz(const QString &categoryId)
    {
        return pushQuiz<WordOrderAdjustVC>(u"WordOrderAdjustPage.qml"_s,
                                           u"categoryId: \"%1\""_s.arg(categoryId));
    }

    [[nodiscard]] static QRectF sceneRect(const QQuickItem *label)
    {
        return label->mapRectToScene(QRectF(0, 0, label->width(), label->height()));
    }

    // The word labels in reading order: row by row, left to right.
    [[nodiscard]] QList<QQuickItem *> labels() const
    {
        QList<QQuickItem *> found = findItems(app.currentPage(), u"wordLabel"_s);
        std::sort(found.begin(), found.end(), [](const QQuickItem *a, const QQuickItem *b) {
            const QRectF left = sceneRect(a);
            const QRectF right = sceneRect(b);
            return left.top() != right.top() ? left.top() < right.top()
                                             : left.left() < right.left();
        });
        return found;
    }

    // Drags each word, with the mouse, just before the label standing in its place.
    void arrangeByDragging(const WordOrderBoard &board) const
    {
        const QStringList words = board.standardOrderedWords();
        for (qsizetype place = 0; place < words.size(); ++place) {
            const qsizetype at = board.testOrderedWords().indexOf(words.at(place), place);
            ASSERT_GE(at, place);
            if (at == place)
                continue;
            const QList<QQuickItem *> shown = labels();
            const QRectF target = sceneRect(shown.at(place));
            const QRectF from = sceneRect(shown.at(at));
            const QPoint press = from.center().toPoint();
            const QPointF offset(target.left() - 1 - from.left(), target.top() - from.top());
            QTest::mousePress(app.window(), Qt::LeftButton, Qt::NoModifier, press);
            for (int step = 1; step <= 6; ++step)
                QTest::mouseMove(app.window(), press + (offset * step / 6).toPoint(), 10);
            QTest::mouseRelease(app.window(), Qt::LeftButton, Qt::NoModifier,
                                press + offset.toPoint(), 10);
        }
        EXPECT_TRUE(board.isAnswerRight()) << qPrintable(board.answerText());
    }
};

} // namespace

TEST_F(WordOrderAdjustUiTest, PlaysTenQuestionsByDraggingToTheResults)
{
    const qint64 quizzesBefore = userInfoInt(UserInfoKey::quizCount);
    const qint64 totalBefore = userInfoInt(UserInfoKey::quizTotalScore);
    WordOrderAdjustVC *quiz = openQuiz(u"1"_s);
    ASSERT_NE(quiz, nullptr);
    const WordOrderBoard &board = *quiz->wordOrderAdjustView();
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Reorder Words"_s);
    EXPECT_EQ(text(u"tipLbl"_s), u"Drag the word to reorder it."_s);
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 0/10"_s);
    EXPECT_EQ(labels().size(), board.standardOrderedWords().size());
    (void)app.screenshot(u"word-order-question"_s);

    // Nine arranged by dragging, submitted by tapping or by Return; the last left as shown,
    // which may be right by chance.
    bool lastRight = false;
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz->currIndex(), i);
        if (i < 9)
            arrangeByDragging(board);
        else
            lastRight = board.isAnswerRight();
        if (i % 2 == 0)
            app.tapCentre(item(u"submitBtn"_s));
        else
            QTest::keyClick(app.window(), Qt::Key_Return);
    }

    ASSERT_TRUE(quiz->finished());
    EXPECT_EQ(quiz->score(), lastRight ? 100 : 90);
    EXPECT_EQ(text(u"quizStatusLbl"_s), u"Over"_s);
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 10/10"_s);
    EXPECT_FALSE(item(u"wordOrderAdjustView"_s)->isVisible());
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzesBefore + 1);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), totalBefore + quiz->score());

    QQuickItem *table = item(u"resultTable"_s);
    ASSERT_TRUE(table->isVisible());
    EXPECT_EQ(table->property("count").toInt(), 10);
    (void)app.screenshot(u"word-order-results"_s);

    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(app.waitForDepth(1));
}
