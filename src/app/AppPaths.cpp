#include "AppPaths.h"

#include "content/UserInfoFile.h"
#include "content/VoFileUtil.h"

#include <QCoreApplication>
#include <QDir>

namespace {
QString &chosenAcousticModelFolder()
{
    static QString folder;
    return folder;
}
} // namespace

namespace AppPaths {

QString documentsFolder()
{
    return VoFileUtil::getDocumentsDirectory();
}

QString recordFolder()
{
    const QString folder = documentsFolder() + QStringLiteral("record/");
    QDir().mkpath(folder);
    return folder;
}

QString userInfoPath()
{
    return UserInfoFile().path();
}

QString languageModelFolder()
{
    return documentsFolder() + QStringLiteral("lm");
}

QString acousticModelFolder()
{
    if (!chosenAcousticModelFolder().isEmpty())
        return chosenAcousticModelFolder();
    return QCoreApplication::applicationDirPath() + QStringLiteral("/AcousticModelEnglish.bundle");
}

void setAcousticModelFolder(const QString &folder)
{
    chosenAcousticModelFolder() = folder;
}

} // namespace AppPaths
