#pragma once

#include "PhraseListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class CategoryInfo;

/// @brief The category screen: the category's name and its phrases.
class CategoryViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString categoryId READ categoryId WRITE setCategoryId NOTIFY categoryIdChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(PhraseListModel *phrases READ phrases CONSTANT)

public:
    explicit CategoryViewController(QObject *parent = nullptr);

    [[nodiscard]] QString categoryId() const;
    /// An unknown id shows an empty screen.
    void setCategoryId(const QString &categoryId);
    /// The category's name in the learner's language.
    [[nodiscard]] QString title() const;
    [[nodiscard]] PhraseListModel *phrases() { return &m_phrases; }

Q_SIGNALS:
    void categoryIdChanged();
    void titleChanged();

private:
    CategoryInfo *m_category{nullptr};
    PhraseListModel m_phrases;
};
