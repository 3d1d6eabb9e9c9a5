#pragma once

#include "BaseQuizViewController.h"

/**
 * @brief "Listen And Write": the learner hears a phrase and types its German text.
 *
 * The phrase is heard 1.5 seconds after each question appears and again at every press of the
 * loudspeaker. Submit and the return key both take the field's text exactly as it stands (no
 * trimming, punctuation kept) as the answer, and ask for the field's focus again so that the
 * keyboard stays up for the next question. Text typed but never submitted is no answer.
 */
class Listen2WriteVC : public BaseQuizViewController {
    Q_OBJECT
    QML_ELEMENT
    /// What stands in the answer field; emptied for every question.
    Q_PROPERTY(QString textField READ textField WRITE setTextField NOTIFY textFieldChanged)

public:
    explicit Listen2WriteVC(QObject *parent = nullptr);
    explicit Listen2WriteVC(QRandomGenerator &random, QObject *parent = nullptr);

    [[nodiscard]] const QString &textField() const { return m_textField; }
    void setTextField(const QString &text);

    /// Stores the field's text as the answer, scores it and moves on.
    void submitAction() override;

Q_SIGNALS:
    void textFieldChanged();
    /// The answer field should take the keyboard again: the next question is waiting.
    void textFieldFocusRequested();

protected:
    void showCurrentQuestion() override;
    void finishQuiz() override;

private:
    QString m_textField;
};
