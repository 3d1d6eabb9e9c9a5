#include "quiz/QuizUiTest.h"
#include "quiz/Word2WordVC.h"

#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Word2WordTest = QuizTest;
using Word2WordUiTest = QuizCourseUiTest;

QString english(const PhraseInfo &phrase)
{
    return u"Sentence %1"_s.arg(phrase.id.toInt() - 100);
}

} // namespace

// Another spelling of "Guten Tag" is right, another phrase translated "Fine" is not.
TEST_F(Word2WordTest, JudgesByTheGermanTextInBothDirections)
{
    const QStringList fine{u"Ja"_s, u"Gut"_s, u"Schön"_s, u"Prima"_s};
    int twins = 0;
    int lookalikes = 0;
    for (const bool foreign2Mother : {true, false}) {
        Word2WordVC quiz(random);
        quiz.setForeign2Mother(foreign2Mother);
        quiz.setupQuiz(10, u"Word Choice"_s, u"4"_s, 60);
        quiz.viewDidLoad();
        QList<bool> right;
        for (int i = 0; i < 10; ++i) {
            const PhraseInfo *asked = quiz.phraseInfos().at(i);
            int twin = -1;
            int lookalike = -1;
            for (int o = 0; o < 4; ++o) {
                const QString &text = quiz.currOptions().at(o)->content;
                if (quiz.currOptions().at(o) == asked)
                    continue;
                if (text.compare(asked->content, Qt::CaseInsensitive) == 0)
                    twin = o;
                else if (fine.contains(text) && fine.contains(asked->content))
                    lookalike = o;
            }
            quiz.selectOption(twin >= 0 ? twin : lookalike);
            quiz.submitAction();
            right.append(twin >= 0);
            lookalikes += twin < 0 && lookalike >= 0 ? 1 : 0;
        }
        twins += static_cast<int>(right.count(true));
        ASSERT_TRUE(quiz.finished());
        EXPECT_EQ(quiz.score(), 10 * right.count(true));
        for (int i = 0; i < 10; ++i)
            EXPECT_EQ(quiz.results()->row(i).testTextColor,
                      right.at(i) ? QuizResultModel::rightColor() : QuizResultModel::wrongColor());
    }
    EXPECT_GT(twins, 0) << "the draw offered no other spelling";
    EXPECT_GT(lookalikes, 0) << "the draw offered no phrase of equal translation";
}

TEST_F(Word2WordUiTest, PlaysASessionInEachDirectionThenTheQuestionScrollsWhenCramped)
{
    for (const bool foreign2Mother : {false, true}) {
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        auto *quiz = pushQuiz<Word2WordVC>(u"Word2WordPage.qml"_s,
                                           u"categoryId: \"1\", foreign2Mother: %1"_s.arg(
                                               foreign2Mother ? u"true"_s : u"false"_s));
        ASSERT_NE(quiz, nullptr);
        EXPECT_EQ(text(u"toolBarTitle"_s), foreign2Mother
                                               ? u"Foreign Language -> Mother Language"_s
                                               : u"Mother Language -> Foreign Language"_s);

        // Seven right by taps, one wrong by keys, two without a choice.
        for (int i = 0; i < 10; ++i) {
            ASSERT_EQ(quiz->currIndex(), i);
            const PhraseInfo &asked = *quiz->phraseInfos().at(i);
            EXPECT_EQ(text(u"currText"_s), foreign2Mother ? asked.content : english(asked));
            const int right = option(*quiz, true);
            ASSERT_GE(right, 0);
            EXPECT_EQ(text(u"option%1"_s.arg(right)),
                      foreign2Mother ? english(asked) : asked.content);
            if (i < 7) {
                app.tapCentre(item(u"option%1"_s.arg(right)));
                if (i == 0 && !foreign2Mother)
                    (void)app.screenshot(u"word-choice-question"_s);
                app.tapCentre(item(u"submitBtn"_s));
            } else {
                if (i == 7)
                    QTest::keyClick(app.window(), Qt::Key(Qt::Key_1 + option(*quiz, false)));
                QTest::keyClick(app.window(), Qt::Key_Return);
            }
        }

        ASSERT_TRUE(quiz->finished());
        expectScoreLabel(70, "#c76114");
        EXPECT_FALSE(item(u"questionScroller"_s)->isVisible());
        expectOneQuizRecorded(70);
        EXPECT_TRUE(players.requested.isEmpty()) << "nothing is heard during the questions";

        ASSERT_TRUE(item(u"resultTable"_s)->isVisible());
        const PhraseInfo &first = *quiz->phraseInfos().at(0);
        expectAnswer(0, foreign2Mother ? english(first) : first.content, true);
        if (!foreign2Mother)
            (void)app.screenshot(u"word-choice-results"_s);
        QTest::keyClick(app.window(), Qt::Key_Escape);
        ASSERT_TRUE(app.waitForDepth(1));
    }

    leaveHalfWay<Word2WordVC>(u"Word2WordPage.qml"_s, [this] {
        app.window()->resize(app.window()->width(), 300);
        QQuickItem *scroller = item(u"questionScroller"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return scroller->property("contentHeight").toReal() > scroller->height();
        })) << "the submit button can be scrolled to";
    });
    expectOneQuizRecorded(70);
}
