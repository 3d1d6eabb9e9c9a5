#include "WordOrderAdjustVC.h"

#include "content/AppCommon.h"
#include "content/ContentModel.h"

WordOrderAdjustVC::WordOrderAdjustVC(QObject *parent)
    : BaseQuizViewController(parent)
{}

WordOrderAdjustVC::WordOrderAdjustVC(QRandomGenerator &random, QObject *parent)
    : BaseQuizViewController(random, parent)
{}

void WordOrderAdjustVC::submitAction()
{
    if (finished() || !hasQuestions())
        return;
    // The session scores an answer by the phrase's whole text, punctuation included, while here
    // only the words count. A right order is therefore kept as the phrase's own text, which the
    // session and the result table both take as right; a wrong one is kept as it stands.
    const PhraseInfo &asked = *phraseInfos().at(currIndex());
    setTypedAnswer(m_wordOrderAdjustView.isAnswerRight() ? foreignText(asked)
                                                         : m_wordOrderAdjustView.answerText());
    checkCurrentAnswer();
}

void WordOrderAdjustVC::showCurrentQuestion()
{
    m_wordOrderAdjustView.setPhrase(phraseInfos().at(currIndex())->content, random());
}

void WordOrderAdjustVC::finishQuiz()
{
    BaseQuizViewController::finishQuiz();
    m_wordOrderAdjustView.clear();
    showResults(false);
}
