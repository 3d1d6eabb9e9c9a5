#include "CorpusTokens.h"
#include "IdNgramFile.h"
#include "LmLog.h"
#include "LmToolkit.h"
#include "ToolArguments.h"
#include "VocabularyFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace lm {

namespace {

const QString vocabularyOption = QStringLiteral("-vocab");
const QString idNgramOption = QStringLiteral("-idngram");
const QString textOption = QStringLiteral("-textfile");
const QString temporaryOption = QStringLiteral("-temp_directory");

} // namespace

int text2idngram(const QStringList &arguments)
{
    const auto options = ToolArguments::parse(
        arguments, {vocabularyOption, idNgramOption, textOption, temporaryOption}, {});
    if (!options || !options->require({vocabularyOption, idNgramOption, textOption}))
        return 1;
    const auto vocabulary = Vocabulary::read(options->value(vocabularyOption));
    if (!vocabulary)
        return 1;

    // The counting happens in memory and leaves this folder empty; it is still made from the
    // template and removed, so that a template that cannot be made fails as the option promises.
    const QString pattern = options->has(temporaryOption)
                                ? options->value(temporaryOption)
                                : QDir::tempPath() + QStringLiteral("/text2idngram-XXXXXX");
    const QTemporaryDir scratch(pattern);
    if (!scratch.isValid()) {
        logError(QStringLiteral("%1: cannot make a temporary folder from %2: %3")
                     .arg(options->program(), pattern, scratch.errorString()));
        return 1;
    }

    const QString textPath = options->value(textOption);
    QFile text(textPath);
    if (!text.open(QIODevice::ReadOnly)) {
        logError(QStringLiteral("%1: cannot open the text %2: %3")
                     .arg(options->program(), textPath, text.errorString()));
        return 1;
    }
    // Two unknown words stand before the text, so that every token ends exactly one 3-gram: the
    // model step then finds the lower-order counts of the first tokens too.
    std::vector<IdTrigram> trigrams;
    std::array<WordId, 3> window{};
    if (!forEachToken(text, [&](QByteArrayView token) {
            window = {window[1], window[2], vocabulary->idOf(token.toByteArray())};
            trigrams.push_back({window, 1});
        }))
        return 1;
    if (trigrams.empty()) {
        logError(
            QStringLiteral("%1: the text %2 holds no words").arg(options->program(), textPath));
        return 1;
    }
    sortAndMerge(trigrams);
    return writeIdNgrams(options->value(idNgramOption), trigrams) ? 0 : 1;
}

} // namespace lm
