#include "CourseBuilder.h"

#include "PhraseImage.h"
#include "VoiceSynthesizer.h"
#include "content/AppCommon.h"
#include "content/TextHelpers.h"
#include "content/VoCryptor.h"
#include "content/VoFileUtil.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

struct CourseBuilder::Category {
    QString id;
    QJsonObject info;
    QJsonArray phrases;
};

namespace {

std::optional<QJsonDocument> readJsonFile(const QString &path, QString &error)
{
    const auto bytes = VoFileUtil::readFile(path);
    if (!bytes) {
        error = QStringLiteral("cannot read %1").arg(path);
        return std::nullopt;
    }
    QJsonParseError parseError{};
    QJsonDocument document = QJsonDocument::fromJson(*bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        error = QStringLiteral("%1: %2 at offset %3")
                    .arg(path, parseError.errorString())
                    .arg(parseError.offset);
        return std::nullopt;
    }
    return document;
}

bool isInteger(const QJsonValue &value)
{
    return value.isDouble() && value.toDouble() == static_cast<double>(value.toInteger());
}

QString recipeDigest(const QStringList &parts)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(parts.join(QChar(0x1f)).toUtf8(), QCryptographicHash::Sha256)
            .toHex());
}

} // namespace

CourseBuilder::CourseBuilder(QString sourceDir, QString outputDir)
    : m_sourceDir(std::move(sourceDir))
    , m_outputDir(QDir::cleanPath(std::move(outputDir)))
{}

bool CourseBuilder::fail(const QString &message)
{
    m_error = message;
    return false;
}

bool CourseBuilder::readCategory(const QString &folder, Category &category)
{
    const QDir dir(QDir(m_sourceDir).filePath(folder));
    QString error;
    const auto info = readJsonFile(dir.filePath(QStringLiteral("pkgInfo.json")), error);
    if (!info)
        return fail(error);
    const auto phrases = readJsonFile(dir.filePath(QStringLiteral("phrases.json")), error);
    if (!phrases)
        return fail(error);

    const QString infoPath = dir.filePath(QStringLiteral("pkgInfo.json"));
    category.info = info->object();
    if (!info->isObject() || !isInteger(category.info.value(QLatin1String("id"))) ||
        !category.info.value(QLatin1String("name")).isString() ||
        !category.info.value(QLatin1String("nameTrans")).isObject())
        return fail(QStringLiteral("%1 needs an integer \"id\", a text \"name\" and an object "
                                   "\"nameTrans\"")
                        .arg(infoPath));
    category.id = QString::number(category.info.value(QLatin1String("id")).toInteger());
    if (category.id != folder)
        return fail(QStringLiteral("%1 has id %2 but sits in folder %3")
                        .arg(infoPath, category.id, folder));

    const QString phrasesPath = dir.filePath(QStringLiteral("phrases.json"));
    if (!phrases->isArray())
        return fail(QStringLiteral("%1 is not a JSON array").arg(phrasesPath));
    category.phrases = phrases->array();
    for (qsizetype i = 0; i < category.phrases.size(); ++i) {
        const QJsonObject phrase = category.phrases[i].toObject();
        if (!isInteger(phrase.value(QLatin1String("id"))) ||
            !phrase.value(QLatin1String("txt")).isString())
            return fail(QStringLiteral("phrase %1 of %2 needs an integer \"id\" and a text \"txt\"")
                            .arg(i)
                            .arg(phrasesPath));
    }
    return true;
}

bool CourseBuilder::makeFile(const QString &relativePath, const QString &recipe,
                             const std::function<bool(const QString &)> &make)
{
    const QString path = QDir(m_outputDir).filePath(relativePath);
    m_manifest.insert(relativePath, recipe);
    if (m_oldManifest.value(relativePath).toString() == recipe && QFileInfo::exists(path)) {
        ++m_kept;
        return true;
    }
    QDir().mkpath(QFileInfo(path).path());
    if (!make(path))
        return false;
    ++m_made;
    return true;
}

bool CourseBuilder::writeCategory(const Category &category)
{
    const QString folder = QDir(m_outputDir).filePath(category.id);
    QDir().mkpath(folder);

    const QByteArray info = QJsonDocument(category.info).toJson(QJsonDocument::Compact);
    const QString phrasesJson =
        QString::fromUtf8(QJsonDocument(category.phrases).toJson(QJsonDocument::Compact));
    const auto writeText = [this](const QString &relative, const QByteArray &bytes) {
        return makeFile(relative, recipeDigest({QString::fromLatin1(bytes.toBase64())}),
                        [&bytes](const QString &path) {
                            return VoFileUtil::writeFileAtomically(path, bytes);
                        }) ||
               fail(QStringLiteral("cannot write %1").arg(relative));
    };
    if (!writeText(category.id + QStringLiteral("/pkgInfo"), info) ||
        !writeText(category.id + QStringLiteral("/phrasesInfo"),
                   VoCryptor::encryptWithDES(phrasesJson, VoCryptor::contentKey).toUtf8()))
        return false;

    QSet<QString> voices;
    QSet<QString> images;
    for (const QJsonValue &value : category.phrases) {
        const QJsonObject phrase = value.toObject();
        const QString id = QString::number(phrase.value(QLatin1String("id")).toInteger());
        const QString text = phrase.value(QLatin1String("txt")).toString();

        const QString voice = id + QStringLiteral(".mp3");
        voices.insert(voice);
        QString error;
        if (!makeFile(
                category.id + QStringLiteral("/voices/") + voice,
                recipeDigest({QString::fromLatin1(VoiceSynthesizer::settingsVersion), text}),
                [&](const QString &path) { return VoiceSynthesizer::speak(text, path, error); }))
            return fail(error);

        // The same name the app derives from the phrase id.
        const QString image =
            TextHelpers::md5(QStringLiteral("images-%1-de").arg(id)) + QStringLiteral(".jpg");
        images.insert(image);
        if (!makeFile(category.id + QStringLiteral("/images/") + image,
                      recipeDigest({QString::fromLatin1(PhraseImage::styleVersion), id, text}),
                      [&](const QString &path) { return PhraseImage::write(text, id, path); }))
            return fail(QStringLiteral("cannot draw the picture of phrase %1").arg(id));
    }
    removeUnexpected(QDir(folder).filePath(QStringLiteral("voices")), voices);
    removeUnexpected(QDir(folder).filePath(QStringLiteral("images")), images);
    removeUnexpected(folder, {QStringLiteral("pkgInfo"), QStringLiteral("phrasesInfo"),
                              QStringLiteral("voices"), QStringLiteral("images")});
    m_phrases += static_cast<int>(category.phrases.size());
    return true;
}

void CourseBuilder::removeUnexpected(const QString &folder, const QSet<QString> &expected)
{
    const QDir dir(folder);
    for (const QFileInfo &entry :
         dir.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (expected.contains(entry.fileName()))
            continue;
        if (entry.isDir())
            QDir(entry.filePath()).removeRecursively();
        else
            QFile::remove(entry.filePath());
    }
}

bool CourseBuilder::build()
{
    const QDir source(m_sourceDir);
    if (!source.exists())
        return fail(QStringLiteral("no course sources at %1").arg(m_sourceDir));
    const QStringList folders = source.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    if (folders.isEmpty())
        return fail(QStringLiteral("no category folders in %1").arg(m_sourceDir));

    std::vector<Category> categories(static_cast<std::size_t>(folders.size()));
    QSet<qint64> phraseIds;
    for (qsizetype i = 0; i < folders.size(); ++i) {
        Category &category = categories[static_cast<std::size_t>(i)];
        if (!readCategory(folders[i], category))
            return false;
        // Phrase ids name the recordings and pictures, and quizzes mix all categories.
        for (const QJsonValue &phrase : category.phrases) {
            const qint64 id = phrase.toObject().value(QLatin1String("id")).toInteger();
            if (phraseIds.contains(id))
                return fail(QStringLiteral("phrase id %1 appears twice (again in category %2)")
                                .arg(id)
                                .arg(category.id));
            phraseIds.insert(id);
        }
    }

    const QString manifestPath = m_outputDir + QStringLiteral(".manifest.json");
    QString ignored;
    m_oldManifest = readJsonFile(manifestPath, ignored).value_or(QJsonDocument()).object();
    QDir().mkpath(m_outputDir);
    QSet<QString> expected;
    for (const Category &category : categories) {
        expected.insert(category.id);
        if (!writeCategory(category))
            return false;
        ++m_categories;
    }
    removeUnexpected(m_outputDir, expected);
    if (!VoFileUtil::writeFileAtomically(manifestPath, QJsonDocument(m_manifest).toJson()))
        return fail(QStringLiteral("cannot write %1").arg(manifestPath));
    return true;
}

QString CourseBuilder::summary() const
{
    return QStringLiteral("%1 categories, %2 phrases: %3 files made, %4 unchanged")
        .arg(m_categories)
        .arg(m_phrases)
        .arg(m_made)
        .arg(m_kept);
}
