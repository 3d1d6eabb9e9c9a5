#include "VoFileUtil.h"

#include "PlistCodec.h"
#include "TextHelpers.h"
#include "VoCryptor.h"
#include "VoLog.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <cstdio>
#include <unistd.h>

namespace {
QString folderWithSlash(QStandardPaths::StandardLocation location)
{
    const QString path = QStandardPaths::writableLocation(location);
    QDir().mkpath(path);
    return path + QLatin1Char('/');
}
} // namespace

std::optional<QVariantMap> VoFileUtil::getDicFromEncryptedPlist(const QString &path,
                                                                const QString &key)
{
    auto bytes = readFile(path);
    if (bytes && !key.isEmpty()) {
        auto cipher = TextHelpers::fromUtf8Strict(*bytes);
        auto plain = cipher ? VoCryptor::decryptWithDES(*cipher, key) : std::nullopt;
        bytes = plain ? std::optional(plain->toUtf8()) : std::nullopt;
    }
    auto dictionary = bytes ? PlistCodec::dictionaryFromBytes(*bytes) : std::nullopt;
    if (!dictionary)
        VoLog::write(lcContent(), VoLog::Error,
                     QStringLiteral("Cannot read the property list %1").arg(path));
    return dictionary;
}

QString VoFileUtil::getDocumentsDirectory()
{
    return folderWithSlash(QStandardPaths::AppDataLocation);
}

QString VoFileUtil::getCachesDirectory()
{
    return folderWithSlash(QStandardPaths::CacheLocation);
}

double VoFileUtil::getFileSizeAtPath(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? static_cast<double>(info.size()) : 0.0;
}

float VoFileUtil::getFolderSizeAtPath(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return 0.0F;
    double bytes = 0;
    QDirIterator it(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        bytes += getFileSizeAtPath(it.next());
    return static_cast<float>(bytes * (1.0 / 1048576.0));
}

void VoFileUtil::removeFileInFolder(const QString &path)
{
    const QDir folder(path);
    const auto entries =
        folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        if (entry.isDir() && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
        else
            QFile::remove(entry.filePath());
    }
}

std::optional<QByteArray> VoFileUtil::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

bool VoFileUtil::writeFileAtomically(const QString &path, const QByteArray &contents, Sync sync)
{
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open() || file.write(contents) != contents.size() || !file.flush())
        return false;
    if (sync == Sync::ToDisk && ::fdatasync(file.handle()) != 0)
        return false;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                        QFileDevice::ReadOther);
    // rename() replaces the old file in one step, so a reader or a crash sees the old contents
    // or the new ones, never a mix.
    if (std::rename(QFile::encodeName(file.fileName()).constData(),
                    QFile::encodeName(path).constData()) != 0)
        return false;
    file.setAutoRemove(false);
    return true;
}
