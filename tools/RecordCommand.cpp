#include "CommandLine.h"
#include "app/UserRecord.h"
#include "content/UserInfoFile.h"

int runRecordCommand(const CommandLine &command)
{
    const ParsedArguments parsed =
        ParsedArguments::parse(command.arguments, {QStringLiteral("--record")});
    if (!parsed.error.isEmpty())
        return command.usageError(parsed.error);
    if (parsed.positional != QStringList{QStringLiteral("show")})
        return command.usageError(QStringLiteral("record knows only \"show\""));

    const UserInfoFile file = parsed.values.contains(QStringLiteral("--record"))
                                  ? UserInfoFile(parsed.values.value(QStringLiteral("--record")))
                                  : UserInfoFile();
    if (!file.exists())
        return command.fail(QStringLiteral("no user record at %1").arg(file.path()));
    const QVariantMap record = file.read();
    if (record.isEmpty())
        return command.fail(QStringLiteral("the user record at %1 is damaged").arg(file.path()));
    // Every counter must be there and be an integer; a damaged one ends the tool with one line.
    for (const QString &key : initialUserInfo().keys())
        (void)UserInfoFile::intFrom(record, key, file.path());

    for (auto it = record.cbegin(); it != record.cend(); ++it)
        command.out << it.key() << '\t' << it.value().toLongLong() << '\n';
    command.out << "experience\t" << totalExperience(record) << '\n';
    return 0;
}
