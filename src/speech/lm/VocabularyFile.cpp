#include "VocabularyFile.h"

#include "LmFiles.h"
#include "LmLog.h"

namespace lm {

std::optional<QByteArrayList> readWordList(const QString &path, const QString &what)
{
    const auto bytes = readFile(path, what);
    if (!bytes)
        return std::nullopt;
    QByteArrayList words;
    for (const QByteArray &line : bytes->split('\n')) {
        if (line.startsWith(commentPrefix))
            continue;
        const QByteArray tokens = line.simplified();
        if (!tokens.isEmpty())
            words += tokens.split(' ');
    }
    return words;
}

std::optional<Vocabulary> Vocabulary::read(const QString &path)
{
    auto words = readWordList(path, QStringLiteral("vocabulary"));
    if (!words)
        return std::nullopt;
    if (words->isEmpty()) {
        logError(QStringLiteral("The vocabulary %1 lists no word").arg(path));
        return std::nullopt;
    }
    Vocabulary vocabulary{*std::move(words), {}};
    vocabulary.ids.reserve(vocabulary.words.size());
    WordId id = 0;
    for (const QByteArray &word : std::as_const(vocabulary.words)) {
        if (vocabulary.ids.contains(word)) {
            // Two ids for one word would make the model list it twice.
            logError(QStringLiteral("The vocabulary %1 lists \"%2\" twice")
                         .arg(path, QString::fromUtf8(word)));
            return std::nullopt;
        }
        vocabulary.ids.insert(word, ++id);
    }
    return vocabulary;
}

} // namespace lm
