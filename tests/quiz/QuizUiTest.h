#pragma once

#include "AppWindow.h"
#include "quiz/core/QuizCourse.h"
#include "stubs/AudioPlayerStub.h"

#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>

/// The app with a silent player; quiz screens are pushed onto it as the quiz menu pushes them.
class QuizUiTest : public ::testing::Test {
protected:
    AudioPlayerStubFactory players;
    AppWindow app;

    /// Pushes the page with the properties ("categoryId: \"1\"") and returns its controller.
    template <typename Quiz> Quiz *pushQuiz(const QString &page, const QString &properties)
    {
        QQmlExpression push(qmlContext(app.stack()), app.stack(),
                            QStringLiteral("push(\"%1\", {%2})").arg(page, properties));
        push.evaluate();
        EXPECT_FALSE(push.hasError()) << qPrintable(push.error().toString());
        EXPECT_TRUE(app.waitForDepth(2));
        return app.currentPage()->findChild<Quiz *>();
    }

    [[nodiscard]] QQuickItem *item(const QString &objectName) const
    {
        QQuickItem *found = findItem(app.currentPage(), objectName);
        if (!found)
            ADD_FAILURE() << "no item " << qPrintable(objectName);
        return found;
    }

    [[nodiscard]] QString text(const QString &objectName) const
    {
        return item(objectName)->property("text").toString();
    }
};

/// QuizUiTest on QuizCourse, installed before the app opens a course, with a fresh record.
class QuizCourseUiTest : public QuizUiTest {
protected:
    static void SetUpTestSuite()
    {
        QuizCourse::install();
        Preferences::instance().setLanguageType(QStringLiteral("en"));
        Preferences::instance().setTestDuration(Preferences::defaultTestDuration);
    }
    void SetUp() override { ASSERT_TRUE(writeUserInfo(initialUserInfo())); }

    static void expectOneQuizRecorded(qint64 score)
    {
        for (const QString &key : initialUserInfo().keys()) {
            const qint64 wanted = key == UserInfoKey::quizCount        ? 1
                                  : key == UserInfoKey::quizTotalScore ? score
                                                                       : 0;
            EXPECT_EQ(userInfoInt(key), wanted) << qPrintable(key);
        }
    }

    void expectAnswer(int row, const QString &answer, bool right) const
    {
        QQuickItem *label = findItem(AppWindow::listRow(item(QStringLiteral("resultTable")), row),
                                     QStringLiteral("testTextLbl"));
        ASSERT_NE(label, nullptr) << row;
        EXPECT_EQ(label->property("text").toString(), answer) << row;
        EXPECT_EQ(label->property("color").value<QColor>(),
                  right ? QuizResultModel::rightColor() : QuizResultModel::wrongColor())
            << row;
    }

    void expectScoreLabel(int points, const char *colour) const
    {
        EXPECT_EQ(text(QStringLiteral("scoreLbl")),
                  QStringLiteral("Score: <font color=\"%1\">%2</font>/100")
                      .arg(QLatin1String(colour))
                      .arg(points));
    }

    /// Opens the page on all phrases, submits one question by Return, runs whileAsking and
    /// leaves: the countdown stops as the screen goes, and the record does not move.
    template <typename Quiz>
    void leaveHalfWay(const QString &page, const std::function<void()> &whileAsking = {})
    {
        const qint64 quizzes = userInfoInt(UserInfoKey::quizCount);
        Quiz *quiz = pushQuiz<Quiz>(page, QStringLiteral("categoryId: \"\""));
        ASSERT_NE(quiz, nullptr);
        EXPECT_EQ(quiz->questionCount(), 10);
        QTest::keyClick(app.window(), Qt::Key_Return);
        EXPECT_EQ(quiz->currIndex(), 1);
        if (whileAsking)
            whileAsking();
        QTest::keyClick(app.window(), Qt::Key_Escape);
        EXPECT_FALSE(quiz->isCountingDown());
        ASSERT_TRUE(app.waitForDepth(1));
        EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzes);
    }
};
