#include "CommandLine.h"
#include "content/VoCryptor.h"

#include <functional>
#include <map>

namespace {

struct CryptAction {
    qsizetype minPaths;
    qsizetype maxPaths;
    std::function<bool(const QStringList &, const QString &)> run;
};

} // namespace

// File forms of the cipher, for preparing content. The key defaults to the course's content key.
int runCryptCommand(const CommandLine &command)
{
    const std::map<QString, CryptAction> actions{
        {QStringLiteral("encipher-plist"),
         {1, 2,
          [](const QStringList &paths, const QString &key) {
              return paths.size() == 1
                         ? VoCryptor::encryptWithDESForFile(paths[0], key)
                         : VoCryptor::encryptWithDESForPlistFile(paths[0], paths[1], key);
          }}},
        {QStringLiteral("decipher-file"),
         {1, 1,
          [](const QStringList &paths, const QString &key) {
              return VoCryptor::decryptWithDESForFile(paths[0], key);
          }}},
        {QStringLiteral("encipher-data"),
         {2, 2,
          [](const QStringList &paths, const QString &key) {
              return VoCryptor::encryptWithDESForDataFile(paths[0], paths[1], key);
          }}},
        {QStringLiteral("decipher-data"),
         {2, 2,
          [](const QStringList &paths, const QString &key) {
              return VoCryptor::decryptWithDESForDataFile(paths[0], paths[1], key);
          }}},
    };

    const ParsedArguments parsed =
        ParsedArguments::parse(command.arguments, {QStringLiteral("--key")});
    if (!parsed.error.isEmpty())
        return command.usageError(parsed.error);
    if (parsed.positional.isEmpty())
        return command.usageError(QStringLiteral("crypt needs an action"));
    const auto action = actions.find(parsed.positional.first());
    if (action == actions.end())
        return command.usageError(
            QStringLiteral("unknown crypt action \"%1\"").arg(parsed.positional.first()));
    const QStringList paths = parsed.positional.mid(1);
    if (paths.size() < action->second.minPaths || paths.size() > action->second.maxPaths)
        return command.usageError(
            QStringLiteral("wrong number of files for %1").arg(action->first));
    const QString key = parsed.values.value(QStringLiteral("--key"), VoCryptor::contentKey);
    if (key.isEmpty())
        return command.usageError(QStringLiteral("the key is empty"));
    if (!action->second.run(paths, key))
        return command.fail(QStringLiteral("%1 failed: the input cannot be read or deciphered "
                                           "with this key, or the output cannot be written")
                                .arg(action->first));
    return 0;
}
