#include "QuizCourse.h"
#include "quiz/Listen2SelectVC.h"

#include <gtest/gtest.h>

namespace {

using QuizResultsTest = QuizTest;

/// A session of category "1" played to its end: the first question right, the second answered
/// with a wrong option, the rest left without a choice.
void playOut(BaseQuizViewController &quiz)
{
    quiz.setupQuiz(10, u"Unit Quiz"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    for (int i = 0; i < 10; ++i) {
        if (i == 0)
            quiz.selectOption(rightOption(quiz));
        if (i == 1)
            quiz.selectOption((rightOption(quiz) + 1) % 4);
        quiz.submitAction();
    }
}

QVariant role(const QuizResultModel &model, int row, QuizResultModel::Role r)
{
    return model.data(model.index(row), r);
}

} // namespace

TEST_F(QuizResultsTest, RowsShowPhraseTranslationAndTheColouredAnswer)
{
    Listen2SelectVC quiz(random);
    playOut(quiz);
    const QuizResultModel &results = *quiz.results();
    ASSERT_EQ(results.rowCount(), 10);
    const PhraseInfo &first = *quiz.phraseInfos().at(0);
    EXPECT_EQ(role(results, 0, QuizResultModel::SrcTextRole).toString(), foreignText(first));
    EXPECT_EQ(role(results, 0, QuizResultModel::RightTextRole).toString(),
              translation(first, u"en"_s));
    EXPECT_TRUE(role(results, 0, QuizResultModel::RightTextShownRole).toBool());
    EXPECT_EQ(role(results, 0, QuizResultModel::TestTextColorRole).value<QColor>(),
              QuizResultModel::rightColor());
    EXPECT_EQ(results.row(1).testText, foreignText(*quiz.inputPhraseInfos().at(1)));
    EXPECT_EQ(results.row(1).testTextColor, QuizResultModel::wrongColor());
    EXPECT_EQ(results.row(2).testText, u"-"_s);
    EXPECT_EQ(results.row(2).testTextColor, QuizResultModel::wrongColor());
    EXPECT_EQ(role(results, 2, QuizResultModel::RowColorRole).value<QColor>(), QColor(Qt::white));
}

TEST_F(QuizResultsTest, DirectionAndGermanLearnersChangeWhatRowsShow)
{
    const QList<PhraseInfo *> phrases = *loadPhrases(u"1"_s);
    // The translation quiz from German shows answers in the mother language, still judged by
    // their German texts: "guten tag" answers "Guten Tag" although its translation differs.
    const auto row = QuizResultModel::setResult(*phrases.at(0), *phrases.at(1), true);
    EXPECT_EQ(row.testText, u"Sentence 1"_s);
    EXPECT_EQ(row.testTextColor, QuizResultModel::rightColor());

    Preferences::instance().setLanguageType(u"de"_s);
    QuizResultModel model;
    model.setResults(phrases.mid(0, 2), phrases.mid(2, 2), false);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_FALSE(role(model, 0, QuizResultModel::RightTextShownRole).toBool());
    EXPECT_EQ(model.row(0).testText, u"Guten Tag."_s);
    EXPECT_EQ(model.row(0).testTextColor, QuizResultModel::wrongColor());
}

TEST_F(QuizResultsTest, RowsAreAnEleventhOfTheTableButNotBelowTheBound)
{
    Listen2SelectVC english(random);
    EXPECT_EQ(english.minRowH(), 100.0);
    english.setResultTableHeight(440);
    EXPECT_EQ(english.resultRowH(), 100.0);
    english.setResultTableHeight(2200);
    EXPECT_EQ(english.resultRowH(), 200.0);

    Preferences::instance().setLanguageType(u"de"_s);
    Listen2SelectVC german(random);
    EXPECT_EQ(german.minRowH(), 80.0);
    german.setResultTableHeight(440);
    EXPECT_EQ(german.resultRowH(), 80.0) << "440 / 11 = 40 is below the bound";
}

TEST_F(QuizResultsTest, TappedRowIsHighlightedWhileItsPhrasePlays)
{
    Listen2SelectVC quiz(random);
    playOut(quiz);
    const QuizResultModel &results = *quiz.results();
    const qsizetype before = players.requested.size();

    quiz.playClickedItem(4);
    EXPECT_EQ(players.requested.mid(before), QStringList{soundPath(*quiz.phraseInfos().at(4))});
    EXPECT_EQ(results.rowColor(4), BaseQuizViewController::playingRowColor());
    EXPECT_EQ(quiz.currPlayItemView(), 4);

    // Another row takes the highlight; the first gets its colour back.
    quiz.playClickedItem(6);
    EXPECT_EQ(results.rowColor(4), QColor(Qt::white));
    EXPECT_EQ(results.rowColor(6), BaseQuizViewController::playingRowColor());
    ASSERT_NE(players.last, nullptr);
    players.last->finishPlaying();
    EXPECT_EQ(results.rowColor(6), QColor(Qt::white));
    EXPECT_EQ(quiz.currPlayItemView(), -1);

    // A phrase without a recording plays nothing and leaves no row highlighted.
    players.unplayable.append(soundPath(*quiz.phraseInfos().at(7)));
    quiz.playClickedItem(7);
    EXPECT_EQ(results.rowColor(7), QColor(Qt::white));
    quiz.playClickedItem(10);
    quiz.playClickedItem(-1);
    EXPECT_EQ(quiz.currPlayItemView(), -1);
}
