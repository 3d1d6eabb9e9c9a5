#include "CategoryListModel.h"

#include "Preferences.h"
#include "content/AppCommon.h"

CategoryListModel::CategoryListModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_categories(loadAllCategories())
{
    connect(&Preferences::instance(), &Preferences::languageTypeChanged, this, [this] {
        if (!m_categories.isEmpty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {NameRole, Qt::DisplayRole});
    });
}

int CategoryListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_categories.size());
}

QVariant CategoryListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const CategoryInfo &category = *m_categories.at(index.row());
    switch (role) {
    case CategoryIdRole:
        return category.id;
    case Qt::DisplayRole:
    case NameRole:
        return translatedName(category, Preferences::instance().languageType());
    case GermanNameRole:
        return category.name;
    case PhraseCountRole: {
        const auto *phrases = loadPhrases(category.id);
        return phrases ? static_cast<int>(phrases->size()) : 0;
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> CategoryListModel::roleNames() const
{
    return {{CategoryIdRole, "categoryId"},
            {NameRole, "name"},
            {GermanNameRole, "germanName"},
            {PhraseCountRole, "phraseCount"}};
}
