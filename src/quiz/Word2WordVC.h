#pragma once

#include "BaseQuizViewController.h"

/**
 * @brief The translation quizzes: the learner reads a phrase in one language and picks its
 * translation among four, "Foreign Language -> Mother Language" when foreign2Mother is set,
 * "Mother Language -> Foreign Language" otherwise.
 *
 * Whatever the direction, an answer is right when its German text is the question's (ignoring
 * case), so two options that read alike in the mother language are not both right, and two
 * phrases of one German text both are. Nothing is heard during the questions; a result row
 * plays its phrase when tapped.
 */
class Word2WordVC : public BaseQuizViewController {
    Q_OBJECT
    QML_ELEMENT
    /// Fixed once the first question is shown, so that questions and results agree.
    Q_PROPERTY(bool foreign2Mother READ foreign2Mother WRITE setForeign2Mother NOTIFY
                   foreign2MotherChanged)

public:
    explicit Word2WordVC(QObject *parent = nullptr);
    explicit Word2WordVC(QRandomGenerator &random, QObject *parent = nullptr);

    [[nodiscard]] bool foreign2Mother() const { return m_foreign2Mother; }
    void setForeign2Mother(bool foreign2Mother);

Q_SIGNALS:
    void foreign2MotherChanged();

protected:
    void showCurrentQuestion() override;
    void finishQuiz() override;

private:
    bool m_foreign2Mother{false};
    bool m_asking{false};
};
