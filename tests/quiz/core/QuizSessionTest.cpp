#include "QuizCourse.h"
#include "quiz/Listen2SelectVC.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using QuizSessionTest = QuizTest;

QList<PhraseInfo *> categoryPhrases(const QString &id)
{
    return *loadPhrases(id);
}

} // namespace

TEST_F(QuizSessionTest, DrawsTenQuestionsFromTheSourceWithEmptyAnswers)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Listen And Select"_s, u"1"_s, 60);
    QRandomGenerator same(QuizCourse::seed);
    EXPECT_EQ(quiz.phraseInfos(), randomPick(categoryPhrases(u"1"_s), 10, same))
        << "questions come from the injected source, in draw order";
    ASSERT_EQ(quiz.inputPhraseInfos().size(), 10);
    for (const PhraseInfo *placeholder : quiz.inputPhraseInfos()) {
        EXPECT_TRUE(placeholder->content.isEmpty());
        EXPECT_TRUE(placeholder->trans.isEmpty());
        EXPECT_EQ(placeholder->score, -1);
    }
    EXPECT_TRUE(quiz.hasQuestions());
    EXPECT_EQ(quiz.progressText(), u"Progress: 0/10"_s);
    EXPECT_EQ(quiz.scoreText(), u"Score: 0/100"_s);
    EXPECT_EQ(quiz.limitedTimeText(), u"01:00"_s);

    Listen2SelectVC all(random);
    all.setupQuiz(10, u"Quizzes"_s, QString(), -5);
    EXPECT_EQ(all.categoryInfo(), nullptr);
    EXPECT_EQ(all.phraseInfos().size(), 10);
    EXPECT_EQ(all.limitedTime(), 60.0F) << "a time of 0 or below means 60 seconds";
}

TEST_F(QuizSessionTest, TooFewPhrasesOrAnUnknownCategoryLeaveNothingToAnswer)
{
    for (const QString &id : {u"2"_s, u"99"_s}) {
        Listen2SelectVC quiz(random);
        quiz.setupQuiz(10, u"Unit Quiz"_s, id, 10);
        EXPECT_FALSE(quiz.hasQuestions());
        EXPECT_TRUE(quiz.inputPhraseInfos().isEmpty());
        EXPECT_FALSE(quiz.emptyText().isEmpty());
        quiz.viewDidLoad();
        EXPECT_FALSE(quiz.isCountingDown()) << "no countdown would end in a recorded session";
        for (int i = 0; i < 200; ++i)
            quiz.tick();
        quiz.selectOption(0);
        quiz.submitAction();
        quiz.playAction();
        EXPECT_FALSE(quiz.finished());
        EXPECT_TRUE(quiz.optionTexts().isEmpty());
    }
    EXPECT_EQ(quizCount(), 0);
    EXPECT_TRUE(players.requested.isEmpty());
}

TEST_F(QuizSessionTest, OptionsHoldTheQuestionOnceOrKeepADrawnPhraseOfEqualContent)
{
    // Every phrase of "3" reads "Hallo": the drawn four always hold a right one and stay as drawn.
    Listen2SelectVC same(random);
    same.setupQuiz(10, u"Unit Quiz"_s, u"3"_s, 60);
    same.viewDidLoad();
    QRandomGenerator replay(QuizCourse::seed);
    (void)randomPick(categoryPhrases(u"3"_s), 10, replay);
    EXPECT_EQ(same.currOptions(), randomPick(categoryPhrases(u"3"_s), 4, replay));

    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz.currIndex(), i);
        ASSERT_EQ(quiz.currOptions().size(), 4);
        const PhraseInfo *asked = quiz.phraseInfos().at(i);
        const auto withContent = std::count_if(
            quiz.currOptions().cbegin(), quiz.currOptions().cend(),
            [asked](const PhraseInfo *option) { return option->content == asked->content; });
        EXPECT_EQ(withContent, 1) << "question " << i;
        EXPECT_EQ(quiz.selectedOption(), -1) << "a new question starts unmarked";
        EXPECT_EQ(quiz.optionTexts().at(rightOption(quiz)), foreignText(*asked));
        quiz.selectOption(0);
        quiz.submitAction();
    }
}

TEST_F(QuizSessionTest, SelectingReplacesTheAnswerAndOnlySubmittingScores)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    const int right = rightOption(quiz);
    const int wrong = (right + 1) % 4;
    quiz.selectOption(right);
    quiz.selectOption(wrong);
    quiz.selectOption(7);
    EXPECT_EQ(quiz.selectedOption(), wrong);
    EXPECT_EQ(quiz.inputPhraseInfos().at(0), quiz.currOptions().at(wrong));
    quiz.selectOption(right);
    EXPECT_EQ(quiz.score(), 0);
    quiz.submitAction();
    EXPECT_EQ(quiz.score(), 10);
    EXPECT_EQ(quiz.progressText(), u"Progress: 1/10"_s);

    // Without a choice the empty answer is compared: no points, and the session moves on.
    quiz.submitAction();
    EXPECT_EQ(quiz.currIndex(), 2);
    EXPECT_EQ(quiz.score(), 10);
    EXPECT_EQ(quiz.progressText(), u"Progress: 2/10"_s);
    EXPECT_TRUE(foreignText(*quiz.inputPhraseInfos().at(1)).isEmpty());
}

TEST_F(QuizSessionTest, AnswersAreComparedIgnoringCaseOnly)
{
    const QList<PhraseInfo *> phrases = categoryPhrases(u"1"_s);
    const PhraseInfo &gutenTag = *phrases.at(0);
    EXPECT_TRUE(isRightAnswer(gutenTag, *phrases.at(1))) << "Guten Tag and guten tag";
    EXPECT_TRUE(isRightAnswer(*phrases.at(1), gutenTag));
    EXPECT_FALSE(isRightAnswer(gutenTag, *phrases.at(2))) << "a full stop more";
    PhraseInfo typed;
    typed.trans.insert(u"de"_s, u"GUTEN TAG"_s);
    EXPECT_TRUE(isRightAnswer(gutenTag, typed)) << "a typed answer is the placeholder's \"de\"";
    typed.trans.insert(u"de"_s, u"Guten  Tag"_s);
    EXPECT_FALSE(isRightAnswer(gutenTag, typed));
    EXPECT_FALSE(isRightAnswer(gutenTag, PhraseInfo()));
}

TEST_F(QuizSessionTest, FinalScoreColoursItsDigitsAndIsRecordedOnce)
{
    struct Case {
        int right;
        QColor colour;
    };
    const QList<Case> cases{{8, QColor::fromRgb(46, 139, 87)},
                            {5, QColor::fromRgb(199, 97, 20)},
                            {4, QColor::fromRgb(176, 23, 31)}};
    int total = 0;
    for (const Case &c : cases) {
        Listen2SelectVC quiz(random);
        quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
        quiz.viewDidLoad();
        QSignalSpy finished(&quiz, &BaseQuizViewController::finishedChanged);
        for (int i = 0; i < 10; ++i)
            answer(quiz, i < c.right);
        const QString points = QString::number(10 * c.right);
        EXPECT_EQ(quiz.scoreText(), u"Score: %1/100"_s.arg(points));
        EXPECT_EQ(quiz.scoreColor(), c.colour) << c.right;
        EXPECT_TRUE(quiz.scoreStyledText().contains(
            u"<font color=\"%1\">%2</font>/100"_s.arg(c.colour.name(), points)));
        EXPECT_EQ(quiz.progressText(), u"Progress: 10/10"_s);
        EXPECT_TRUE(quiz.finished());
        EXPECT_EQ(quiz.quizStatusText(), u"Over"_s);
        EXPECT_FALSE(quiz.isCountingDown());
        quiz.submitAction();
        quiz.tick();
        EXPECT_EQ(finished.count(), 1);
        total += 10 * c.right;
    }
    EXPECT_EQ(quizCount(), 3);
    EXPECT_EQ(quizTotal(), total);
}

TEST_F(QuizSessionTest, TenSecondCountdownShowsEachSecondAndEndsOnceAtZero)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 10);
    quiz.viewDidLoad();
    EXPECT_TRUE(quiz.isCountingDown());
    QStringList shown{quiz.limitedTimeText()};
    QObject::connect(&quiz, &BaseQuizViewController::limitedTimeTextChanged, &quiz,
                     [&] { shown.append(quiz.limitedTimeText()); });
    QSignalSpy finished(&quiz, &BaseQuizViewController::finishedChanged);
    int ticks = 0;
    while (!quiz.finished() && ticks < 200) {
        quiz.tick();
        ++ticks;
    }
    EXPECT_EQ(shown,
              (QStringList{u"00:10"_s, u"00:09"_s, u"00:08"_s, u"00:07"_s, u"00:06"_s, u"00:05"_s,
                           u"00:04"_s, u"00:03"_s, u"00:02"_s, u"00:01"_s, u"00:00"_s}));
    EXPECT_GE(ticks, 100);
    EXPECT_LE(ticks, 101);
    quiz.tick();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_FALSE(quiz.isCountingDown());
    EXPECT_EQ(quizCount(), 1);
    EXPECT_EQ(quizTotal(), 0);
}

TEST_F(QuizSessionTest, TimeOutKeepsTheUnsubmittedChoiceUnscoredAndRecordsTheSession)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 1);
    quiz.viewDidLoad();
    for (int i = 0; i < 3; ++i)
        answer(quiz, true);
    const int right = rightOption(quiz);
    quiz.selectOption(right);
    while (!quiz.finished())
        quiz.tick();

    EXPECT_EQ(quiz.score(), 30);
    EXPECT_EQ(quiz.progressText(), u"Progress: 3/10"_s);
    EXPECT_EQ(quizCount(), 1);
    EXPECT_EQ(quizTotal(), 30);
    const QuizResultModel &results = *quiz.results();
    ASSERT_EQ(results.rowCount(), 10) << "every question is listed";
    EXPECT_EQ(results.row(3).testText, foreignText(*quiz.currOptions().at(right)))
        << "the open question shows the choice it never earned points for";
    EXPECT_EQ(results.row(3).testTextColor, QuizResultModel::rightColor());
    for (int i = 4; i < 10; ++i) {
        EXPECT_EQ(results.row(i).testText, u"-"_s);
        EXPECT_EQ(results.row(i).testTextColor, QuizResultModel::wrongColor());
    }
}

TEST_F(QuizSessionTest, PhraseIsHeardAfterTheDelayAndAgainOnEveryPress)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    EXPECT_TRUE(players.requested.isEmpty()) << "the options come first";
    const QString first = soundPath(*quiz.phraseInfos().at(0));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !players.requested.isEmpty(); }, 3000));
    EXPECT_EQ(players.requested, QStringList{first});

    quiz.playAction();
    quiz.playAction();
    EXPECT_EQ(players.requested.size(), 3);
    ASSERT_NE(players.last, nullptr);
    EXPECT_TRUE(players.last->isPlaying());
    quiz.submitAction();
    EXPECT_FALSE(players.last->isPlaying()) << "submitting silences the phrase";

    // Answering the second question at once: its timer and the third's both play the third.
    quiz.submitAction();
    const QString third = soundPath(*quiz.phraseInfos().at(2));
    ASSERT_TRUE(QTest::qWaitFor([&] { return players.requested.size() == 5; }, 3000));
    EXPECT_EQ(players.requested.mid(3), (QStringList{third, third}));
}

TEST_F(QuizSessionTest, LeavingHalfWayRecordsNothingAndSilencesEverything)
{
    {
        Listen2SelectVC quiz(random);
        quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
        quiz.viewDidLoad();
        answer(quiz, true);
        quiz.playAction();
        ASSERT_NE(players.last, nullptr);
        quiz.viewWillDisappear();
        EXPECT_FALSE(quiz.isCountingDown());
        EXPECT_FALSE(players.last->isPlaying());
        QTest::qWait(1700);
        EXPECT_EQ(players.requested.size(), 1) << "the pending delayed play went with the screen";
    }
    {
        // Destroyed without being told, with its delayed play still pending.
        Listen2SelectVC quiz(random);
        quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
        quiz.viewDidLoad();
    }
    QTest::qWait(1700);
    EXPECT_EQ(players.requested.size(), 1);
    EXPECT_EQ(quizCount(), 0);
    EXPECT_EQ(quizTotal(), 0);
}
