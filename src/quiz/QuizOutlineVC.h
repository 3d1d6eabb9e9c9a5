#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/**
 * @brief The quiz menu: one button per quiz kind, for one category ("Unit Quiz") or for the
 * whole course ("Quizzes").
 *
 * A button is a tag and its title; quizClicked() says which screen the tag opens and with what.
 * When the mother language is German, the kinds that translate are left out.
 */
class QuizOutlineVC : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString categoryId READ categoryId WRITE setCategory NOTIFY categoryChanged)
    Q_PROPERTY(QString titleText READ titleText NOTIFY categoryChanged)
    Q_PROPERTY(QVariantList buttons READ buttons NOTIFY buttonsChanged)

public:
    explicit QuizOutlineVC(QObject *parent = nullptr);

    /// The category quizzed; empty for all phrases.
    [[nodiscard]] const QString &categoryId() const { return m_categoryId; }
    void setCategory(const QString &categoryId);
    [[nodiscard]] QString titleText() const;
    /// {"tag", "title"} of each button, top to bottom.
    [[nodiscard]] QVariantList buttons() const;

    /// The height of each button when n of them and their gaps (a quarter of a button each) share
    /// the height with half a button above and below.
    [[nodiscard]] Q_INVOKABLE double buttonHeight(double availableHeight) const;
    /// {"page": the screen's QML file, "properties": what it is opened with}; empty for a tag no
    /// button has.
    [[nodiscard]] Q_INVOKABLE QVariantMap quizClicked(int tag) const;

Q_SIGNALS:
    void categoryChanged();
    void buttonsChanged();

private:
    QString m_categoryId;
};
