#include "content/VoAppCommon.h"
#include "quiz/core/QuizCourse.h"
#include "quiz/wordorder/WordOrderAdjustVC.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QColor rightColour = QColor::fromRgb(46, 139, 87);
const QColor wrongColour = QColor::fromRgb(178, 34, 34);

class WordOrderAdjustTest : public QuizTest {
protected:
    WordOrderAdjustVC quiz{random};

    void start(const QString &categoryId)
    {
        quiz.setupQuiz(10, u"Reorder Words"_s, categoryId, 60);
        quiz.viewDidLoad();
    }

    [[nodiscard]] WordOrderBoard &board() { return *quiz.wordOrderAdjustView(); }

    // Moves the labels, one place at a time as the arrow keys do, until they read the words.
    void arrange(const QStringList &words)
    {
        for (qsizetype place = 0; place < words.size(); ++place) {
            const QStringList shown = board().testOrderedWords();
            const auto at = shown.indexOf(words.at(place), place);
            ASSERT_GE(at, place) << qPrintable(words.at(place));
            // The label's row is its place among the words first shown; copies of a word are
            // told apart by counting them.
            const auto copy = shown.mid(0, at).count(words.at(place));
            qsizetype row = -1;
            for (qsizetype seen = -1; seen < copy;)
                if (board().randomOrderedWords().at(++row) == words.at(place))
                    ++seen;
            board().shiftWord(static_cast<int>(row), static_cast<int>(place - at));
        }
        ASSERT_EQ(board().testOrderedWords(), words);
    }
};

TEST_F(WordOrderAdjustTest, OneWordPhrasesAreRightAsShown)
{
    start(u"3"_s);
    for (int question = 0; question < 10; ++question) {
        EXPECT_EQ(board().testOrderedWords(), QStringList{u"Hallo"_s});
        quiz.submitAction();
    }
    EXPECT_TRUE(quiz.finished());
    EXPECT_EQ(quiz.score(), 100);
    EXPECT_EQ(quizCount(), 1);
    EXPECT_EQ(quizTotal(), 100);
    EXPECT_EQ(board().rowCount(), 0);
    ASSERT_EQ(quiz.results()->rowCount(), 10);
    EXPECT_EQ(quiz.results()->row(9).testText, u"Hallo"_s);
    EXPECT_EQ(quiz.results()->row(9).testTextColor, rightColour);
}

TEST_F(WordOrderAdjustTest, OnlyTheOrderOfTheWordsCounts)
{
    start(u"1"_s);
    int right = 0;
    for (int question = 0; question < 10; ++question) {
        const PhraseInfo &asked = *quiz.phraseInfos().at(question);
        const QStringList words = VoAppCommon::getAllWordFromText(asked.content, false);
        ASSERT_EQ(words.size(), 2) << qPrintable(asked.content);
        // A fresh shuffle of the phrase's words for every question.
        EXPECT_EQ(board().standardOrderedWords(), words);
        EXPECT_TRUE(board().randomOrderedWords() == words ||
                    board().randomOrderedWords() == QStringList({words.at(1), words.at(0)}));

        // Every other question right: the full stop of "Guten Tag." is no word to place.
        const bool answerRight = question % 2 == 0;
        arrange(answerRight ? words : QStringList{words.at(1), words.at(0)});
        quiz.submitAction();
        right += answerRight ? 1 : 0;
        EXPECT_EQ(quiz.score(), 10 * right);
        EXPECT_EQ(foreignText(*quiz.inputPhraseInfos().at(question)),
                  answerRight ? foreignText(asked) : words.at(1) + u' ' + words.at(0));
    }
    EXPECT_TRUE(quiz.finished());
    EXPECT_EQ(quizTotal(), 50);
    EXPECT_EQ(quiz.results()->row(0).testTextColor, rightColour);
    EXPECT_EQ(quiz.results()->row(1).testTextColor, wrongColour);
}

TEST_F(WordOrderAdjustTest, ATimeOutRecordsTheAnswersGivenSoFar)
{
    start(u"1"_s);
    for (int question = 0; question < 3; ++question) {
        arrange(board().standardOrderedWords());
        quiz.submitAction();
    }
    arrange(board().standardOrderedWords()); // arranged but not submitted
    while (!quiz.finished())
        quiz.tick();
    EXPECT_EQ(quizCount(), 1);
    EXPECT_EQ(quizTotal(), 30);
    EXPECT_EQ(board().rowCount(), 0);
    EXPECT_EQ(quiz.results()->row(3).testText, u"-"_s);

    // A submit after the end changes nothing.
    quiz.submitAction();
    EXPECT_EQ(quiz.score(), 30);
    EXPECT_EQ(quizCount(), 1);
}

TEST_F(WordOrderAdjustTest, TooFewPhrasesOrLeavingEarlyRecordNothing)
{
    start(u"2"_s);
    EXPECT_FALSE(quiz.hasQuestions());
    EXPECT_EQ(board().rowCount(), 0);
    quiz.submitAction();
    EXPECT_FALSE(quiz.finished());

    WordOrderAdjustVC left(random);
    left.setupQuiz(10, u"Reorder Words"_s, u"1"_s, 60);
    left.viewDidLoad();
    left.submitAction();
    left.viewWillDisappear();
    EXPECT_FALSE(left.isCountingDown());
    EXPECT_EQ(quizCount(), 0);
}

} // namespace
