#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"
#include "quiz/Listen2WriteVC.h"
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

class Listen2WriteUiTest : public QuizUiTest {
protected:
    Listen2WriteVC *openQuiz(const QString &categoryId)
    {
        return pushQuiz<Listen2WriteVC>(u"Listen2WritePage.qml"_s,
                                        u"categoryId: \"%1\""_s.arg(categoryId));
    }

    // Key by key, as a keyboard that can write any letter would.
    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, app.window(), Qt::Key_unknown, QString(c),
                                Qt::NoModifier);
    }

    /// Every letter in capitals, one character at a time, so that "ß" stays one letter.
    static QString shouted(const QString &text)
    {
        QString upper;
        for (const QChar c : text)
            upper.append(c.toUpper());
        return upper;
    }
};

} // namespace

TEST_F(Listen2WriteUiTest, PlaysTenTypedAnswersToTheResults)
{
    const qint64 quizzesBefore = userInfoInt(UserInfoKey::quizCount);
    const qint64 totalBefore = userInfoInt(UserInfoKey::quizTotalScore);
    Listen2WriteVC *quiz = openQuiz(u"1"_s);
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Listen And Write"_s);
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 0/10"_s);
    QQuickItem *field = item(u"textField"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return field->hasActiveFocus(); }))
        << "the field takes the keyboard at once";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !players.requested.isEmpty(); }, 3000));
    EXPECT_EQ(players.requested.constFirst(), soundPath(*quiz->phraseInfos().at(0)));
    app.tapCentre(item(u"loudspeakerButton"_s));
    EXPECT_EQ(players.requested.size(), 2);
    EXPECT_TRUE(field->hasActiveFocus());

    // The first in capitals with Return, the second as written with Submit, the third missing
    // its last character; the rest left empty, one of them after putting the keyboard away.
    QStringList typed;
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz->currIndex(), i);
        const QString asked = foreignText(*quiz->phraseInfos().at(i));
        typed.append(i == 0   ? shouted(asked)
                     : i == 1 ? asked
                     : i == 2 ? asked.chopped(1)
                              : QString());
        type(typed.constLast());
        EXPECT_EQ(field->property("text").toString(), typed.constLast());
        if (i == 0)
            (void)app.screenshot(u"listen-write-question"_s);
        if (i == 1) {
            app.tapCentre(item(u"submitBtn"_s));
        } else if (i == 5) {
            app.tap(item(u"quizInfoView"_s), QPointF(-2, 2));
            EXPECT_FALSE(field->hasActiveFocus()) << "a tap beside the controls";
            QTest::keyClick(app.window(), Qt::Key_Return);
        } else {
            QTest::keyClick(app.window(), Qt::Key_Return);
        }
        if (i < 9) {
            EXPECT_EQ(quiz->currIndex(), i + 1);
            EXPECT_TRUE(field->property("text").toString().isEmpty());
            EXPECT_TRUE(field->hasActiveFocus()) << "the field keeps the keyboard";
        }
    }

    ASSERT_TRUE(quiz->finished());
    EXPECT_EQ(text(u"quizStatusLbl"_s), u"Over"_s);
    EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 10/10"_s);
    EXPECT_TRUE(text(u"scoreLbl"_s).contains(u">20</font>/100"_s));
    EXPECT_FALSE(field->isVisible());
    EXPECT_FALSE(item(u"submitBtn"_s)->isVisible());
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzesBefore + 1);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), totalBefore + 20);

    QQuickItem *table = item(u"resultTable"_s);
    ASSERT_TRUE(table->isVisible());
    EXPECT_EQ(table->property("count").toInt(), 10);
    for (int i = 0; i < 4; ++i) {
        QQuickItem *answer = findItem(AppWindow::listRow(table, i), u"testTextLbl"_s);
        ASSERT_NE(answer, nullptr);
        EXPECT_EQ(answer->property("text").toString(), i < 3 ? typed.at(i) : u"-"_s);
        EXPECT_EQ(answer->property("color").value<QColor>(),
                  i < 2 ? QuizResultModel::rightColor() : QuizResultModel::wrongColor());
    }
    (void)app.screenshot(u"listen-write-results"_s);

    app.tapCentre(AppWindow::listRow(table, 1));
    EXPECT_EQ(players.requested.constLast(), soundPath(*quiz->phraseInfos().at(1)));

    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(app.waitForDepth(1));
}

TEST_F(Listen2WriteUiTest, LeavingHalfWayStopsTheCountdownAndRecordsNothing)
{
    const qint64 quizzesBefore = userInfoInt(UserInfoKey::quizCount);
    Listen2WriteVC *quiz = openQuiz(QString());
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(quiz->categoryInfo(), nullptr) << "no category: all phrases";
    type(u"Hallo"_s);
    QTest::keyClick(app.window(), Qt::Key_Return);
    EXPECT_EQ(quiz->currIndex(), 1);
    QTest::keyClick(app.window(), Qt::Key_Escape);
    EXPECT_FALSE(quiz->isCountingDown()) << "the countdown stops as the screen starts to go";
    ASSERT_TRUE(app.waitForDepth(1));
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzesBefore);
}
