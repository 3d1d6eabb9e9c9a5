#include "app/UserRecord.h"
#include "content/UserInfoFile.h"
#include "content/VoFileUtil.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

// Target: under 2 ms. Every counter increment reads, deciphers, changes, enciphers and
// atomically replaces the whole record, and the app does one after every listened phrase.
// Real time, since most of it is spent waiting for the disk.
void BM_IncrementUserRecordCounter(benchmark::State &state)
{
    const QTemporaryDir folder;
    const UserInfoFile record(folder.filePath(QStringLiteral("userInfo.plist")));
    if (!folder.isValid() || !record.write(initialUserInfo())) {
        state.SkipWithError("cannot write a record in a temporary folder");
        return;
    }
    qint64 increments = 0;
    for (auto _ : state) {
        record.increment(UserInfoKey::listenCount);
        ++increments;
    }
    if (record.intValue(UserInfoKey::listenCount) != increments)
        state.SkipWithError("the record lost increments");
}
BENCHMARK(BM_IncrementUserRecordCounter)->UseRealTime()->Unit(benchmark::kMicrosecond);

// Where an increment's time goes: the record's bytes written the way the app writes them, and
// two cheaper ways that give up some of the guarantee, so the cost of each step shows as a ratio.
enum class WriteWay { SyncedAndRenamed, RenamedWithoutSync, OverwrittenInPlace };

void BM_WriteRecordSizedFile(benchmark::State &state)
{
    const auto way = static_cast<WriteWay>(state.range(0));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("userInfo.plist"));
    const QString staging = path + QStringLiteral(".new");
    if (!folder.isValid() || !UserInfoFile(path).write(initialUserInfo())) {
        state.SkipWithError("cannot write a record in a temporary folder");
        return;
    }
    const QByteArray bytes = VoFileUtil::readFile(path).value_or(QByteArray());
    bool written = true;
    for (auto _ : state) {
        switch (way) {
        case WriteWay::SyncedAndRenamed:
            written = VoFileUtil::writeFileAtomically(path, bytes) && written;
            break;
        case WriteWay::RenamedWithoutSync: {
            QFile file(staging);
            written =
                file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && written;
            file.close();
            std::error_code error;
            std::filesystem::rename(QFile::encodeName(staging).toStdString(),
                                    QFile::encodeName(path).toStdString(), error);
            written = !error && written;
            break;
        }
        case WriteWay::OverwrittenInPlace: {
            QFile file(path);
            written =
                file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && written;
            break;
        }
        }
    }
    if (!written)
        state.SkipWithError("a write failed");
    state.SetLabel(way == WriteWay::SyncedAndRenamed     ? "QSaveFile: fdatasync + rename"
                   : way == WriteWay::RenamedWithoutSync ? "temporary file + rename, no sync"
                                                         : "truncate + write, no sync");
}
BENCHMARK(BM_WriteRecordSizedFile)
    ->Arg(static_cast<int>(WriteWay::SyncedAndRenamed))
    ->Arg(static_cast<int>(WriteWay::RenamedWithoutSync))
    ->Arg(static_cast<int>(WriteWay::OverwrittenInPlace))
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace
