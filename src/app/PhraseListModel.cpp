#include "PhraseListModel.h"

#include "Preferences.h"
#include "content/AppCommon.h"

PhraseListModel::PhraseListModel(QObject *parent)
    : QAbstractListModel(parent)
{
    connect(&Preferences::instance(), &Preferences::languageTypeChanged, this, [this] {
        if (!m_phrases.isEmpty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {TranslationRole});
    });
}

void PhraseListModel::setPhrases(QList<PhraseInfo *> phrases)
{
    beginResetModel();
    m_phrases = std::move(phrases);
    endResetModel();
}

int PhraseListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_phrases.size());
}

QVariant PhraseListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const PhraseInfo &phrase = *m_phrases.at(index.row());
    switch (role) {
    case PhraseIdRole:
        return phrase.id;
    case Qt::DisplayRole:
    case TextRole:
        return foreignText(phrase);
    case PhoneticsRole:
        return phrase.phon;
    case TranslationRole:
        return translation(phrase, Preferences::instance().languageType());
    default:
        return {};
    }
}

QHash<int, QByteArray> PhraseListModel::roleNames() const
{
    return {{PhraseIdRole, "phraseId"},
            {TextRole, "text"},
            {PhoneticsRole, "phonetics"},
            {TranslationRole, "translation"}};
}
