#include "GeneratedCourse.h"

#include "content/AppCommon.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject translationsObject(const QMap<QString, QString> &translations)
{
    QJsonObject object;
    for (auto it = translations.cbegin(); it != translations.cend(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    return QDir().mkpath(QFileInfo(path).path()) && VoFileUtil::writeFileAtomically(path, bytes);
}

} // namespace

QString writeGeneratedCourse(const QString &sampleRoot, const QString &folder, int categories,
                             int phrasesPerCategory)
{
    // The content store treats a missing course as fatal; say what to do instead.
    if (!QFileInfo(sampleRoot).isDir())
        return QStringLiteral("no sample course at %1; build the course target").arg(sampleRoot);
    ContentStore sample(sampleRoot);
    const QList<CategoryInfo *> &sampleCategories = sample.loadAllCategories();
    const QList<PhraseInfo *> &samplePhrases = sample.allPhrases();
    if (samplePhrases.isEmpty())
        return QStringLiteral("the sample course at %1 has no phrases").arg(sampleRoot);
    for (const PhraseInfo *phrase : samplePhrases) {
        if (phrase->trans.size() != supportedLanguageCodes().size() || phrase->phon.isEmpty())
            return QStringLiteral("sample phrase %1 lacks its IPA or a translation")
                .arg(phrase->id);
    }

    const QDir root(folder);
    qsizetype next = 0;
    for (int c = 1; c <= categories; ++c) {
        const CategoryInfo &model = *sampleCategories[(c - 1) % sampleCategories.size()];
        const QJsonObject info{{QStringLiteral("id"), c},
                               {QStringLiteral("name"), model.name},
                               {QStringLiteral("nameTrans"), translationsObject(model.trans)}};

        QJsonArray phrases;
        for (int p = 0; p < phrasesPerCategory; ++p) {
            const PhraseInfo &phrase = *samplePhrases[next++ % samplePhrases.size()];
            // Phrase ids are unique across a course: category id x 1000 + number.
            phrases.append(
                QJsonObject{{QStringLiteral("id"), c * 1000 + p},
                            {QStringLiteral("txt"), phrase.content},
                            {QStringLiteral("phon"), phrase.phon},
                            {QStringLiteral("wTrans"), translationsObject(phrase.trans)}});
        }
        const QString id = QString::number(c);
        const QString phrasesJson =
            QString::fromUtf8(QJsonDocument(phrases).toJson(QJsonDocument::Compact));
        if (!writeFile(root.filePath(id + QStringLiteral("/pkgInfo")),
                       QJsonDocument(info).toJson(QJsonDocument::Compact)) ||
            !writeFile(root.filePath(id + QStringLiteral("/phrasesInfo")),
                       VoCryptor::encryptWithDES(phrasesJson, VoCryptor::contentKey).toUtf8()))
            return QStringLiteral("cannot write category %1 below %2").arg(id, folder);
    }
    return {};
}
