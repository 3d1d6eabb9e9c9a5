#include "app/UserRecord.h"
#include "content/RecordWriter.h"
#include "content/VoFileUtil.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

// Target: under 50 us to the caller. A counter change only updates the record in memory and
// wakes the writer; the disk is the writer thread's business.
void BM_IncrementUserRecordCounter(benchmark::State &state)
{
    const QTemporaryDir folder;
    const UserInfoFile file(folder.filePath(QStringLiteral("userInfo.plist")));
    qint64 increments = 0;
    {
        RecordWriter record(file, initialUserInfo());
        for (auto _ : state) {
            record.add({{UserInfoKey::listenCount, 1}});
            ++increments;
        }
        record.flush();
    }
    if (file.intValue(UserInfoKey::listenCount) != increments)
        state.SkipWithError("the record lost increments");
}
BENCHMARK(BM_IncrementUserRecordCounter)->UseRealTime()->Unit(benchmark::kMicrosecond);

// The writer's own cost of one write as the app makes it: encipher, keep the previous copy,
// replace the record with its data synced to disk.
void BM_WriteUserRecord(benchmark::State &state)
{
    const QTemporaryDir folder;
    const UserInfoFile file(folder.filePath(QStringLiteral("userInfo.plist")));
    bool written = folder.isValid();
    for (auto _ : state)
        written = file.write(initialUserInfo()) && written;
    if (!written)
        state.SkipWithError("a write failed");
}
BENCHMARK(BM_WriteUserRecord)->UseRealTime()->Unit(benchmark::kMicrosecond);

// One replacement of a record-sized file with and without the sync, so the sync's share of a
// write shows as a ratio within one run.
void BM_ReplaceRecordSizedFile(benchmark::State &state)
{
    const auto sync = static_cast<VoFileUtil::Sync>(state.range(0));
    const QTemporaryDir folder;
    const UserInfoFile file(folder.filePath(QStringLiteral("userInfo.plist")));
    if (!folder.isValid() || !file.write(initialUserInfo())) {
        state.SkipWithError("cannot write a record in a temporary folder");
        return;
    }
    const QByteArray bytes = VoFileUtil::readFile(file.path()).value_or(QByteArray());
    bool written = true;
    for (auto _ : state)
        written = VoFileUtil::writeFileAtomically(file.path(), bytes, sync) && written;
    if (!written)
        state.SkipWithError("a write failed");
    state.SetLabel(sync == VoFileUtil::Sync::ToDisk ? "fdatasync + rename" : "rename, no sync");
}
BENCHMARK(BM_ReplaceRecordSizedFile)
    ->Arg(static_cast<int>(VoFileUtil::Sync::ToDisk))
    ->Arg(static_cast<int>(VoFileUtil::Sync::No))
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace
