#include "quiz/Listen2WriteVC.h"
#include "quiz/core/QuizCourse.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using Listen2WriteTest = QuizTest;

/// Every letter in capitals, one character at a time, so that "ß" stays one letter.
QString shouted(const QString &text)
{
    QString upper;
    for (const QChar c : text)
        upper.append(c.toUpper());
    return upper;
}

struct Typed {
    QString text;
    bool right;
};

/// What the learner types for a question of category "1" (see QuizCourse).
Typed typedFor(const QString &asked, int index)
{
    if (asked == u"Guten Tag."_s)
        return {u"GUTEN TAG"_s, false};
    switch (index % 6) {
    case 0:
        return {shouted(asked), true};
    case 1:
        return {asked + u" "_s, false};
    case 2:
        return {asked.toLower(), true};
    case 3:
        return {u"Гутен таг 日本語 "_s + asked, false};
    case 4:
        return {QString(), false};
    default:
        return {u"Ж"_s.repeated(100000), false};
    }
}

} // namespace

TEST_F(Listen2WriteTest, TypedAnswersAreKeptAsTypedAndRightWhenOnlyTheirCaseDiffers)
{
    Listen2WriteVC quiz(random);
    quiz.setupQuiz(10, u"Listen And Write"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    ASSERT_TRUE(std::any_of(quiz.phraseInfos().cbegin(), quiz.phraseInfos().cend(),
                            [](const PhraseInfo *p) { return p->content == u"Guten Tag."_s; }))
        << "the draw must ask the phrase with the full stop";
    QList<Typed> typed;
    int rights = 0;
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz.currIndex(), i);
        typed.append(typedFor(foreignText(*quiz.phraseInfos().at(i)), i));
        quiz.setTextField(typed.constLast().text);
        quiz.submitAction();
        rights += typed.constLast().right ? 1 : 0;
        EXPECT_EQ(quiz.score(), 10 * rights) << "question " << i;
    }

    ASSERT_TRUE(quiz.finished());
    EXPECT_EQ(quizCount(), 1);
    EXPECT_EQ(quizTotal(), 10 * rights);
    const QuizResultModel &results = *quiz.results();
    ASSERT_EQ(results.rowCount(), 10);
    for (int i = 0; i < 10; ++i) {
        const QString &text = typed.at(i).text;
        EXPECT_EQ(quiz.inputPhraseInfos().at(i)->trans.value(u"de"_s), text) << "question " << i;
        EXPECT_EQ(results.row(i).testText, text.isEmpty() ? u"-"_s : text);
        EXPECT_EQ(results.row(i).testTextColor,
                  typed.at(i).right ? QuizResultModel::rightColor() : QuizResultModel::wrongColor())
            << "question " << i;
    }
}

TEST_F(Listen2WriteTest, EachSubmitSilencesEmptiesTheFieldAndKeepsItsFocus)
{
    Listen2WriteVC quiz(random);
    quiz.setupQuiz(10, u"Listen And Write"_s, u"1"_s, 60);
    QSignalSpy focus(&quiz, &Listen2WriteVC::textFieldFocusRequested);
    quiz.viewDidLoad();
    EXPECT_TRUE(players.requested.isEmpty()) << "the question comes first";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !players.requested.isEmpty(); }, 3000));
    EXPECT_EQ(players.requested.constFirst(), soundPath(*quiz.phraseInfos().at(0)));

    for (int i = 0; i < 10; ++i) {
        quiz.setTextField(u"etwas"_s);
        quiz.playAction();
        ASSERT_NE(players.last, nullptr);
        quiz.submitAction();
        EXPECT_FALSE(players.last->isPlaying()) << "submitting silences the phrase";
        if (i < 9) {
            EXPECT_TRUE(quiz.textField().isEmpty()) << "question " << i;
        }
    }
    EXPECT_EQ(focus.count(), 9) << "after the last answer there is no next question to type";
    EXPECT_EQ(quiz.progressText(), u"Progress: 10/10"_s);

    quiz.setTextField(u"Guten Tag"_s);
    quiz.submitAction();
    EXPECT_EQ(focus.count(), 9);
    EXPECT_EQ(quizCount(), 1) << "an ended session is recorded once";
}

TEST_F(Listen2WriteTest, TimeOutLeavesTextNeverSubmittedUnanswered)
{
    Listen2WriteVC quiz(random);
    quiz.setupQuiz(10, u"Listen And Write"_s, u"1"_s, 1);
    quiz.viewDidLoad();
    for (int i = 0; i < 3; ++i) {
        quiz.setTextField(foreignText(*quiz.phraseInfos().at(i)));
        quiz.submitAction();
    }
    quiz.setTextField(foreignText(*quiz.phraseInfos().at(3)));
    while (!quiz.finished())
        quiz.tick();

    EXPECT_EQ(quiz.score(), 30);
    EXPECT_EQ(quizCount(), 1);
    EXPECT_EQ(quizTotal(), 30);
    EXPECT_TRUE(foreignText(*quiz.inputPhraseInfos().at(3)).isEmpty());
    EXPECT_EQ(quiz.results()->row(3).testText, u"-"_s);
    EXPECT_EQ(quiz.results()->row(3).testTextColor, QuizResultModel::wrongColor());
}

TEST_F(Listen2WriteTest, WithoutQuestionsSubmittingChangesNothing)
{
    Listen2WriteVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"2"_s, 60);
    QSignalSpy focus(&quiz, &Listen2WriteVC::textFieldFocusRequested);
    quiz.viewDidLoad();
    quiz.setTextField(u"Wenig 0"_s);
    quiz.submitAction();
    EXPECT_FALSE(quiz.hasQuestions());
    EXPECT_FALSE(quiz.finished());
    EXPECT_EQ(quiz.progress(), 0);
    EXPECT_EQ(focus.count(), 0);
    EXPECT_EQ(quizCount(), 0);
}
