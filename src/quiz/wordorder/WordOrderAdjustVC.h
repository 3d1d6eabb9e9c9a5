#pragma once

#include "WordOrderBoard.h"
#include "quiz/BaseQuizViewController.h"

/**
 * @brief "Reorder Words": the words of a phrase are shown shuffled and the learner drags them
 * back into order.
 *
 * Each question gets a fresh shuffle from the session's random source. An answer is right when
 * the words as they stand, joined by blanks, equal the phrase's words in order, ignoring case:
 * punctuation is not part of any word, so it cannot cost points, and copies of a repeated word
 * are interchangeable.
 */
class WordOrderAdjustVC : public BaseQuizViewController {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WordOrderBoard *wordOrderAdjustView READ wordOrderAdjustView CONSTANT)

public:
    explicit WordOrderAdjustVC(QObject *parent = nullptr);
    explicit WordOrderAdjustVC(QRandomGenerator &random, QObject *parent = nullptr);

    /// Takes the words as they stand as the answer, scores it and moves on.
    void submitAction() override;

    [[nodiscard]] WordOrderBoard *wordOrderAdjustView() { return &m_wordOrderAdjustView; }

protected:
    void showCurrentQuestion() override;
    void finishQuiz() override;

private:
    WordOrderBoard m_wordOrderAdjustView;
};
