#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/CourseFixture.h"
#include "content/UserInfoFile.h"
#include "quiz/QuizAnswer.h"
#include "quiz/Word2WordVC.h"
#include "stubs/AudioPlayerStub.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// Category "1": ten phrases that read alike on purpose. "Guten Tag", "guten tag" and
/// "GUTEN TAG" differ in case only and each has its own translation; "Guten Morgen" and
/// "Guten Abend" share the translation "Good day" of "Guten Tag"; "Danke" has no translations.
void installCourse()
{
    static const CourseFixture course;
    static const bool installed = [] {
        const QList<std::pair<QString, QString>> texts{{u"Guten Tag"_s, u"Good day"_s},
                                                       {u"guten tag"_s, u"Hello"_s},
                                                       {u"GUTEN TAG"_s, u"Good afternoon"_s},
                                                       {u"Guten Morgen"_s, u"Good day"_s},
                                                       {u"Guten Abend"_s, u"Good day"_s},
                                                       {u"Danke"_s, QString()},
                                                       {u"Bitte"_s, u"Please"_s},
                                                       {u"Tschüss"_s, u"Bye"_s},
                                                       {u"Ja"_s, u"Yes"_s},
                                                       {u"Nein"_s, u"No"_s}};
        QJsonArray phrases;
        for (qsizetype i = 0; i < texts.size(); ++i) {
            QJsonObject phrase{{u"id"_s, 100 + i}, {u"txt"_s, texts.at(i).first}};
            if (!texts.at(i).second.isEmpty())
                phrase.insert(u"wTrans"_s, QJsonObject{{u"en"_s, texts.at(i).second}});
            phrases.append(phrase);
        }
        course.addCategory(1, u"Ähnlich"_s, {{u"en"_s, u"Alike"_s}}, phrases);
        setResourceRoot(course.root());
        return true;
    }();
    (void)installed;
}

class Word2WordTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        installCourse();
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        QSettings().clear();
        Preferences::instance().setLanguageType(u"en"_s);
    }

    /// A session of category "1" in the direction, showing its first question.
    void start(Word2WordVC &quiz, bool foreign2Mother)
    {
        quiz.setForeign2Mother(foreign2Mother);
        quiz.setupQuiz(10, u"Word Choice"_s, u"1"_s, 60);
        quiz.viewDidLoad();
    }

    [[nodiscard]] static const PhraseInfo &asked(const Word2WordVC &quiz)
    {
        return *quiz.phraseInfos().at(quiz.currIndex());
    }

    /// The first option for which the test holds, -1 when none does.
    template <typename Test>
    [[nodiscard]] static int optionWhere(const Word2WordVC &quiz, Test test)
    {
        for (int i = 0; i < quiz.currOptions().size(); ++i) {
            if (test(*quiz.currOptions().at(i)))
                return i;
        }
        return -1;
    }

    [[nodiscard]] static int rightOption(const Word2WordVC &quiz)
    {
        return optionWhere(quiz, [&](const PhraseInfo &option) { return &option == &asked(quiz); });
    }

    QRandomGenerator random{7};
    AudioPlayerStubFactory players;
};

} // namespace

TEST_F(Word2WordTest, AsksInTheMotherLanguageByDefaultAndOffersGermanTexts)
{
    Word2WordVC quiz(random);
    EXPECT_FALSE(quiz.foreign2Mother());
    start(quiz, false);
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(quiz.currIndex(), i);
        const PhraseInfo &phrase = asked(quiz);
        EXPECT_EQ(quiz.currText(), translation(phrase, u"en"_s));
        if (phrase.content == u"Danke"_s) {
            EXPECT_EQ(quiz.currText(), u"Danke"_s) << "no translation: its German text stands in";
        }
        QStringList german;
        for (const PhraseInfo *option : quiz.currOptions())
            german.append(foreignText(*option));
        EXPECT_EQ(quiz.optionTexts(), german);
        ASSERT_GE(rightOption(quiz), 0);
        // Every other answer is right; the wrong ones leave the choice out.
        if (i % 2 == 0)
            quiz.selectOption(rightOption(quiz));
        quiz.submitAction();
        if (i == 0) {
            EXPECT_EQ(quiz.score(), 10);
        }
    }
    ASSERT_TRUE(quiz.finished());
    EXPECT_EQ(quiz.score(), 50);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), 50);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizCount), 1);

    const QuizResultModel &results = *quiz.results();
    ASSERT_EQ(results.rowCount(), 10);
    EXPECT_EQ(results.row(0).srcText, foreignText(*quiz.phraseInfos().at(0)));
    EXPECT_EQ(results.row(0).testText, foreignText(*quiz.phraseInfos().at(0)))
        << "the answers read in German, as they were offered";
    EXPECT_EQ(results.row(0).testTextColor, QuizResultModel::rightColor());
    EXPECT_EQ(results.row(1).testText, u"-"_s);
    EXPECT_TRUE(players.requested.isEmpty()) << "nothing is heard during the questions";
}

TEST_F(Word2WordTest, AsksInGermanAndOffersMotherLanguageTextsUntilTheTimeIsUp)
{
    Word2WordVC quiz(random);
    start(quiz, true);
    for (int i = 0; i < 3; ++i) {
        const PhraseInfo &phrase = asked(quiz);
        EXPECT_EQ(quiz.currText(), foreignText(phrase));
        QStringList english;
        for (const PhraseInfo *option : quiz.currOptions())
            english.append(translation(*option, u"en"_s));
        EXPECT_EQ(quiz.optionTexts(), english);
        quiz.selectOption(rightOption(quiz));
        quiz.submitAction();
    }
    // The fourth question is marked but never submitted when the time runs out.
    const int marked = rightOption(quiz);
    quiz.selectOption(marked);
    QTest::qWait(1700);
    EXPECT_TRUE(players.requested.isEmpty()) << "no delayed play as in the listening quizzes";
    while (!quiz.finished())
        quiz.tick();

    EXPECT_EQ(quiz.score(), 30);
    EXPECT_EQ(userInfoInt(UserInfoKey::quizTotalScore), 30);
    const QuizResultModel &results = *quiz.results();
    ASSERT_EQ(results.rowCount(), 10);
    EXPECT_EQ(results.row(0).srcText, foreignText(*quiz.phraseInfos().at(0)));
    EXPECT_EQ(results.row(0).testText, translation(*quiz.phraseInfos().at(0), u"en"_s))
        << "the answers read in the mother language, as they were offered";
    EXPECT_EQ(results.row(3).testText, translation(*quiz.currOptions().at(marked), u"en"_s));
    EXPECT_EQ(results.row(9).testText, u"-"_s);

    quiz.playClickedItem(0);
    EXPECT_EQ(players.requested, QStringList{soundPath(*quiz.phraseInfos().at(0))})
        << "a result row is heard when tapped";
}

// Whatever the buttons show, an answer is right when its German text is the question's, ignoring
// case: another phrase of that text is right, a phrase that only translates alike is not.
TEST_F(Word2WordTest, JudgesByTheGermanTextWhateverTheOptionsShow)
{
    for (const bool foreign2Mother : {true, false}) {
        int sameGerman = 0;
        int sameTranslation = 0;
        for (int session = 0; session < 4; ++session) {
            Word2WordVC quiz(random);
            start(quiz, foreign2Mother);
            while (!quiz.finished()) {
                const PhraseInfo &phrase = asked(quiz);
                const int twin = optionWhere(quiz, [&](const PhraseInfo &option) {
                    return &option != &phrase &&
                           foreignText(option).toLower() == foreignText(phrase).toLower();
                });
                const int lookalike = optionWhere(quiz, [&](const PhraseInfo &option) {
                    return motherText(option) == motherText(phrase) &&
                           foreignText(option).toLower() != foreignText(phrase).toLower();
                });
                const int before = quiz.score();
                if (twin >= 0) {
                    quiz.selectOption(twin);
                    quiz.submitAction();
                    EXPECT_EQ(quiz.score(), before + 10)
                        << qPrintable(foreignText(phrase)) << " answered by "
                        << qPrintable(quiz.optionTexts().value(twin));
                    ++sameGerman;
                } else if (lookalike >= 0) {
                    quiz.selectOption(lookalike);
                    quiz.submitAction();
                    EXPECT_EQ(quiz.score(), before)
                        << qPrintable(foreignText(phrase)) << " answered by "
                        << qPrintable(foreignText(*quiz.currOptions().at(lookalike)));
                    ++sameTranslation;
                } else {
                    quiz.submitAction();
                }
            }
        }
        EXPECT_GT(sameGerman, 0) << "the draw offered no phrase of equal German text";
        EXPECT_GT(sameTranslation, 0) << "the draw offered no phrase of equal translation";
    }
}

TEST_F(Word2WordTest, DirectionIsFixedOnceTheFirstQuestionIsShown)
{
    Word2WordVC quiz(random);
    QSignalSpy changed(&quiz, &Word2WordVC::foreign2MotherChanged);
    quiz.setForeign2Mother(true);
    quiz.setForeign2Mother(true);
    EXPECT_EQ(changed.count(), 1);
    quiz.setupQuiz(10, u"Word Choice"_s, u"1"_s, 60);
    quiz.viewDidLoad();
    quiz.setForeign2Mother(false);
    EXPECT_TRUE(quiz.foreign2Mother());
    EXPECT_EQ(changed.count(), 1);
    quiz.submitAction();
    EXPECT_EQ(quiz.currText(), foreignText(asked(quiz)));
}
