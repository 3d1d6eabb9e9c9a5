#include "app/Preferences.h"
#include "quiz/QuizOutlineVC.h"

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

QVariantMap properties(const QuizOutlineVC &menu, int tag)
{
    return menu.quizClicked(tag).value(u"properties"_s).toMap();
}

} // namespace

TEST(QuizOutline, ButtonsOpenTheirQuizWithCategoryDurationAndDirection)
{
    Preferences::instance().setLanguageType(u"en"_s);
    QuizOutlineVC menu;
    EXPECT_EQ(menu.titleText(), u"Quizzes"_s);
    menu.setCategory(u"4"_s);
    EXPECT_EQ(menu.titleText(), u"Unit Quiz"_s);
    Preferences::instance().setTestDuration(45.0F);
    EXPECT_EQ(menu.quizClicked(3).value(u"page"_s).toString(), u"WordOrderAdjustPage.qml"_s);
    EXPECT_EQ(properties(menu, 3).value(u"categoryId"_s).toString(), u"4"_s);
    EXPECT_EQ(properties(menu, 3).value(u"titleText"_s).toString(), u"Reorder Words"_s);
    EXPECT_FLOAT_EQ(properties(menu, 3).value(u"limitedTime"_s).toFloat(), 45.0F);
    EXPECT_TRUE(properties(menu, 5).value(u"foreign2Mother"_s).toBool());
    EXPECT_EQ(properties(menu, 6).value(u"foreign2Mother"_s), QVariant(false));
    EXPECT_FALSE(properties(menu, 1).contains(u"foreign2Mother"_s)) << "it does not translate";

    // Six buttons, five quarter-button gaps and half a button above and below: 8.25 buttons.
    ASSERT_EQ(tags(menu), (QList<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_DOUBLE_EQ(menu.buttonHeight(825.0), 100.0);
    // A German learner has nothing to translate into: four buttons, 5.75 buttons high.
    QSignalSpy changed(&menu, &QuizOutlineVC::buttonsChanged);
    Preferences::instance().setLanguageType(u"de"_s);
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(tags(menu), (QList<int>{1, 2, 3, 4}));
    EXPECT_DOUBLE_EQ(menu.buttonHeight(575.0), 100.0);
    EXPECT_EQ(menu.quizClicked(4).value(u"page"_s).toString(), u"Phrase2SpeakPage.qml"_s);
    EXPECT_TRUE(menu.quizClicked(5).isEmpty());
    Preferences::instance().setLanguageType(u"en"_s);
}
