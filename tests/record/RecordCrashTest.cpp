#include "app/UserRecord.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <gtest/gtest.h>
#include <iostream>
#include <random>

using namespace Qt::StringLiterals;
using Outcome = RecordOpening::Outcome;

namespace {
/// The last whole line the child printed: the count of its last finished write; 0 when none.
qint64 lastConfirmed(const QByteArray &output)
{
    const qsizetype end = output.lastIndexOf('\n');
    if (end < 0)
        return 0;
    const qsizetype start = output.lastIndexOf('\n', end - 1) + 1;
    return output.mid(start, end - start).toLongLong();
}
} // namespace

// A writer killed at any moment leaves a record that opens and holds every count it confirmed.
// TOLVANE_CRASH_ROUNDS sets the number of kills (1,000 for the hand-run figures).
TEST(RecordCrash, AKilledWriterNeverLosesAConfirmedCount)
{
    const int rounds = qEnvironmentVariableIsSet("TOLVANE_CRASH_ROUNDS")
                           ? qEnvironmentVariableIntValue("TOLVANE_CRASH_ROUNDS")
                           : 50;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"userInfo.plist"_s);
    std::mt19937 random(2026);
    std::uniform_int_distribution<int> wait(0, 20'000);
    qint64 kept = 0;
    int restored = 0;
    for (int round = 0; round < rounds; ++round) {
        QProcess child;
        child.start(QStringLiteral(RECORD_CRASH_CHILD), {path});
        ASSERT_TRUE(child.waitForStarted()) << qPrintable(child.errorString());
        ASSERT_TRUE(child.waitForReadyRead(30'000)) << "the child wrote nothing";
        QThread::usleep(static_cast<unsigned long>(wait(random)));
        ::kill(static_cast<pid_t>(child.processId()), SIGKILL);
        ASSERT_TRUE(child.waitForFinished());
        const qint64 confirmed = lastConfirmed(child.readAllStandardOutput());

        const RecordOpening opened = UserInfoFile(path).open(initialUserInfo());
        ASSERT_NE(opened.outcome, Outcome::StartedFresh) << "round " << round;
        restored += opened.outcome == Outcome::RestoredPrevious ? 1 : 0;
        const qint64 count = opened.record.value(UserInfoKey::listenCount).toLongLong();
        ASSERT_GE(count, confirmed) << "round " << round;
        ASSERT_GE(count, kept) << "round " << round;
        kept = count;
    }
    std::cout << rounds << " kills, " << restored << " records restored from the kept copy, "
              << kept << " increments kept\n";
}
