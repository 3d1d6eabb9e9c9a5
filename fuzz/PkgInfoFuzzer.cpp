#include "FuzzSupport.h"
#include "content/AppCommon.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

// A category's pkgInfo, read when the store first lists the course.

namespace {

const QTemporaryDir &course()
{
    static const QTemporaryDir folder = [] {
        QTemporaryDir made;
        QDir(made.path()).mkpath(QStringLiteral("category"));
        return made;
    }();
    return folder;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::setUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    if (!fuzz::writeFile(course().filePath(QStringLiteral("category/pkgInfo")), bytes))
        return 0;

    ContentStore store(course().path());
    try {
        const QList<CategoryInfo *> &categories = store.loadAllCategories();
        fuzz::check(categories.size() == 1);
        const CategoryInfo &category = *categories.front();
        // The id is the decimal text of the file's integer id: the phrase folder is found by it.
        const QJsonValue id = QJsonDocument::fromJson(bytes).object().value(QLatin1String("id"));
        fuzz::check(id.toDouble() == static_cast<double>(id.toInteger()));
        fuzz::check(category.id == QString::number(id.toInteger()));
        fuzz::check(store.category(category.id) == &category);
        (void)translatedName(category, QStringLiteral("en"));
        (void)translatedName(category, QStringLiteral("ja"));
    } catch (const fuzz::Rejected &) {
    }
    return 0;
}
