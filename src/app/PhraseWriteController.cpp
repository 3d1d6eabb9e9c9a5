#include "PhraseWriteController.h"

#include "AppColors.h"
#include "UserRecord.h"

void PhraseWriteController::setWordText(const QString &text)
{
    if (text == m_wordText)
        return;
    m_wordText = text;
    Q_EMIT wordTextChanged();
    redo();
}

void PhraseWriteController::setInput(const QString &text)
{
    if (submitted() || text == m_input)
        return;
    m_input = text;
    Q_EMIT inputChanged();
}

QColor PhraseWriteController::inputColor() const
{
    switch (m_verdict) {
    case Verdict::Right:
        return rightColor();
    case Verdict::Wrong:
        return wrongColor();
    case Verdict::Unchecked:
        break;
    }
    return AppColors::text();
}

void PhraseWriteController::submit()
{
    if (submitted())
        return;
    const bool right = m_input.toLower() == m_wordText.toLower();
    if (right)
        incrementUserInfoCounter(UserInfoKey::writeCount);
    setVerdict(right ? Verdict::Right : Verdict::Wrong);
}

void PhraseWriteController::redo()
{
    setVerdict(Verdict::Unchecked);
    setInput(QString());
}

void PhraseWriteController::setVerdict(Verdict verdict)
{
    if (verdict == m_verdict)
        return;
    m_verdict = verdict;
    Q_EMIT verdictChanged();
}
