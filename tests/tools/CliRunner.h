#pragma once

#include "content/QtPrinters.h"
#include "support/TestPaths.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// @brief What one run of tolvane-cli printed and how it ended.
struct CliRun {
    int exitCode{-1}; ///< -1 when the program crashed or did not finish
    QString out;
    QString err;

    [[nodiscard]] static QStringList lines(const QString &text)
    {
        QStringList result = text.split(u'\n');
        if (!result.isEmpty() && result.last().isEmpty())
            result.removeLast();
        return result;
    }
    [[nodiscard]] QStringList outLines() const { return lines(out); }
};

/// Runs the built tolvane-cli with the arguments and waits for it to end.
inline CliRun runCli(const QStringList &arguments)
{
    // Without XDG_RUNTIME_DIR (as in containers) Qt warns on stderr, which would hide whether
    // the tool itself says one line or more; the child gets a private one.
    static const QTemporaryDir runtimeDir;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_RUNTIME_DIR"_s, runtimeDir.path());

    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(TestPaths::cli(), arguments);
    CliRun run;
    if (!process.waitForFinished(120'000)) {
        ADD_FAILURE() << "tolvane-cli " << arguments.join(u' ').toStdString()
                      << " did not finish: " << process.errorString().toStdString();
        process.kill();
        process.waitForFinished();
    } else if (process.exitStatus() == QProcess::NormalExit) {
        run.exitCode = process.exitCode();
    }
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

/// Checks the failure shape every command shares: the documented status (1 wrong usage, 2 bad
/// input, 3 a failure of the machine), nothing on stdout and one line on stderr that names what
/// was wrong.
inline void expectOneLineFailure(const CliRun &run, const QString &mentioned, int status = 2)
{
    EXPECT_EQ(run.exitCode, status) << "the tool must fail with its documented status";
    EXPECT_TRUE(run.out.isEmpty()) << run.out.toStdString();
    const QStringList lines = CliRun::lines(run.err);
    ASSERT_EQ(lines.size(), 1) << run.err.toStdString();
    EXPECT_TRUE(lines[0].startsWith(u"tolvane-cli: "_s)) << lines[0].toStdString();
    EXPECT_TRUE(lines[0].contains(mentioned))
        << lines[0].toStdString() << " should mention " << mentioned.toStdString();
}
