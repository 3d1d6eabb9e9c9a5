#pragma once

#include "BaseQuizViewController.h"

/**
 * @brief "Listen And Select": the learner hears a phrase and picks its German text among four.
 *
 * The phrase is heard 1.5 seconds after its options appear and again at every press of the
 * loudspeaker; submitting silences it. At the end the result table compares the German texts.
 */
class Listen2SelectVC : public BaseQuizViewController {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit Listen2SelectVC(QObject *parent = nullptr);
    explicit Listen2SelectVC(QRandomGenerator &random, QObject *parent = nullptr);

    void submitAction() override;

protected:
    void showCurrentQuestion() override;
    void finishQuiz() override;
};
