#include "CommandLine.h"
#include "content/VoAppCommon.h"

int runWordsCommand(const CommandLine &command)
{
    const ParsedArguments parsed =
        ParsedArguments::parse(command.arguments, {}, {QStringLiteral("--upper")});
    if (!parsed.error.isEmpty())
        return command.usageError(parsed.error);
    if (parsed.positional.isEmpty())
        return command.usageError(QStringLiteral("words needs a text"));
    const QString text = parsed.positional.join(QLatin1Char(' '));
    const bool upper = parsed.flags.contains(QStringLiteral("--upper"));
    for (const QString &word : VoAppCommon::getAllWordFromText(text, upper))
        command.out << word << '\n';
    return 0;
}
