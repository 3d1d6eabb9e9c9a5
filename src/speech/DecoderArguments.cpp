#include "DecoderArguments.h"

std::vector<arg_t> decoderOptionDefinitions()
{
    std::vector<arg_t> definitions;
    for (const arg_t *definition = ps_args(); definition->name != nullptr; ++definition)
        definitions.push_back(*definition);
    // The texts stay pointers into the library's static table and these literals, which outlive
    // any configuration parsed against this copy.
    definitions.push_back(
        {"-argfile", ARG_STRING, nullptr, "Argument file giving extra arguments."});
    definitions.push_back({nullptr, 0, nullptr, nullptr});
    return definitions;
}

std::optional<DecoderArguments> DecoderArguments::fromCommandArray(const QStringList &commandArray,
                                                                   bool secondItemIsEmpty)
{
    DecoderArguments arguments;
    arguments.commandArray = commandArray;
    arguments.m_texts.reserve(static_cast<size_t>(commandArray.size()));
    arguments.argv.resize(static_cast<size_t>(commandArray.size()));
    // The blank second slot is overwritten by the next loop, so the flag changes nothing; it
    // stays because callers of the original interface pass it.
    static char blank[] = "";
    if (secondItemIsEmpty && arguments.argv.size() > 1)
        arguments.argv[1] = blank;
    for (qsizetype i = 0; i < commandArray.size(); ++i)
        arguments.argv[static_cast<size_t>(i)] =
            arguments.m_texts.emplace_back(commandArray[i].toUtf8()).data();
    arguments.definitions = decoderOptionDefinitions();
    if (commandArray.size() < 3)
        return std::nullopt;
    return arguments;
}
