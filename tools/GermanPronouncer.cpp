#include "GermanPronouncer.h"

#include "content/TextHelpers.h"
#include "content/VoFileUtil.h"

#include <QProcess>
#include <QRegularExpression>

namespace {

// espeak-ng puts this between phonemes when asked for "--sep=z", so that multi-letter phonemes
// ("aI", "ts", "_!") need no knowledge of its inventory to be told apart.
constexpr char16_t phonemeSeparator = u'\u200c';
constexpr int espeakTimeoutMs = 120000;

/// espeak-ng's phonemes for each word, one text per word. One process for all words: each
/// word is its own sentence, so each gives exactly one line.
std::optional<QStringList> espeakPhonemes(const QStringList &words, QString &error)
{
    QProcess espeak;
    espeak.start(QStringLiteral("espeak-ng"),
                 {QStringLiteral("-v"), QStringLiteral("de"), QStringLiteral("-q"),
                  QStringLiteral("-x"), QStringLiteral("--sep=z"), QStringLiteral("--stdin")});
    if (!espeak.waitForStarted()) {
        error = QStringLiteral("cannot start espeak-ng (is it installed?)");
        return std::nullopt;
    }
    QString input;
    for (const QString &word : words)
        input += word.toLower() + QStringLiteral(".\n");
    espeak.write(input.toUtf8());
    espeak.closeWriteChannel();
    if (!espeak.waitForFinished(espeakTimeoutMs) || espeak.exitStatus() != QProcess::NormalExit ||
        espeak.exitCode() != 0) {
        error = QStringLiteral("espeak-ng failed: %1")
                    .arg(QString::fromLocal8Bit(espeak.readAllStandardError()).trimmed());
        return std::nullopt;
    }
    QStringList lines = QString::fromUtf8(espeak.readAllStandardOutput()).split(QLatin1Char('\n'));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    if (lines.size() != words.size()) {
        error = QStringLiteral("espeak-ng gave %1 lines of phonemes for %2 words")
                    .arg(lines.size())
                    .arg(words.size());
        return std::nullopt;
    }
    return lines;
}

} // namespace

std::optional<GermanPronouncer> GermanPronouncer::fromTable(const QString &tablePath,
                                                            const QStringList &modelPhones,
                                                            QString &error)
{
    const std::optional<QByteArray> bytes = VoFileUtil::readFile(tablePath);
    const std::optional<QString> text = bytes ? TextHelpers::fromUtf8Strict(*bytes) : std::nullopt;
    if (!text) {
        error = QStringLiteral("cannot read the phone table %1 as UTF-8 text").arg(tablePath);
        return std::nullopt;
    }
    GermanPronouncer pronouncer;
    pronouncer.m_tablePath = tablePath;
    const QStringList lines = text->split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString &line = lines[i];
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList columns = line.split(QLatin1Char('\t'));
        const QString where = QStringLiteral("%1 line %2").arg(tablePath).arg(i + 1);
        if (columns.size() != 2 || columns[0].isEmpty()) {
            error = where + QStringLiteral(" is not \"phoneme<TAB>phones\"");
            return std::nullopt;
        }
        if (pronouncer.m_phones.contains(columns[0])) {
            error = where + QStringLiteral(" repeats the phoneme \"%1\"").arg(columns[0]);
            return std::nullopt;
        }
        const QStringList phones = columns[1].split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &phone : phones) {
            if (!modelPhones.contains(phone)) {
                error = where + QStringLiteral(" maps to \"%1\", which the model lacks").arg(phone);
                return std::nullopt;
            }
        }
        pronouncer.m_phones.insert(columns[0], phones);
    }
    return pronouncer;
}

std::optional<QStringList> GermanPronouncer::pronounce(const QStringList &words,
                                                       QString &error) const
{
    if (words.isEmpty())
        return QStringList();
    const std::optional<QStringList> phonemes = espeakPhonemes(words, error);
    if (!phonemes)
        return std::nullopt;
    QStringList pronunciations;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const std::optional<QString> phones = phonesOf(words[i], (*phonemes)[i], error);
        if (!phones)
            return std::nullopt;
        pronunciations.append(*phones);
    }
    return pronunciations;
}

std::optional<QString> GermanPronouncer::phonesOf(const QString &word, const QString &phonemes,
                                                  QString &error) const
{
    // Stress marks belong to syllables, not sounds; "(en)" and "(de)" mark where espeak-ng
    // switches language for a loanword.
    static const QRegularExpression stress(QStringLiteral("^[',%=]+"));
    static const QRegularExpression languageSwitch(QStringLiteral("^\\([a-z-]+\\)$"));
    static const QRegularExpression separators(
        QStringLiteral("[\\s%1]+").arg(QChar(phonemeSeparator)));

    QStringList phones;
    for (QString phoneme : phonemes.split(separators, Qt::SkipEmptyParts)) {
        if (languageSwitch.match(phoneme).hasMatch())
            continue;
        phoneme.remove(stress);
        if (phoneme.isEmpty())
            continue;
        const auto mapped = m_phones.constFind(phoneme);
        if (mapped == m_phones.constEnd()) {
            error = QStringLiteral("the espeak-ng phoneme \"%1\" of the word \"%2\" has no phones "
                                   "in %3; add it there")
                        .arg(phoneme, word, m_tablePath);
            return std::nullopt;
        }
        phones += *mapped;
    }
    if (phones.isEmpty()) {
        error = QStringLiteral("the word \"%1\" gets no pronunciation (espeak-ng says \"%2\")")
                    .arg(word, phonemes);
        return std::nullopt;
    }
    return phones.join(QLatin1Char(' '));
}
