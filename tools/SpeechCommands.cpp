#include "CommandLine.h"

int runLmCommand(const CommandLine &command)
{
    return command.fail(QStringLiteral("lm: not built yet"));
}

int runAssessCommand(const CommandLine &command)
{
    return command.fail(QStringLiteral("assess: not built yet"));
}

int runSpectrumCommand(const CommandLine &command)
{
    return command.fail(QStringLiteral("spectrum: not built yet"));
}
