#pragma once

#include "ContentModel.h"
#include "VoLog.h"

#include <QRandomGenerator>
#include <QStringList>
#include <deque>
#include <functional>
#include <memory>

/**
 * @brief The shipped course: categories and their phrases, loaded from a resource folder.
 *
 * Categories are read on first use and sorted by id as text; a category's phrases are
 * deciphered on first request and kept. Content is part of the app, so a missing or damaged
 * file is fatal. The app has one store (see contentStore()); tests make their own.
 */
class ContentStore {
public:
    explicit ContentStore(QString root);
    ContentStore(const ContentStore &) = delete;
    ContentStore &operator=(const ContentStore &) = delete;
    ~ContentStore();

    [[nodiscard]] const QString &root() const { return m_root; }

    const QList<CategoryInfo *> &loadAllCategories();
    /// Nothing (nullptr) when no category has the id.
    const QList<PhraseInfo *> *loadPhrases(const QString &categoryId);
    const QList<PhraseInfo *> &allPhrases();
    QList<PhraseInfo *> phrasesMatching(const std::function<bool(const PhraseInfo &)> &predicate);
    [[nodiscard]] CategoryInfo *category(const QString &categoryId);

    /// {root}/{categoryId}/voices/{id}.mp3
    [[nodiscard]] QString soundPath(PhraseInfo &phrase) const;
    /// {root}/{categoryId}/images/{md5 of "images-{id}-de"}.jpg
    [[nodiscard]] QString imagePath(const PhraseInfo &phrase) const;

private:
    QString m_root;
    std::optional<QList<CategoryInfo *>> m_categories;
    std::optional<QList<PhraseInfo *>> m_allPhrases;
    std::deque<std::unique_ptr<CategoryInfo>> m_ownedCategories;
    std::deque<std::unique_ptr<PhraseInfo>> m_ownedPhrases;
};

/// The language codes translations are offered in, in this order.
[[nodiscard]] const QStringList &supportedLanguageCodes();

/// Sets the app's resource root; call before the first use of contentStore().
void setResourceRoot(const QString &root);
/// The app's content store, created on first use; a missing resource root is fatal.
ContentStore &contentStore();

// The app's content, through contentStore().
const QList<CategoryInfo *> &loadAllCategories();
const QList<PhraseInfo *> *loadPhrases(const QString &categoryId);
const QList<PhraseInfo *> &allPhrases();
QList<PhraseInfo *> phrasesMatching(const std::function<bool(const PhraseInfo &)> &predicate);
[[nodiscard]] QString soundPath(PhraseInfo &phrase);
[[nodiscard]] QString imagePath(const PhraseInfo &phrase);

/// The phrase in the foreign language: its "de" translation when present, else its content.
[[nodiscard]] QString foreignText(const PhraseInfo &phrase);
/// A phrase's text in the language, falling back to its German text and then its content.
[[nodiscard]] QString translation(const PhraseInfo &phrase, const QString &languageCode);
/// A category's name in the language, falling back to German and then its name.
[[nodiscard]] QString translatedName(const CategoryInfo &category, const QString &languageCode);

/// The first supported code that one of the localisations begins with; "en" when none does.
[[nodiscard]] QString defaultLanguageCode(const QStringList &preferredLocalisations);
/// The same for the system's preferred user-interface languages.
[[nodiscard]] QString defaultLanguageCode();

/// "mm:ss" below an hour, else "hh:mm:ss" where mm counts all minutes: 3700 s give "01:61:40".
[[nodiscard]] QString formatDuration(float seconds);

/// n elements drawn from the list without replacement; n < 0 or n > size is fatal.
template <typename T>
QList<T> randomPick(const QList<T> &list, qsizetype n,
                    QRandomGenerator &random = *QRandomGenerator::global())
{
    if (n < 0 || n > list.size())
        fatal(appCommonSource, __LINE__,
              QStringLiteral("cannot pick %1 of %2 elements").arg(n).arg(list.size()));
    QList<T> remaining = list;
    QList<T> picked;
    picked.reserve(n);
    for (qsizetype i = 0; i < n; ++i) {
        const auto r =
            static_cast<qsizetype>(random.bounded(static_cast<quint32>(remaining.size())));
        picked.append(remaining.takeAt(r));
    }
    return picked;
}
