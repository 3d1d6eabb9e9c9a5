#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

class CategoryInfo;

/// @brief The course's categories in load order, with names in the learner's language.
class CategoryListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by its screen")

public:
    enum Role { CategoryIdRole = Qt::UserRole + 1, NameRole, GermanNameRole, PhraseCountRole };

    explicit CategoryListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<CategoryInfo *> m_categories;
};
