#include "app/UserRecord.h"
#include "content/AppCommon.h"
#include "content/UserInfoFile.h"
#include "quiz/QuizAnswer.h"
#include "quiz/QuizUiTest.h"
#include "quiz/Word2WordVC.h"
#include "stubs/AudioPlayerStub.h"

#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Word2WordUiTest : public QuizUiTest {
protected:
    Word2WordVC *openQuiz(const QString &categoryId, bool foreign2Mother)
    {
        return pushQuiz<Word2WordVC>(u"Word2WordPage.qml"_s,
                                     u"categoryId: \"%1\", foreign2Mother: %2"_s.arg(
                                         categoryId, foreign2Mother ? u"true"_s : u"false"_s));
    }

    /// Plays a session of category "1" to its end: seven right answers by tapping, one wrong by
    /// keys, two without a choice. Screenshots of the first question and of the results carry
    /// the suffix.
    void playToTheEnd(bool foreign2Mother, const QString &suffix)
    {
        const qint64 quizzesBefore = userInfoInt(UserInfoKey::quizCount);
        const qint64 totalBefore = userInfoInt(UserInfoKey::quizTotalScore);
        Word2WordVC *quiz = openQuiz(u"1"_s, foreign2Mother);
        ASSERT_NE(quiz, nullptr);
        EXPECT_EQ(quiz->foreign2Mother(), foreign2Mother);
        EXPECT_EQ(text(u"toolBarTitle"_s), foreign2Mother
                                               ? u"Foreign Language -> Mother Language"_s
                                               : u"Mother Language -> Foreign Language"_s);
        EXPECT_EQ(text(u"progressLbl"_s), u"Progress: 0/10"_s);

        for (int i = 0; i < 10; ++i) {
            ASSERT_EQ(quiz->currIndex(), i);
            const PhraseInfo &asked = *quiz->phraseInfos().at(i);
            EXPECT_EQ(text(u"currText"_s), foreign2Mother ? foreignText(asked) : motherText(asked));
            const int right = rightOption(*quiz);
            ASSERT_GE(right, 0);
            EXPECT_EQ(text(u"option%1"_s.arg(right)),
                      foreign2Mother ? motherText(asked) : foreignText(asked));
            if (i < 7) {
                app.tapCentre(item(u"option%1"_s.arg(right)));
                if (i == 0) {
                    EXPECT_EQ(quiz->selectedOption(), right);
                    (void)app.screenshot(u"word-choice-question"_s + suffix);
                }
                app.tapCentre(item(u"submitBtn"_s));
            } else if (i == 7) {
                QTest::keyClick(app.window(), Qt::Key(Qt::Key_1 + (right + 1) % 4));
                QTest::keyClick(app.window(), Qt::Key_Return);
            } else {
                QTest::keyClick(app.window(), Qt::Key_Return);
            }
        }

        ASSERT_TRUE(quiz->finished());
        EXPECT_EQ(text(u"quizStatusLbl"_s), u"Over"_s);
        EXPECT_TRUE(text(u"scoreLbl"_s).contains(u">70</font>/100"_s));
        EXPECT_FALSE(item(u"questionScroller"_s)->isVisible());
        EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), quizzesBefore + 1);
        EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), totalBefore + 70);
        EXPECT_TRUE(players.requested.isEmpty()) << "nothing is heard during the questions";

        QQuickItem *table = item(u"resultTable"_s);
        ASSERT_TRUE(table->isVisible());
        EXPECT_EQ(table->property("count").toInt(), 10);
        QQuickItem *row = AppWindow::listRow(table, 0);
        ASSERT_NE(row, nullptr);
        const PhraseInfo &first = *quiz->phraseInfos().at(0);
        EXPECT_EQ(findItem(row, u"srcTextLbl"_s)->property("text").toString(), foreignText(first));
        EXPECT_EQ(findItem(row, u"testTextLbl"_s)->property("text").toString(),
                  foreign2Mother ? motherText(first) : foreignText(first))
            << "the answers read in the language they were offered in";
        (void)app.screenshot(u"word-choice-results"_s + suffix);

        app.tapCentre(row);
        EXPECT_EQ(players.requested.constLast(), soundPath(*quiz->phraseInfos().at(0)));

        QTest::keyClick(app.window(), Qt::Key_Escape);
        ASSERT_TRUE(app.waitForDepth(1));
    }
};

} // namespace

TEST_F(Word2WordUiTest, PlaysGermanToMotherLanguageToTheResults)
{
    playToTheEnd(true, QString());
}

TEST_F(Word2WordUiTest, PlaysMotherLanguageToGermanToTheResults)
{
    playToTheEnd(false, u"-mother"_s);
}

TEST_F(Word2WordUiTest, QuestionScrollsWhenTheControlsDoNotFit)
{
    Word2WordVC *quiz = openQuiz(QString(), true);
    ASSERT_NE(quiz, nullptr);
    EXPECT_EQ(quiz->categoryInfo(), nullptr) << "no category: all phrases";
    app.window()->resize(app.window()->width(), 300);
    QQuickItem *scroller = item(u"questionScroller"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return scroller->property("contentHeight").toReal() > scroller->height();
    })) << "the submit button can be scrolled to";
    QTest::keyClick(app.window(), Qt::Key_Escape);
    EXPECT_FALSE(quiz->isCountingDown());
    ASSERT_TRUE(app.waitForDepth(1));
}
