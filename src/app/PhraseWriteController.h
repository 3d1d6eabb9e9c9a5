#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/**
 * @brief The writing pop-up of the phrase cards: the learner types a phrase, submits it, and
 * sees the phrase beside the input, coloured by whether it matched.
 *
 * The check is deliberately strict: both texts lower-cased and compared whole, without trimming
 * and without tolerance for punctuation. Only a match counts towards the learner's writing
 * experience. Once submitted, the input is frozen until redo().
 */
class PhraseWriteController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString wordText READ wordText WRITE setWordText NOTIFY wordTextChanged)
    Q_PROPERTY(QString input READ input WRITE setInput NOTIFY inputChanged)
    Q_PROPERTY(Verdict verdict READ verdict NOTIFY verdictChanged)
    Q_PROPERTY(bool submitted READ submitted NOTIFY verdictChanged)
    Q_PROPERTY(QColor inputColor READ inputColor NOTIFY verdictChanged)

public:
    enum class Verdict { Unchecked, Right, Wrong };
    Q_ENUM(Verdict)

    using QObject::QObject;

    [[nodiscard]] static QColor rightColor() { return QColor::fromRgb(0, 150, 40); }
    [[nodiscard]] static QColor wrongColor() { return QColor::fromRgb(210, 20, 20); }

    /// The phrase to write, in German. A new phrase starts a fresh attempt.
    [[nodiscard]] QString wordText() const { return m_wordText; }
    void setWordText(const QString &text);
    [[nodiscard]] QString input() const { return m_input; }
    /// Ignored once submitted: the input is frozen then.
    void setInput(const QString &text);
    [[nodiscard]] Verdict verdict() const { return m_verdict; }
    [[nodiscard]] bool submitted() const { return m_verdict != Verdict::Unchecked; }
    /// Green for a match, red for a miss, the usual text colour before the check.
    [[nodiscard]] QColor inputColor() const;

    /// Checks the input once; a second submit before redo() changes nothing.
    Q_INVOKABLE void submit();
    /// Clears the input for another attempt at the same phrase.
    Q_INVOKABLE void redo();

Q_SIGNALS:
    void wordTextChanged();
    void inputChanged();
    void verdictChanged();

private:
    void setVerdict(Verdict verdict);

    QString m_wordText;
    QString m_input;
    Verdict m_verdict{Verdict::Unchecked};
};
