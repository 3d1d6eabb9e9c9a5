#include "AppWindow.h"
#include "app/Preferences.h"
#include "quiz/Listen2SelectVC.h"
#include "quiz/QuizOutlineVC.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QList<int> tags(const QuizOutlineVC &menu)
{
    QList<int> found;
    for (const QVariant &button : menu.buttons())
        found.append(button.toMap().value(u"tag"_s).toInt());
    return found;
}

} // namespace

TEST(QuizOutline, TitleFollowsTheCategoryAndButtonsShareTheHeight)
{
    QuizOutlineVC menu;
    EXPECT_EQ(menu.titleText(), u"Quizzes"_s);
    QSignalSpy changed(&menu, &QuizOutlineVC::categoryChanged);
    menu.setCategory(u"3"_s);
    menu.setCategory(u"3"_s);
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(menu.titleText(), u"Unit Quiz"_s);

    Preferences::instance().setLanguageType(u"en"_s);
    ASSERT_EQ(tags(menu), (QList<int>{1, 2, 3, 4, 5, 6}));
    // Six buttons, five quarter-button gaps and half a button above and below: 8.25 buttons.
    EXPECT_DOUBLE_EQ(menu.buttonHeight(825.0), 100.0);
}

TEST(QuizOutline, GermanAsMotherLanguageLeavesOutTheTranslationQuizzes)
{
    QuizOutlineVC menu;
    QSignalSpy changed(&menu, &QuizOutlineVC::buttonsChanged);
    Preferences::instance().setLanguageType(u"de"_s);
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(tags(menu), (QList<int>{1, 2, 3, 4}));
    EXPECT_DOUBLE_EQ(menu.buttonHeight(575.0), 100.0);
    EXPECT_EQ(menu.quizClicked(4).value(u"page"_s).toString(), u"Phrase2SpeakPage.qml"_s);
    EXPECT_TRUE(menu.quizClicked(5).isEmpty());

    Preferences::instance().setLanguageType(u"fr"_s);
    const QVariantMap german = menu.quizClicked(5).value(u"properties"_s).toMap();
    EXPECT_TRUE(german.value(u"foreign2Mother"_s).toBool());
    const QVariantMap mother = menu.quizClicked(6).value(u"properties"_s).toMap();
    ASSERT_TRUE(mother.contains(u"foreign2Mother"_s));
    EXPECT_FALSE(mother.value(u"foreign2Mother"_s).toBool());
    // Quizzes that do not translate have no direction to be given.
    EXPECT_FALSE(menu.quizClicked(1).value(u"properties"_s).toMap().contains(u"foreign2Mother"_s));
    Preferences::instance().setLanguageType(u"en"_s);
}

TEST(QuizOutline, AButtonOpensItsQuizWithTheCategoryAndTheCurrentDuration)
{
    QuizOutlineVC menu;
    menu.setCategory(u"4"_s);
    Preferences::instance().setTestDuration(45.0F);
    const QVariantMap quiz = menu.quizClicked(3);
    EXPECT_EQ(quiz.value(u"page"_s).toString(), u"WordOrderAdjustPage.qml"_s);
    const QVariantMap properties = quiz.value(u"properties"_s).toMap();
    EXPECT_EQ(properties.value(u"categoryId"_s).toString(), u"4"_s);
    EXPECT_EQ(properties.value(u"titleText"_s).toString(), u"Reorder Words"_s);
    EXPECT_FLOAT_EQ(properties.value(u"limitedTime"_s).toFloat(), 45.0F);

    for (int tag : {0, 7, -1})
        EXPECT_TRUE(menu.quizClicked(tag).isEmpty()) << tag;
}

TEST(QuizOutlineUi, MainAndCategoryScreensOpenTheMenuAndItStartsAQuiz)
{
    AppWindow app;
    app.tapCentre(findItem(app.currentPage(), u"quizzesButton"_s));
    ASSERT_TRUE(app.waitForDepth(2));
    EXPECT_EQ(app.currentPage()->findChild<QuizOutlineVC *>()->titleText(), u"Quizzes"_s);
    (void)app.screenshot(u"quiz-menu"_s);

    app.tapCentre(findItem(app.currentPage(), u"quizButton5"_s));
    ASSERT_TRUE(app.waitForDepth(3));
    EXPECT_TRUE(app.currentPage()->property("foreign2Mother").toBool());
    QMetaObject::invokeMethod(app.currentPage(), "back");
    ASSERT_TRUE(app.waitForDepth(2));

    app.tapCentre(findItem(app.currentPage(), u"quizButton1"_s));
    ASSERT_TRUE(app.waitForDepth(3));
    const auto *quiz = app.currentPage()->findChild<Listen2SelectVC *>();
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(quiz->titleText(), u"Listen And Select"_s);
    EXPECT_EQ(quiz->phraseInfos().size(), 10);

    AppWindow unit;
    unit.tapCentre(AppWindow::listRow(findItem(unit.currentPage(), u"categoryList"_s), 0));
    ASSERT_TRUE(unit.waitForDepth(2));
    unit.tapCentre(findItem(unit.window()->contentItem(), u"unitQuizButton"_s));
    ASSERT_TRUE(unit.waitForDepth(3));
    EXPECT_EQ(unit.currentPage()->findChild<QuizOutlineVC *>()->titleText(), u"Unit Quiz"_s);
}
