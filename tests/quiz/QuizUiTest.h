#pragma once

#include "AppWindow.h"
#include "quiz/core/QuizCourse.h"
#include "stubs/AudioPlayerStub.h"

#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <gtest/gtest.h>

/**
 * @brief The app with a silent player, and a quiz screen pushed onto it as the quiz menu pushes
 * it; the quiz kinds' UI tests derive from it. QuizCourse.h brings rightOption() and answer().
 */
class QuizUiTest : public ::testing::Test {
protected:
    AudioPlayerStubFactory players;
    AppWindow app;

    /// Pushes the page with the properties, given as the inside of a script object literal
    /// ("categoryId: \"1\""), and returns its controller.
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
