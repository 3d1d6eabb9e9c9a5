#pragma once

#include "app/Preferences.h"
#include "app/UserRecord.h"
#include "content/CourseFixture.h"
#include "content/UserInfoFile.h"
#include "quiz/BaseQuizViewController.h"
#include "quiz/QuizAnswer.h"
#include "stubs/AudioPlayerStub.h"

#include <QSettings>
#include <functional>

/// The content for the whole program: "1" has "Guten Tag", "guten tag", "Guten Tag." and 9 more;
/// "2" is too small for a quiz; "4" has five spellings of "Guten Tag" and four "Fine"s.
class QuizCourse {
public:
    static void install()
    {
        static const CourseFixture course;
        static const bool installed = [] {
            const auto category = [](int id, const QString &name, const QString &english, int first,
                                     const QStringList &texts,
                                     const std::function<QString(int)> &translate) {
                QJsonArray phrases;
                for (int i = 0; i < texts.size(); ++i) {
                    QJsonObject phrase{{u"id"_s, first + i}, {u"txt"_s, texts.at(i)}};
                    if (const QString text = translate(i); !text.isEmpty())
                        phrase.insert(u"wTrans"_s, QJsonObject{{u"en"_s, text}});
                    phrases.append(phrase);
                }
                course.addCategory(id, name, {{u"en"_s, english}}, phrases);
            };
            QStringList twelve{u"Guten Tag"_s, u"guten tag"_s, u"Guten Tag."_s};
            for (int i = 3; i < 12; ++i)
                twelve.append(u"Satz %1"_s.arg(i));
            category(1, u"Zwölf"_s, u"Twelve"_s, 100, twelve,
                     [](int i) { return u"Sentence %1"_s.arg(i); });
            category(2, u"Wenige"_s, u"Few"_s, 200, {u"Wenig 0"_s, u"Wenig 1"_s, u"Wenig 2"_s},
                     [](int) { return QString(); });
            category(4, u"Ähnlich"_s, u"Alike"_s, 400,
                     {u"Guten Tag"_s, u"guten tag"_s, u"GUTEN TAG"_s, u"Guten tag"_s,
                      u"guten Tag"_s, u"Ja"_s, u"Gut"_s, u"Schön"_s, u"Prima"_s, u"Danke"_s},
                     [](int i) {
                         return i < 5 ? u"Hello %1"_s.arg(i) : i < 9 ? u"Fine"_s : QString();
                     });
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

class QuizTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QuizCourse::install();
        ASSERT_TRUE(writeUserInfo(initialUserInfo()));
        QSettings().clear();
        Preferences::instance().setLanguageType(u"en"_s);
    }

    QRandomGenerator random{7}; // a draw that asks the cases the tests need
    AudioPlayerStubFactory players;
};
