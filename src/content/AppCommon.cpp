#include "AppCommon.h"

#include "TextHelpers.h"
#include "VoCryptor.h"
#include "VoFileUtil.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <algorithm>
#include <cmath>

namespace {

[[noreturn]] void contentError(int line, const QString &what)
{
    fatal(appCommonSource, line, what);
}

QJsonDocument readJson(int line, const QByteArray &bytes, const QString &path)
{
    QJsonParseError error{};
    QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        contentError(line, QStringLiteral("%1 is not JSON: %2 at offset %3")
                               .arg(path, error.errorString())
                               .arg(error.offset));
    return document;
}

QString requiredId(int line, const QJsonObject &object, const QString &path)
{
    const QJsonValue id = object.value(QLatin1String("id"));
    // toInteger() gives 0 for 1.5 or 1e20, which would silently name another item.
    if (!id.isDouble() || id.toDouble() != static_cast<double>(id.toInteger()))
        contentError(line, QStringLiteral("%1 has no integer \"id\"").arg(path));
    return QString::number(id.toInteger());
}

QString requiredText(int line, const QJsonObject &object, QLatin1String key, const QString &path)
{
    const QJsonValue value = object.value(key);
    if (!value.isString())
        contentError(line, QStringLiteral("%1 has no text \"%2\"").arg(path, key));
    return value.toString();
}

QMap<QString, QString> translations(const QJsonObject &object)
{
    QMap<QString, QString> map;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        if (it.value().isString())
            map.insert(it.key(), it.value().toString());
    }
    return map;
}

QString translated(const BaseItemInfo &item, const QString &languageCode, const QString &fallback)
{
    auto it = item.trans.constFind(languageCode);
    if (it != item.trans.cend())
        return *it;
    it = item.trans.constFind(QStringLiteral("de"));
    return it != item.trans.cend() ? *it : fallback;
}

std::unique_ptr<CategoryInfo> readCategory(const QString &folder)
{
    const QString path = folder + QStringLiteral("/pkgInfo");
    const auto bytes = VoFileUtil::readFile(path);
    if (!bytes)
        contentError(__LINE__, QStringLiteral("cannot read %1").arg(path));
    const QJsonDocument document = readJson(__LINE__, *bytes, path);
    if (!document.isObject())
        contentError(__LINE__, QStringLiteral("%1 is not a JSON object").arg(path));
    const QJsonObject object = document.object();

    auto category = std::make_unique<CategoryInfo>();
    category->id = requiredId(__LINE__, object, path);
    category->name = requiredText(__LINE__, object, QLatin1String("name"), path);
    const QJsonValue names = object.value(QLatin1String("nameTrans"));
    if (!names.isObject())
        contentError(__LINE__, QStringLiteral("%1 has no object \"nameTrans\"").arg(path));
    category->trans = translations(names.toObject());
    return category;
}

} // namespace

ContentStore::ContentStore(QString root)
    : m_root(std::move(root))
{}

ContentStore::~ContentStore() = default;

const QList<CategoryInfo *> &ContentStore::loadAllCategories()
{
    if (m_categories)
        return *m_categories;
    const QDir rootDir(m_root);
    if (!rootDir.exists())
        contentError(__LINE__, QStringLiteral("the resource folder %1 does not exist").arg(m_root));
    const QStringList entries =
        rootDir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);

    QList<CategoryInfo *> categories;
    for (const QString &entry : entries) {
        m_ownedCategories.push_back(readCategory(rootDir.filePath(entry)));
        categories.append(m_ownedCategories.back().get());
    }
    // The ids compare as text on purpose: "10" sorts before "9".
    std::stable_sort(categories.begin(), categories.end(),
                     [](const CategoryInfo *a, const CategoryInfo *b) { return a->id < b->id; });
    m_categories = categories;
    return *m_categories;
}

CategoryInfo *ContentStore::category(const QString &categoryId)
{
    const auto &categories = loadAllCategories();
    const auto it =
        std::find_if(categories.cbegin(), categories.cend(),
                     [&categoryId](const CategoryInfo *c) { return c->id == categoryId; });
    return it == categories.cend() ? nullptr : *it;
}

const QList<PhraseInfo *> *ContentStore::loadPhrases(const QString &categoryId)
{
    CategoryInfo *owner = category(categoryId);
    if (!owner)
        return nullptr;
    if (owner->phraseInfoList)
        return &*owner->phraseInfoList;

    const QString path = QDir(m_root).filePath(owner->id + QStringLiteral("/phrasesInfo"));
    const auto bytes = VoFileUtil::readFile(path);
    if (!bytes)
        contentError(__LINE__, QStringLiteral("cannot read %1").arg(path));
    // The list stays in bytes from file to parser: Base64 is ASCII, and the JSON parser rejects
    // plain text that is not UTF-8 itself, so no text conversion is needed on this hot path.
    auto cipher = QByteArray::fromBase64Encoding(*bytes, QByteArray::AbortOnBase64DecodingErrors);
    const auto plain =
        cipher ? VoCryptor::decryptData(*cipher, VoCryptor::contentKey) : std::nullopt;
    if (!plain)
        contentError(__LINE__, QStringLiteral("cannot decipher %1").arg(path));
    const QJsonDocument document = readJson(__LINE__, *plain, path);
    if (!document.isArray())
        contentError(__LINE__, QStringLiteral("%1 is not a JSON array").arg(path));

    QList<PhraseInfo *> phrases;
    const QJsonArray array = document.array();
    for (qsizetype i = 0; i < array.size(); ++i) {
        if (!array[i].isObject())
            contentError(__LINE__,
                         QStringLiteral("phrase %1 of %2 is not an object").arg(i).arg(path));
        const QJsonObject object = array[i].toObject();
        auto phrase = std::make_unique<PhraseInfo>();
        phrase->id = requiredId(__LINE__, object, path);
        phrase->content = requiredText(__LINE__, object, QLatin1String("txt"), path);
        phrase->phon = object.value(QLatin1String("phon")).toString();
        phrase->trans = translations(object.value(QLatin1String("wTrans")).toObject());
        phrase->categoryId = owner->id;
        phrase->indexInCategory = static_cast<int>(i);
        phrases.append(phrase.get());
        m_ownedPhrases.push_back(std::move(phrase));
    }
    owner->phraseInfoList = phrases;
    return &*owner->phraseInfoList;
}

const QList<PhraseInfo *> &ContentStore::allPhrases()
{
    if (!m_allPhrases) {
        QList<PhraseInfo *> phrases;
        for (const CategoryInfo *c : loadAllCategories())
            phrases.append(*loadPhrases(c->id));
        m_allPhrases = phrases;
    }
    return *m_allPhrases;
}

QList<PhraseInfo *>
ContentStore::phrasesMatching(const std::function<bool(const PhraseInfo &)> &predicate)
{
    QList<PhraseInfo *> matching;
    for (PhraseInfo *phrase : allPhrases()) {
        if (predicate(*phrase))
            matching.append(phrase);
    }
    return matching;
}

QString ContentStore::soundPath(PhraseInfo &phrase) const
{
    if (phrase.soundPath.isEmpty())
        phrase.soundPath =
            QStringLiteral("%1/%2/voices/%3.mp3").arg(m_root, phrase.categoryId, phrase.id);
    return phrase.soundPath;
}

QString ContentStore::imagePath(const PhraseInfo &phrase) const
{
    const QString digest = TextHelpers::md5(QStringLiteral("images-%1-de").arg(phrase.id));
    return QStringLiteral("%1/%2/images/%3.jpg").arg(m_root, phrase.categoryId, digest);
}

const QStringList &supportedLanguageCodes()
{
    static const QStringList codes{
        QStringLiteral("en"), QStringLiteral("zh-Hans"), QStringLiteral("zh-Hant"),
        QStringLiteral("ja"), QStringLiteral("ko"),      QStringLiteral("fr"),
        QStringLiteral("es"), QStringLiteral("de"),      QStringLiteral("pt"),
        QStringLiteral("it"), QStringLiteral("ru"),      QStringLiteral("ar"),
        QStringLiteral("hi"), QStringLiteral("vi"),      QStringLiteral("th"),
        QStringLiteral("ms")};
    return codes;
}

namespace {
QString &appResourceRoot()
{
    static QString root;
    return root;
}
} // namespace

void setResourceRoot(const QString &root)
{
    appResourceRoot() = root;
}

ContentStore &contentStore()
{
    static ContentStore store([] {
        QString root = appResourceRoot();
        if (root.isEmpty())
            root = QCoreApplication::applicationDirPath() + QStringLiteral("/resources.bundle");
        if (!QFileInfo(root).isDir())
            contentError(__LINE__,
                         QStringLiteral("the resource folder %1 does not exist").arg(root));
        return QFileInfo(root).absoluteFilePath();
    }());
    return store;
}

const QList<CategoryInfo *> &loadAllCategories()
{
    return contentStore().loadAllCategories();
}
const QList<PhraseInfo *> *loadPhrases(const QString &categoryId)
{
    return contentStore().loadPhrases(categoryId);
}
const QList<PhraseInfo *> &allPhrases()
{
    return contentStore().allPhrases();
}
QList<PhraseInfo *> phrasesMatching(const std::function<bool(const PhraseInfo &)> &predicate)
{
    return contentStore().phrasesMatching(predicate);
}
QString soundPath(PhraseInfo &phrase)
{
    return contentStore().soundPath(phrase);
}
QString imagePath(const PhraseInfo &phrase)
{
    return contentStore().imagePath(phrase);
}

QString foreignText(const PhraseInfo &phrase)
{
    return phrase.trans.value(QStringLiteral("de"), phrase.content);
}

QString translation(const PhraseInfo &phrase, const QString &languageCode)
{
    return translated(phrase, languageCode, phrase.content);
}

QString translatedName(const CategoryInfo &category, const QString &languageCode)
{
    return translated(category, languageCode, category.name);
}

QString defaultLanguageCode(const QStringList &preferredLocalisations)
{
    for (const QString &localisation : preferredLocalisations) {
        for (const QString &code : supportedLanguageCodes()) {
            if (localisation.startsWith(code))
                return code;
        }
    }
    return QStringLiteral("en");
}

QString defaultLanguageCode()
{
    return defaultLanguageCode(QLocale::system().uiLanguages());
}

QString formatDuration(float seconds)
{
    if (!std::isfinite(seconds))
        contentError(__LINE__,
                     QStringLiteral("cannot format a duration of %1 seconds").arg(seconds));
    // Saturate instead of overflowing the integer conversions on absurd inputs.
    const double value = std::clamp(static_cast<double>(seconds), -1e15, 1e15);
    const auto h = static_cast<qint64>(value / 3600);
    const auto m = static_cast<qint64>(value / 60);
    const auto s = static_cast<qint64>(std::fmod(value, 60.0));
    const auto two = [](qint64 v) {
        return QStringLiteral("%1").arg(v, 2, 10, QLatin1Char('0'));
    };
    if (h < 1)
        return two(m) + QLatin1Char(':') + two(s);
    return two(h) + QLatin1Char(':') + two(m) + QLatin1Char(':') + two(s);
}
