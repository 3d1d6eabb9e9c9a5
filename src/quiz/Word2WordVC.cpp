#include "Word2WordVC.h"

#include "QuizAnswer.h"
#include "QuizLog.h"
#include "content/AppCommon.h"

Word2WordVC::Word2WordVC(QObject *parent)
    : BaseQuizViewController(parent)
{}

Word2WordVC::Word2WordVC(QRandomGenerator &random, QObject *parent)
    : BaseQuizViewController(random, parent)
{}

void Word2WordVC::setForeign2Mother(bool foreign2Mother)
{
    if (m_foreign2Mother == foreign2Mother)
        return;
    if (m_asking) {
        VoLog::write(lcQuiz(), VoLog::Error,
                     QStringLiteral("The direction of a translation quiz cannot change once it "
                                    "has begun"));
        return;
    }
    m_foreign2Mother = foreign2Mother;
    Q_EMIT foreign2MotherChanged();
}

void Word2WordVC::showCurrentQuestion()
{
    m_asking = true;
    PhraseInfo &phrase = *phraseInfos().at(currIndex());
    setCurrText(m_foreign2Mother ? foreignText(phrase) : motherText(phrase));
    // The options read in the language the learner answers in.
    fillOptions(phrase, m_foreign2Mother);
}

void Word2WordVC::finishQuiz()
{
    BaseQuizViewController::finishQuiz();
    showResults(m_foreign2Mother);
}
