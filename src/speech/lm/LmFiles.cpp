#include "LmFiles.h"

#include "LmLog.h"
#include "content/VoFileUtil.h"

#include <QFile>

namespace lm {

bool writeAll(QIODevice &device, const QByteArray &bytes, const QString &what)
{
    if (!device.isWritable()) {
        logError(
            QStringLiteral("Cannot write the %1: the output is not open for writing").arg(what));
        return false;
    }
    if (device.write(bytes) != bytes.size()) {
        logError(QStringLiteral("Cannot write the %1: %2").arg(what, device.errorString()));
        return false;
    }
    return true;
}

bool writeFile(const QString &path, const QByteArray &bytes, const QString &what)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        logError(QStringLiteral("Cannot open the %1 %2 for writing: %3")
                     .arg(what, path, file.errorString()));
        return false;
    }
    if (!writeAll(file, bytes, what))
        return false;
    if (!file.flush()) {
        logError(QStringLiteral("Cannot write the %1 %2: %3").arg(what, path, file.errorString()));
        return false;
    }
    return true;
}

std::optional<QByteArray> readFile(const QString &path, const QString &what)
{
    auto bytes = VoFileUtil::readFile(path);
    if (!bytes)
        logError(QStringLiteral("Cannot read the %1 %2").arg(what, path));
    return bytes;
}

} // namespace lm
