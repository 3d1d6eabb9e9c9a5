#pragma once

// What the targets share: quiet logs, fatal() as an exception, and files made of the input.

#include "content/VoLog.h"

#include <QByteArray>
#include <QFile>
#include <QLoggingCategory>
#include <QString>
#include <QTemporaryDir>
#include <cstdint>

namespace fuzz {

/// Thrown by fatal() in a target: the loaders end the program on a damaged course file, which
/// is their intended answer to it, so the target counts it as a rejection and goes on.
struct Rejected {};

/// Silences the app's logs, which would write a line per input and drown the fuzzer's own
/// output, turns fatal() into a Rejected exception and keeps the app's cache and data folders
/// out of the home folder.
inline void setUp()
{
    static const QTemporaryDir home;
    qputenv("XDG_CACHE_HOME", home.filePath(QStringLiteral("cache")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toLocal8Bit());
    QLoggingCategory::setFilterRules(QStringLiteral("tolvane.*=false"));
    setFatalAction([] { throw Rejected{}; });
}

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

/// False when the file cannot be written; the input is then skipped.
inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

/// Stops the run at a broken invariant with a trap the fuzzer reports as a crash.
inline void check(bool holds)
{
    if (!holds)
        __builtin_trap();
}

} // namespace fuzz
