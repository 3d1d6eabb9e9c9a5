#include "Listen2WriteVC.h"

Listen2WriteVC::Listen2WriteVC(QObject *parent)
    : BaseQuizViewController(parent)
{}

Listen2WriteVC::Listen2WriteVC(QRandomGenerator &random, QObject *parent)
    : BaseQuizViewController(random, parent)
{}

void Listen2WriteVC::setTextField(const QString &text)
{
    if (m_textField == text)
        return;
    m_textField = text;
    Q_EMIT textFieldChanged();
}

void Listen2WriteVC::submitAction()
{
    if (finished() || !hasQuestions())
        return;
    stopAudio();
    // As typed: the comparison ignores case only, so spaces and punctuation must stay.
    setTypedAnswer(m_textField);
    checkCurrentAnswer();
    if (!finished())
        Q_EMIT textFieldFocusRequested();
}

void Listen2WriteVC::showCurrentQuestion()
{
    setTextField(QString());
    playActionLater();
}

void Listen2WriteVC::finishQuiz()
{
    BaseQuizViewController::finishQuiz();
    showResults(false);
}
