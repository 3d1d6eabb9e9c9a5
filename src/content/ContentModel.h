#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <optional>

/**
 * @brief What categories and phrases have in common: an id and translations.
 *
 * Content objects are created once by the content store and shared by pointer for its whole
 * life; screens change nothing but a phrase's in-memory score.
 */
class BaseItemInfo {
public:
    BaseItemInfo() = default;
    BaseItemInfo(const BaseItemInfo &) = delete;
    BaseItemInfo &operator=(const BaseItemInfo &) = delete;

    QString id;                   ///< decimal text of the integer id in the content files
    QMap<QString, QString> trans; ///< language code to text; empty when the file gives none

protected:
    ~BaseItemInfo() = default;
};

class PhraseInfo final : public BaseItemInfo {
public:
    QString phon;    ///< phonetic transcription; empty when absent
    QString content; ///< the phrase in the foreign language
    QString categoryId;
    int indexInCategory{0};
    QString soundPath; ///< filled on the first request of the audio path
    int score{-1};     ///< last test score; -1 until tested, never stored
};

class CategoryInfo final : public BaseItemInfo {
public:
    QString name; ///< name in the foreign language
    /// Absent until the category's phrases are first requested; owned by the content store.
    std::optional<QList<PhraseInfo *>> phraseInfoList;
};
