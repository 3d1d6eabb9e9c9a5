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
/// "Guten Tag." (a full stop more); "2" holds 3 phrases, too few for a quiz; "4" holds 10
/// phrases that read alike: five spellings of "Guten Tag" differing in case only, each with
/// its own translation, four German texts all translated "Fine", and "Danke" without any.
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
            const QStringList alike{u"Guten Tag"_s, u"guten tag"_s, u"GUTEN TAG"_s, u"Guten tag"_s,
                                    u"guten Tag"_s, u"Ja"_s,        u"Gut"_s,       u"Schön"_s,
                                    u"Prima"_s,     u"Danke"_s};
            QJsonArray four;
            for (int i = 0; i < 10; ++i) {
                QJsonObject phrase{{u"id"_s, 400 + i}, {u"txt"_s, alike.at(i)}};
                if (i < 9)
                    phrase.insert(u"wTrans"_s,
                                  QJsonObject{{u"en"_s, i < 5 ? u"Hello %1"_s.arg(i) : u"Fine"_s}});
                four.append(phrase);
            }
            course.addCategory(4, u"Ähnlich"_s, {{u"en"_s, u"Alike"_s}}, four);
            setResourceRoot(course.root());
            // The store opens one course per process: open it before any AppWindow does.
            (void)allPhrases();
            return true;
        }();
        (void)installed;
    }
};

/// The first option whose German text is the question's (same) or differs from it even
/// ignoring case (!same), -1 when none does: found without the rule under test.
inline int option(const BaseQuizViewController &quiz, bool same)
{
    const QString asked = quiz.phraseInfos().at(quiz.currIndex())->content;
    for (int i = 0; i < quiz.currOptions().size(); ++i) {
        const QString &text = quiz.currOptions().at(i)->content;
        if (same ? text == asked : text.compare(asked, Qt::CaseInsensitive) != 0)
            return i;
    }
    return -1;
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

    QRandomGenerator random{QuizCourse::seed};
    AudioPlayerStubFactory players;
};
