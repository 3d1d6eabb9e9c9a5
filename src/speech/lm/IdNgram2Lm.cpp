#include "ArpaWriter.h"
#include "IdNgramFile.h"
#include "LmLog.h"
#include "LmToolkit.h"
#include "ToolArguments.h"
#include "VocabularyFile.h"
#include "WittenBellModel.h"

namespace lm {

namespace {

const QString vocabularyTypeOption = QStringLiteral("-vocab_type");
const QString idNgramOption = QStringLiteral("-idngram");
const QString vocabularyOption = QStringLiteral("-vocab");
const QString arpaOption = QStringLiteral("-arpa");
const QString contextOption = QStringLiteral("-context");
const QString verbosityOption = QStringLiteral("-verbosity");
const QString wittenBellSwitch = QStringLiteral("-witten_bell");

// "</s>" is listed among the cues, yet it ends sentences and has to be predicted; every other
// cue only ever stands as context.
std::optional<std::vector<bool>> contextOnlyWords(const QString &path, const Vocabulary &vocabulary)
{
    const auto cues = readWordList(path, QStringLiteral("context cues"));
    if (!cues)
        return std::nullopt;
    std::vector<bool> contextOnly(static_cast<size_t>(vocabulary.words.size()) + 1, false);
    for (const QByteArray &cue : *cues) {
        if (const WordId id = vocabulary.idOf(cue); id != 0 && cue != "</s>")
            contextOnly[id] = true;
    }
    return contextOnly;
}

} // namespace

int idngram2lm(const QStringList &arguments)
{
    const auto options =
        ToolArguments::parse(arguments,
                             {vocabularyTypeOption, idNgramOption, vocabularyOption, arpaOption,
                              contextOption, verbosityOption},
                             {wittenBellSwitch});
    if (!options || !options->require({vocabularyTypeOption, idNgramOption, vocabularyOption,
                                       arpaOption, contextOption, wittenBellSwitch}))
        return 1;
    // Only the combination the model generator asks for is made; the classic defaults differ,
    // so they must be asked for by name rather than assumed.
    if (options->value(vocabularyTypeOption) != QStringLiteral("0")) {
        logError(QStringLiteral("%1: only a closed vocabulary (-vocab_type 0) is supported")
                     .arg(options->program()));
        return 1;
    }
    bool isNumber = true;
    const int verbosity =
        options->has(verbosityOption) ? options->value(verbosityOption).toInt(&isNumber) : 0;
    if (!isNumber) {
        logError(QStringLiteral("%1: -verbosity needs a number").arg(options->program()));
        return 1;
    }

    const auto vocabulary = Vocabulary::read(options->value(vocabularyOption));
    if (!vocabulary)
        return 1;
    auto contextOnly = contextOnlyWords(options->value(contextOption), *vocabulary);
    const auto trigrams = readIdNgrams(options->value(idNgramOption));
    if (!contextOnly || !trigrams)
        return 1;
    const auto model = estimateWittenBell(*trigrams, static_cast<WordId>(vocabulary->words.size()),
                                          *std::move(contextOnly));
    const QString arpaPath = options->value(arpaOption);
    if (!model || !writeArpa(arpaPath, vocabulary->words, *model))
        return 1;
    logProgress(verbosity, QStringLiteral("%1: wrote %2 (%3 2-grams and %4 3-grams estimated)")
                               .arg(options->program(), arpaPath)
                               .arg(model->sections[1].size())
                               .arg(model->sections[2].size()));
    return 0;
}

} // namespace lm
