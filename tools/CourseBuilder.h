#pragma once

#include <QJsonObject>
#include <QSet>
#include <QString>
#include <functional>

/**
 * @brief Turns the plain course sources into the folder the app reads.
 *
 * For each source folder {id}/ with pkgInfo.json and phrases.json it writes {id}/pkgInfo (plain
 * JSON), {id}/phrasesInfo (enciphered with the content key), {id}/voices/{phrase}.mp3 and
 * {id}/images/{md5}.jpg. The output mirrors the sources: anything else in it is removed.
 * Voices and pictures are made again only when their phrase or the way they are made changed;
 * a manifest beside the output folder remembers what each file was made from.
 */
class CourseBuilder {
public:
    CourseBuilder(QString sourceDir, QString outputDir);

    /// False on the first bad source file or failed step; error() says what and where.
    bool build();
    [[nodiscard]] const QString &error() const { return m_error; }
    /// One line: what was made and what was kept.
    [[nodiscard]] QString summary() const;

private:
    struct Category;

    bool readCategory(const QString &folder, Category &category);
    bool writeCategory(const Category &category);
    bool makeFile(const QString &relativePath, const QString &recipe,
                  const std::function<bool(const QString &)> &make);
    void removeUnexpected(const QString &folder, const QSet<QString> &expected);
    bool fail(const QString &message);

    QString m_sourceDir;
    QString m_outputDir;
    QJsonObject m_oldManifest;
    QJsonObject m_manifest;
    QString m_error;
    int m_categories{0};
    int m_phrases{0};
    int m_made{0};
    int m_kept{0};
};
