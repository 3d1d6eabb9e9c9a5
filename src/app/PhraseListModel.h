#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

class PhraseInfo;

/// @brief One category's phrases: German text, phonetics and the learner's translation.
class PhraseListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by its screen")

public:
    enum Role { PhraseIdRole = Qt::UserRole + 1, TextRole, PhoneticsRole, TranslationRole };

    explicit PhraseListModel(QObject *parent = nullptr);

    void setPhrases(QList<PhraseInfo *> phrases);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<PhraseInfo *> m_phrases;
};
