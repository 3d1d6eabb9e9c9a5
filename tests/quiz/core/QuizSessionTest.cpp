#include "QuizCourse.h"
#include "quiz/Listen2SelectVC.h"
#include "quiz/wordorder/WordOrderAdjustVC.h"

#include <QSignalSpy>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>

namespace {

using QuizSessionTest = QuizTest;

} // namespace

// Every quiz kind scores by this rule and colours its results by it.
TEST(QuizAnswer, RightWhenTheGermanTextsDifferInCaseOnly)
{
    struct Case {
        QString expected;
        QString given;
        bool right;
    };
    const QList<Case> cases{
        {u"Guten Tag"_s, u"GUTEN TAG"_s, true},   {u"Äpfel süß"_s, u"äPFEL SÜß"_s, true},
        {u"Guten Tag."_s, u"Guten Tag"_s, false}, {u"Guten Tag"_s, u"Guten  Tag"_s, false},
        {u"Guten Tag"_s, u"Guten Tag "_s, false}, {u"Guten Tag"_s, QString(), false}};
    for (const Case &c : cases) {
        PhraseInfo expected;
        expected.content = c.expected;
        // A typed answer is a phrase whose German text is in its "de" entry.
        PhraseInfo typed;
        typed.trans.insert(u"de"_s, c.given);
        EXPECT_EQ(isRightAnswer(expected, typed), c.right) << qPrintable(c.given);
    }
}

TEST_F(QuizSessionTest, OptionsAreFourDifferentTextsAmongThemTheQuestionsAndStartUnmarked)
{
    for (int session = 0; session < 3; ++session) {
        Listen2SelectVC quiz(random);
        quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
        quiz.viewDidLoad();
        for (int i = 0; i < 10; ++i) {
            const QStringList texts = quiz.optionTexts();
            EXPECT_EQ(QSet<QString>(texts.cbegin(), texts.cend()).size(), 4)
                << qPrintable(texts.join(u'|'));
            EXPECT_TRUE(texts.contains(quiz.phraseInfos().at(i)->content));
            EXPECT_EQ(quiz.selectedOption(), -1);
            quiz.selectOption(0);
            quiz.submitAction();
        }
    }
}

// A category too small for a quiz, or one the course lacks, must neither crash a quiz kind nor
// end in a recorded session.
TEST_F(QuizSessionTest, WithoutEnoughPhrasesNoKindAsksOrRecords)
{
    // Word order's submit reads the asked phrase itself; the other kinds submit as the session.
    const QList<std::function<std::unique_ptr<BaseQuizViewController>()>> kinds{
        [this] { return std::make_unique<Listen2SelectVC>(random); },
        [this] {
            return std::make_unique<WordOrderAdjustVC>(random);
        }};
    for (const auto &make : kinds) {
        for (const QString &id : {u"2"_s, u"99"_s}) {
            const std::unique_ptr<BaseQuizViewController> quiz = make();
            quiz->setupQuiz(10, u"Unit Quiz"_s, id, 10);
            EXPECT_FALSE(quiz->hasQuestions());
            EXPECT_FALSE(quiz->emptyText().isEmpty());
            quiz->viewDidLoad();
            EXPECT_FALSE(quiz->isCountingDown());
            for (int i = 0; i < 101; ++i)
                quiz->tick();
            quiz->selectOption(0);
            quiz->submitAction();
            quiz->playAction();
            EXPECT_FALSE(quiz->finished());
        }
    }
    EXPECT_EQ(quizCount(), 0);
    EXPECT_TRUE(players.requested.isEmpty());

    // A damaged time setting falls back to a minute.
    Listen2SelectVC all(random);
    all.setupQuiz(10, u"Quizzes"_s, QString(), -5);
    EXPECT_EQ(all.limitedTimeText(), u"01:00"_s);
}

TEST_F(QuizSessionTest, CountdownShowsEachSecondAndTheTimeOutRecordsOnlySubmittedAnswers)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 10);
    quiz.viewDidLoad();
    EXPECT_TRUE(quiz.isCountingDown());
    QStringList shown{quiz.limitedTimeText()};
    QObject::connect(&quiz, &BaseQuizViewController::limitedTimeTextChanged, &quiz,
                     [&] { shown.append(quiz.limitedTimeText()); });
    QSignalSpy finished(&quiz, &BaseQuizViewController::finishedChanged);
    for (int i = 0; i < 4; ++i) {
        quiz.selectOption(askedOption(quiz));
        if (i < 3)
            quiz.submitAction();
    }
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
    EXPECT_FALSE(quiz.isCountingDown());
    EXPECT_EQ(quiz.progressText(), u"Progress: 3/10"_s);

    // Nothing counts twice after the end.
    quiz.tick();
    quiz.submitAction();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(quizCount(), 1);
    EXPECT_EQ(quizTotal(), 30);
    EXPECT_EQ(quiz.results()->row(9).testText, u"-"_s);
}

TEST_F(QuizSessionTest, PhraseIsHeardAfterTheDelayOnEveryPressAndNeverAfterLeaving)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    EXPECT_TRUE(players.requested.isEmpty()) << "the options come first";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !players.requested.isEmpty(); }, 3000));
    EXPECT_EQ(players.requested, QStringList{soundPath(*quiz.phraseInfos().at(0))});
    quiz.playAction();
    quiz.playAction();
    EXPECT_EQ(players.requested.size(), 3);
    ASSERT_NE(players.last, nullptr);
    quiz.submitAction();
    EXPECT_FALSE(players.last->isPlaying()) << "submitting silences the phrase";

    // Answering the second question at once: its timer and the third's both play the third.
    quiz.submitAction();
    const QString third = soundPath(*quiz.phraseInfos().at(2));
    ASSERT_TRUE(QTest::qWaitFor([&] { return players.requested.size() == 5; }, 3000));
    EXPECT_EQ(players.requested.mid(3), (QStringList{third, third}));

    // Leaving with a delayed play pending silences everything; so does a screen destroyed
    // without being told.
    quiz.playAction();
    quiz.submitAction();
    quiz.playAction();
    quiz.viewWillDisappear();
    EXPECT_FALSE(quiz.isCountingDown());
    EXPECT_FALSE(players.last->isPlaying());
    {
        Listen2SelectVC destroyed(random);
        destroyed.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
        destroyed.viewDidLoad();
    }
    QTest::qWait(1700);
    EXPECT_EQ(players.requested.size(), 7);
    EXPECT_EQ(quizCount(), 0);
}

TEST_F(QuizSessionTest, RowsAreAnEleventhOfTheTableAndGermanLearnersSeeNoTranslation)
{
    Listen2SelectVC english(random);
    english.setResultTableHeight(2200);
    EXPECT_EQ(english.resultRowH(), 200.0);
    english.setResultTableHeight(440);
    EXPECT_EQ(english.resultRowH(), 100.0) << "440 / 11 = 40 is below the bound";

    Preferences::instance().setLanguageType(u"de"_s);
    Listen2SelectVC german(random);
    german.setResultTableHeight(440);
    EXPECT_EQ(german.resultRowH(), 80.0);
    german.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
    german.viewDidLoad();
    while (!german.finished())
        german.submitAction();
    const QuizResultModel &results = *german.results();
    EXPECT_FALSE(results.data(results.index(0), QuizResultModel::RightTextShownRole).toBool());
}
