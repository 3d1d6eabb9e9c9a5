#include "CommandLine.h"
#include "CourseBuilder.h"
#include "content/AppCommon.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

int listContent(const CommandLine &command, const QStringList &arguments)
{
    const ParsedArguments parsed =
        ParsedArguments::parse(arguments, {QStringLiteral("--resources"), QStringLiteral("--lang"),
                                           QStringLiteral("--category")});
    if (!parsed.error.isEmpty())
        return command.usageError(parsed.error);
    if (!parsed.positional.isEmpty())
        return command.usageError(
            QStringLiteral("unexpected argument %1").arg(parsed.positional.first()));

    const QString root =
        parsed.values.value(QStringLiteral("--resources"), QCoreApplication::applicationDirPath() +
                                                               QStringLiteral("/resources.bundle"));
    if (!QFileInfo(root).isDir())
        return command.fail(QStringLiteral("no course at %1").arg(root));
    const QString language = parsed.values.value(QStringLiteral("--lang"), defaultLanguageCode());
    if (!supportedLanguageCodes().contains(language))
        return command.usageError(
            QStringLiteral("unknown language code \"%1\"; known: %2")
                .arg(language, supportedLanguageCodes().join(QLatin1Char(' '))));

    ContentStore store(root);
    if (!parsed.values.contains(QStringLiteral("--category"))) {
        for (const CategoryInfo *category : store.loadAllCategories()) {
            command.out << category->id << '\t' << translatedName(*category, language) << '\t'
                        << store.loadPhrases(category->id)->size() << '\n';
        }
        return 0;
    }

    const QString categoryId = parsed.values.value(QStringLiteral("--category"));
    const auto *phrases = store.loadPhrases(categoryId);
    if (!phrases)
        return command.fail(QStringLiteral("no category with id \"%1\"").arg(categoryId));
    for (PhraseInfo *phrase : *phrases) {
        command.out << phrase->id << '\t' << foreignText(*phrase) << '\t' << phrase->phon << '\t'
                    << translation(*phrase, language) << '\t' << store.soundPath(*phrase) << '\t'
                    << store.imagePath(*phrase) << '\n';
    }
    return 0;
}

int buildContent(const CommandLine &command, const QStringList &arguments)
{
    const ParsedArguments parsed = ParsedArguments::parse(arguments, {});
    if (!parsed.error.isEmpty())
        return command.usageError(parsed.error);
    if (parsed.positional.size() != 2)
        return command.usageError(QStringLiteral("content build needs SRC and OUT"));
    CourseBuilder builder(parsed.positional[0], parsed.positional[1]);
    if (!builder.build()) {
        return command.fail(builder.error());
    }
    command.out << builder.summary() << '\n';
    return 0;
}

} // namespace

int runContentCommand(const CommandLine &command)
{
    const QString action = command.arguments.value(0);
    const QStringList rest = command.arguments.mid(1);
    if (action == QLatin1String("list"))
        return listContent(command, rest);
    if (action == QLatin1String("build"))
        return buildContent(command, rest);
    return command.usageError(QStringLiteral("content needs \"list\" or \"build\""));
}
