#include "quiz/Listen2WriteVC.h"
#include "quiz/QuizUiTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Listen2WriteUiTest = QuizCourseUiTest;

// Key by key, as a keyboard that can write any letter would.
void type(QWindow *window, const QString &text)
{
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

} // namespace

TEST_F(Listen2WriteUiTest, PlaysATypedSessionThenLeavesTheNextHalfWay)
{
    auto *quiz = pushQuiz<Listen2WriteVC>(u"Listen2WritePage.qml"_s, u"categoryId: \"1\""_s);
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(text(u"toolBarTitle"_s), u"Listen And Write"_s);
    EXPECT_TRUE(players.requested.isEmpty()) << "the phrase comes after a delay";
    QQuickItem *field = item(u"textField"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return field->hasActiveFocus(); }))
        << "the field takes the keyboard at once";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !players.requested.isEmpty(); }, 3000));
    EXPECT_EQ(players.requested, QStringList{soundPath(*quiz->phraseInfos().at(0))});
    app.tapCentre(item(u"loudspeakerButton"_s));
    EXPECT_EQ(players.requested.size(), 2);
    EXPECT_TRUE(field->hasActiveFocus());
    ASSERT_TRUE(players.last && players.last->isPlaying());

    // Right: in capitals, and as written. Wrong: a full stop more or less, a blank more, a long
    // paste. The rest empty, one after a tap beside the controls put the keyboard away.
    QStringList typed;
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz->currIndex(), i);
        const QString asked = quiz->phraseInfos().at(i)->content;
        typed.append(i == 0   ? asked.toUpper()
                     : i == 1 ? asked
                     : i == 2 ? (asked.endsWith(u'.') ? asked.chopped(1) : asked + u'.')
                     : i == 3 ? asked + u' '
                     : i == 4 ? u"Ж"_s.repeated(3000)
                              : QString());
        if (i == 4) {
            QGuiApplication::clipboard()->setText(typed.constLast());
            QTest::keyClick(app.window(), Qt::Key_V, Qt::ControlModifier);
        } else {
            type(app.window(), typed.constLast());
        }
        EXPECT_EQ(field->property("text").toString(), typed.constLast());
        if (i == 0)
            (void)app.screenshot(u"listen-write-question"_s);
        if (i == 1) {
            app.tapCentre(item(u"submitBtn"_s));
        } else {
            if (i == 5) {
                app.tap(item(u"quizInfoView"_s), QPointF(-2, 2));
                EXPECT_FALSE(field->hasActiveFocus()) << "a tap beside the controls";
            }
            QTest::keyClick(app.window(), Qt::Key_Return);
        }
        EXPECT_TRUE(i > 0 || !players.last->isPlaying()) << "submitting silences the phrase";
        if (i < 9) {
            EXPECT_TRUE(field->property("text").toString().isEmpty());
            EXPECT_TRUE(field->hasActiveFocus()) << "the field keeps the keyboard";
        }
    }

    ASSERT_TRUE(quiz->finished());
    expectScoreLabel(20, "#b0171f");
    EXPECT_FALSE(field->isVisible());
    EXPECT_FALSE(item(u"submitBtn"_s)->isVisible());
    expectOneQuizRecorded(20);

    ASSERT_TRUE(item(u"resultTable"_s)->isVisible());
    for (int i = 0; i < 6; ++i)
        expectAnswer(i, i < 5 ? typed.at(i) : u"-"_s, i < 2);
    (void)app.screenshot(u"listen-write-results"_s);
    QTest::keyClick(app.window(), Qt::Key_Escape);
    ASSERT_TRUE(app.waitForDepth(1));
    leaveHalfWay<Listen2WriteVC>(u"Listen2WritePage.qml"_s);
    expectOneQuizRecorded(20);
}
