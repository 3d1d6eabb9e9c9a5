#include "Listen2SelectVC.h"

Listen2SelectVC::Listen2SelectVC(QObject *parent)
    : BaseQuizViewController(parent)
{}

Listen2SelectVC::Listen2SelectVC(QRandomGenerator &random, QObject *parent)
    : BaseQuizViewController(random, parent)
{}

void Listen2SelectVC::submitAction()
{
    stopAudio();
    checkCurrentAnswer();
}

void Listen2SelectVC::showCurrentQuestion()
{
    fillOptions(*phraseInfos().at(currIndex()), false);
    playActionLater();
}

void Listen2SelectVC::finishQuiz()
{
    BaseQuizViewController::finishQuiz();
    showResults(false);
}
