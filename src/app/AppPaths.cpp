#include "AppPaths.h"

#include "content/UserInfoFile.h"
#include "content/VoFileUtil.h"

#include <QDir>

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

} // namespace AppPaths
