#include "CommandLine.h"

int runScoreCommand(const CommandLine &command)
{
    return command.fail(QStringLiteral("score: not built yet"));
}
