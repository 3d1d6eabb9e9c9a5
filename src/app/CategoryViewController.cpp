#include "CategoryViewController.h"

#include "Preferences.h"
#include "content/AppCommon.h"

CategoryViewController::CategoryViewController(QObject *parent)
    : QObject(parent)
{
    connect(&Preferences::instance(), &Preferences::languageTypeChanged, this,
            &CategoryViewController::titleChanged);
}

QString CategoryViewController::categoryId() const
{
    return m_category ? m_category->id : QString();
}

void CategoryViewController::setCategoryId(const QString &categoryId)
{
    if (m_category && m_category->id == categoryId)
        return;
    m_category = contentStore().category(categoryId);
    const auto *phrases = m_category ? loadPhrases(categoryId) : nullptr;
    m_phrases.setPhrases(phrases ? *phrases : QList<PhraseInfo *>());
    Q_EMIT categoryIdChanged();
    Q_EMIT titleChanged();
}

QString CategoryViewController::title() const
{
    return m_category ? translatedName(*m_category, Preferences::instance().languageType())
                      : QString();
}
