#include "CommandLine.h"

int runAcousticCommand(const CommandLine &command)
{
    return command.fail(QStringLiteral("acoustic: not built yet"));
}
