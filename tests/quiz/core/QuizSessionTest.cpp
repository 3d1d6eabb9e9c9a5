#include "QuizCourse.h"
#include "quiz/Listen2SelectVC.h"
#include "quiz/QuizOutlineVC.h"
#include "quiz/wordorder/WordOrderAdjustVC.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using QuizSessionTest = QuizTest;

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

// Every quiz kind judges by this rule; the typed session checks capitals and full stops.
TEST(QuizAnswer, RightWhenTheGermanTextsDifferInCaseOnly)
{
    const QList<std::tuple<QString, QString, bool>> cases{{u"Äpfel süß"_s, u"äPFEL SÜß"_s, true},
                                                          {u"Guten Tag."_s, u"Guten Tag"_s, false},
                                                          {u"Guten Tag"_s, u"Guten  Tag"_s, false}};
    for (const auto &[expectedText, given, right] : cases) {
        PhraseInfo expected;
        expected.content = expectedText;
        PhraseInfo typed; // a typed answer holds its German text in its "de" entry
        typed.trans.insert(u"de"_s, given);
        EXPECT_EQ(isRightAnswer(expected, typed), right) << qPrintable(given);
    }
}

// A category too small for a quiz, or one the course lacks, must neither crash a quiz kind nor
// end in a recorded session.
TEST_F(QuizSessionTest, WithoutEnoughPhrasesNoKindAsksOrRecords)
{
    for (const QString &id : {u"2"_s, u"99"_s}) {
        Listen2SelectVC select(random);
        WordOrderAdjustVC order(random); // it reads the asked phrase itself on submit
        for (BaseQuizViewController *quiz : {static_cast<BaseQuizViewController *>(&select),
                                             static_cast<BaseQuizViewController *>(&order)}) {
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
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), 0);
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
    QStringList shown{quiz.limitedTimeText()};
    QObject::connect(&quiz, &BaseQuizViewController::limitedTimeTextChanged, &quiz,
                     [&] { shown.append(quiz.limitedTimeText()); });
    QSignalSpy finished(&quiz, &BaseQuizViewController::finishedChanged);
    for (int i = 0; i < 4; ++i) {
        quiz.selectOption(option(quiz, true));
        if (i < 3)
            quiz.submitAction();
    }
    int ticks = 0;
    for (; !quiz.finished() && ticks < 200; ++ticks)
        quiz.tick();
    EXPECT_EQ(shown,
              (QStringList{u"00:10"_s, u"00:09"_s, u"00:08"_s, u"00:07"_s, u"00:06"_s, u"00:05"_s,
                           u"00:04"_s, u"00:03"_s, u"00:02"_s, u"00:01"_s, u"00:00"_s}));
    EXPECT_GE(ticks, 100);
    EXPECT_LE(ticks, 101);
    EXPECT_FALSE(quiz.isCountingDown());
    EXPECT_EQ(quiz.progressText(), u"Progress: 3/10"_s);

    quiz.tick();
    quiz.submitAction();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), 1);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), 30);
    EXPECT_EQ(quiz.results()->row(9).testText, u"-"_s);
}

TEST_F(QuizSessionTest, AQuickAnswerHearsTheNextPhraseAndNothingIsHeardAfterLeaving)
{
    Listen2SelectVC quiz(random);
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    // Answered before the first phrase was heard: the first delay must not play a stale phrase.
    quiz.submitAction();
    const QString second = soundPath(*quiz.phraseInfos().at(1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return players.requested.size() == 2; }, 3000));
    EXPECT_EQ(players.requested, (QStringList{second, second}));

    // Leaving with a delayed play pending silences everything; so does a screen destroyed
    // without being told.
    quiz.playAction();
    quiz.submitAction();
    quiz.playAction();
    quiz.viewWillDisappear();
    EXPECT_FALSE(quiz.isCountingDown());
    ASSERT_NE(players.last, nullptr);
    EXPECT_FALSE(players.last->isPlaying());
    {
        Listen2SelectVC destroyed(random);
        destroyed.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
        destroyed.viewDidLoad();
    }
    QTest::qWait(1600);
    EXPECT_EQ(players.requested.size(), 4);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), 0);
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
