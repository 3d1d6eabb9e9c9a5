#pragma once

#include <QMap>
#include <QSet>
#include <QStringList>
#include <QTextStream>

/// tolvane-cli's exit statuses, listed in the README.
namespace ExitStatus {
inline constexpr int Done = 0;
inline constexpr int WrongUsage = 1;
inline constexpr int BadInput = 2;
inline constexpr int MachineFailure = 3;
} // namespace ExitStatus

/// @brief A command's arguments split into positional ones, "--name VALUE" options and flags.
struct ParsedArguments {
    QStringList positional;
    QMap<QString, QString> values;
    QSet<QString> flags;
    QString error; ///< set on an unknown option or a missing value

    /// Everything after "--" counts as positional, so a text may start with a dash.
    static ParsedArguments parse(const QStringList &arguments, const QStringList &valueOptions,
                                 const QStringList &flagOptions = {});
};

/// @brief What every sub-command shares: its arguments and the two output streams.
struct CommandLine {
    QStringList arguments; ///< after the program and command names
    QTextStream &out;
    QTextStream &err;

    // Each prints "tolvane-cli: <message>" and returns its exit status.
    [[nodiscard]] int usageError(const QString &message) const;
    /// Bad input: a file that is missing, damaged or of the wrong kind.
    [[nodiscard]] int fail(const QString &message) const;
    /// The machine failed us: a folder or file that cannot be written, a device.
    [[nodiscard]] int machineFailure(const QString &message) const;
};

int runContentCommand(const CommandLine &command);
int runCryptCommand(const CommandLine &command);
int runWordsCommand(const CommandLine &command);
int runRecordCommand(const CommandLine &command);
int runAcousticCommand(const CommandLine &command);
int runLmCommand(const CommandLine &command);
int runAssessCommand(const CommandLine &command);
int runSpectrumCommand(const CommandLine &command);
int runScoreCommand(const CommandLine &command);
