#include "FuzzSupport.h"
#include "app/UserRecord.h"
#include "content/UserInfoFile.h"
#include "content/VoCryptor.h"

#include <QDir>
#include <QTemporaryDir>

// The user record file as the app opens it at start. An input whose first byte is odd is the
// record's plain property list, enciphered here, so that mutations reach the property-list
// reader instead of dying in the cipher's padding check; any other input is the file itself.

namespace {

const QString &folder()
{
    // On a memory file system when there is one: every write of the record syncs to disk.
    static const QTemporaryDir made(QDir(QStringLiteral("/dev/shm")).exists()
                                        ? QStringLiteral("/dev/shm/tolvane-record-XXXXXX")
                                        : QDir::tempPath() +
                                              QStringLiteral("/tolvane-record-XXXXXX"));
    static const QString path = made.path();
    return path;
}

bool isInteger(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

// Every counter the app reads is there as an integer, as `fresh` has it.
void checkWhole(const QVariantMap &record, const QVariantMap &fresh)
{
    for (auto it = fresh.cbegin(); it != fresh.cend(); ++it)
        fuzz::check(isInteger(record.value(it.key())));
}

bool sameCounters(const QVariantMap &a, const QVariantMap &b, const QVariantMap &fresh)
{
    for (auto it = fresh.cbegin(); it != fresh.cend(); ++it) {
        if (a.value(it.key()).toLongLong() != b.value(it.key()).toLongLong())
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::setUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    QByteArray bytes = fuzz::bytesOf(data + 1, size - 1);
    if ((data[0] & 1) != 0) {
        const auto cipher =
            VoCryptor::encryptData(bytes, VoCryptor::Encipher, VoCryptor::recordKey);
        if (!cipher)
            return 0;
        bytes = cipher->toBase64();
    }
    // Each input starts alone: no previous copy, no damaged files set aside by the last one.
    QDir dir(folder());
    dir.removeRecursively();
    dir.mkpath(folder());
    const UserInfoFile file(dir.filePath(QStringLiteral("userInfo.plist")));
    if (!fuzz::writeFile(file.path(), bytes))
        return 0;

    const QVariantMap fresh = initialUserInfo();
    try {
        const RecordOpening first = file.open(fresh);
        checkWhole(first.record, fresh);
        fuzz::check(first.outcome == RecordOpening::Outcome::Read ||
                    first.outcome == RecordOpening::Outcome::StartedFresh);
        // What open() returns is on disk as the record.
        fuzz::check(sameCounters(file.read(), first.record, fresh));
        const RecordOpening second = file.open(fresh);
        fuzz::check(second.outcome == RecordOpening::Outcome::Read);
        fuzz::check(sameCounters(second.record, first.record, fresh));
    } catch (const fuzz::Rejected &) {
        // open() heals what it reads; nothing in it may end the program.
        __builtin_trap();
    }
    return 0;
}
