#include "CommandLine.h"
#include "content/VoFileUtil.h"
#include "speech/FloatText.h"
#include "speech/VoPSRecognizer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>
#include <optional>

namespace {

/// The word results of a JSON array of objects; no list and the reason on bad input.
std::optional<QList<QVariantMap>> readWordResults(const QString &path, QString &error)
{
    const auto bytes = VoFileUtil::readFile(path);
    if (!bytes) {
        error = QStringLiteral("cannot read %1").arg(path);
        return std::nullopt;
    }
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(*bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        error = QStringLiteral("%1: %2 at offset %3")
                    .arg(path, parseError.errorString())
                    .arg(parseError.offset);
        return std::nullopt;
    }
    if (!document.isArray()) {
        error = QStringLiteral("%1: not an array of word results").arg(path);
        return std::nullopt;
    }
    const QJsonArray entries = document.array();
    QList<QVariantMap> results;
    results.reserve(entries.size());
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (!entries[i].isObject()) {
            error = QStringLiteral("%1: entry %2 is not an object").arg(path).arg(i);
            return std::nullopt;
        }
        results.append(entries[i].toObject().toVariantMap());
    }
    return results;
}

} // namespace

int runScoreCommand(const CommandLine &command)
{
    const QString textOption = QStringLiteral("--text");
    const QString wordsOption = QStringLiteral("--words");
    const ParsedArguments parsed = ParsedArguments::parse(
        command.arguments, {textOption, wordsOption}, {QStringLiteral("--json")});
    if (!parsed.error.isEmpty())
        return command.usageError(parsed.error);
    if (!parsed.positional.isEmpty())
        return command.usageError(
            QStringLiteral("score: unexpected argument %1").arg(parsed.positional.first()));
    if (!parsed.values.contains(textOption) || !parsed.values.contains(wordsOption))
        return command.usageError(QStringLiteral("score needs --text PHRASE and --words FILE"));

    QString error;
    const auto wordResults = readWordResults(parsed.values.value(wordsOption), error);
    if (!wordResults)
        return command.fail(error);

    QVariantMap advices;
    const float score =
        VoPSRecognizer::getScore(*wordResults, parsed.values.value(textOption), advices);
    const auto mark = static_cast<int>(std::floor(score / 10.0f));
    const QString scoreText = shortestFloatText(score);

    if (parsed.flags.contains(QStringLiteral("--json"))) {
        // A double read back from the float's shortest text is written with those same digits.
        const QJsonObject result{{QStringLiteral("score"), scoreText.toDouble()},
                                 {QStringLiteral("mark"), mark},
                                 {QStringLiteral("advice"), QJsonObject::fromVariantMap(advices)}};
        command.out << QJsonDocument(result).toJson(QJsonDocument::Compact) << '\n';
        return 0;
    }
    command.out << "score\t" << scoreText << '\n' << "mark\t" << mark << '\n';
    for (auto it = advices.cbegin(); it != advices.cend(); ++it)
        command.out << it.key() << '\t' << it.value().toString() << '\n';
    return 0;
}
