#include "AcousticModelBuilder.h"
#include "CommandLine.h"

int runAcousticCommand(const CommandLine &command)
{
    if (command.arguments.value(0) != QLatin1String("build"))
        return command.usageError(QStringLiteral("acoustic needs the sub-command build"));
    const QStringList options{QStringLiteral("--course"), QStringLiteral("--model"),
                              QStringLiteral("--dict"), QStringLiteral("--phones")};
    const ParsedArguments parsed = ParsedArguments::parse(command.arguments.mid(1), options);
    if (!parsed.error.isEmpty())
        return command.usageError(parsed.error);
    for (const QString &option : options) {
        if (!parsed.values.contains(option))
            return command.usageError(QStringLiteral("acoustic build needs %1").arg(option));
    }
    if (parsed.positional.size() != 1)
        return command.usageError(QStringLiteral("acoustic build needs one output folder"));

    AcousticModelBuilder builder({parsed.values.value(options[0]), parsed.values.value(options[1]),
                                  parsed.values.value(options[2]), parsed.values.value(options[3])},
                                 parsed.positional.first());
    if (!builder.build())
        return command.fail(builder.error());
    command.out << builder.summary() << '\n';
    return 0;
}
