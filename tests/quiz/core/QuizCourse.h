#pragma once

#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/CourseFixture.h"
#include "content/UserInfoFile.h"
#include "quiz/BaseQuizViewController.h"
#include "quiz/QuizAnswer.h"
#include "stubs/AudioPlayerStub.h"

#include <QSettings>

/// A course made for quizzes, installed as the app's content for the whole test program:
/// "1" holds 12 phrases, among them "Guten Tag" and "guten tag" (equal but for case) and
/// "Guten Tag." (a full stop more); "2" holds 3 phrases, too few for a quiz; "3" holds 10
/// phrases of one content, "Hallo".
class QuizCourse {
public:
    static constexpr int seed = 7;

    static void install()
    {
        static const CourseFixture course;
        static const bool installed = [] {
            QJsonArray twelve;
            const QStringList special{u"Guten Tag"_s, u"guten tag"_s, u"Guten Tag."_s};
            for (int i = 0; i < 12; ++i) {
                const QString text = i < special.size() ? special.at(i) : u"Satz %1"_s.arg(i);
                twelve.append(
                    QJsonObject{{u"id"_s, 100 + i},
                                {u"txt"_s, text},
                                {u"wTrans"_s, QJsonObject{{u"en"_s, u"Sentence %1"_s.arg(i)}}}});
            }
            course.addCategory(1, u"Zwölf"_s, {{u"en"_s, u"Twelve"_s}}, twelve);
            QJsonArray three;
            for (int i = 0; i < 3; ++i)
                three.append(QJsonObject{{u"id"_s, 200 + i}, {u"txt"_s, u"Wenig %1"_s.arg(i)}});
            course.addCategory(2, u"Wenige"_s, {{u"en"_s, u"Few"_s}}, three);
            QJsonArray same;
            for (int i = 0; i < 10; ++i)
                same.append(QJsonObject{{u"id"_s, 300 + i}, {u"txt"_s, u"Hallo"_s}});
            course.addCategory(3, u"Gleich"_s, {{u"en"_s, u"Same"_s}}, same);
            setResourceRoot(course.root());
            return true;
        }();
        (void)installed;
    }
};

/// The slot of an option whose German text is the question's, -1 when none is.
inline int rightOption(const BaseQuizViewController &quiz)
{
    const PhraseInfo &asked = *quiz.phraseInfos().at(quiz.currIndex());
    for (int i = 0; i < quiz.currOptions().size(); ++i) {
        if (isRightAnswer(asked, *quiz.currOptions().at(i)))
            return i;
    }
    return -1;
}

/// Answers the current question right (true) or submits it without a choice (false).
inline void answer(BaseQuizViewController &quiz, bool right)
{
    if (right) {
        const int slot = rightOption(quiz);
        ASSERT_GE(slot, 0);
        quiz.selectOption(slot);
    }
    quiz.submitAction();
}

/// A fresh record and English as the learner's language before each test.
class QuizTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QuizCourse::install();
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        QSettings().clear();
        Preferences::instance().setLanguageType(u"en"_s);
    }

    static qint64 quizCount() { return userInfoInt(UserInfoKey::quizCount); }
    static qint64 quizTotal() { return userInfoInt(UserInfoKey::quizTotalScore); }

    QRandomGenerator random{QuizCourse::seed};
    AudioPlayerStubFactory players;
};
