#include "VoLanguageModelTrainer.h"

#include "SpeechLog.h"
#include "WordOrder.h"
#include "content/TextHelpers.h"
#include "content/VoFileUtil.h"
#include "content/VoLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <algorithm>

namespace {

// The two white-space sets of the generation: blanks alone when entries are compacted (a line
// break inside an entry survives), blanks and line breaks when words are cut out.
const QRegularExpression &blanks()
{
    static const QRegularExpression pattern(QStringLiteral("[\\t\\p{Zs}]+"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return pattern;
}

const QRegularExpression &blankOrLineBreak()
{
    static const QRegularExpression pattern(
        QStringLiteral("[\\p{Z}\\t\\n\\x{000B}\\f\\r\\x{0085}]"),
        QRegularExpression::UseUnicodePropertiesOption);
    return pattern;
}

QString seconds(const QElapsedTimer &timer)
{
    return QString::number(static_cast<double>(timer.nsecsElapsed()) / 1e9, 'f', 6);
}

QString listDescription(const QStringList &entries)
{
    return entries.isEmpty()
               ? QStringLiteral("()")
               : QStringLiteral("(\n    %1\n)").arg(entries.join(QStringLiteral(",\n    ")));
}

QString lineStartingAt(const QString &text, qsizetype start)
{
    const qsizetype end = text.indexOf(QLatin1Char('\n'), start);
    return text.mid(start, end < 0 ? -1 : end - start);
}

LanguageModelError fileError(LanguageModelError::Code code, const QString &description,
                             const QString &path)
{
    return {QString::fromLatin1(LanguageModelError::generalDomain),
            code,
            description,
            {{QStringLiteral("FilePath"), path}}};
}

} // namespace

VoLanguageModelTrainer::VoLanguageModelTrainer()
    : m_lmBasePath(VoFileUtil::getCachesDirectory())
{}

QString VoLanguageModelTrainer::pathInBase(const QString &fileName) const
{
    return QDir(m_lmBasePath).filePath(fileName);
}

QString VoLanguageModelTrainer::corpusPath(const QString &name) const
{
    return pathInBase(name + QStringLiteral(".corpus"));
}

QString VoLanguageModelTrainer::lookupListPath(const QString &acousticModelPath)
{
    return acousticModelPath + QLatin1Char('/') + QLatin1String(lookupListFileName);
}

QString VoLanguageModelTrainer::englishAcousticModelPath() const
{
    if (!m_englishAcousticModelPath.isEmpty())
        return m_englishAcousticModelPath;
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') +
           QLatin1String(englishAcousticModelFolder);
}

const QRegularExpression &VoLanguageModelTrainer::sanitizeDictionaryCharacterSet()
{
    if (!m_sanitizeDictionaryCharacterSet)
        m_sanitizeDictionaryCharacterSet.emplace(QStringLiteral("[^\\p{L}\\p{M}\\p{N}']"),
                                                 QRegularExpression::UseUnicodePropertiesOption);
    return *m_sanitizeDictionaryCharacterSet;
}

LanguageModelError
VoLanguageModelTrainer::generateEnglishLanguageModelFromArray(const QStringList &phrases,
                                                              const QString &name)
{
    return generateLanguageModelFromArray(phrases, name, englishAcousticModelPath());
}

LanguageModelError VoLanguageModelTrainer::generateLanguageModelFromArray(
    const QStringList &phrases, const QString &name, const QString &acousticModelPath)
{
    QElapsedTimer generation;
    generation.start();
    const QString listPath = lookupListPath(acousticModelPath);

    const QStringList entries = compactWhitespaceOfArrayEntries(phrases);
    VoLog::write(lcSpeech(), VoLog::Progress,
                 QStringLiteral("Normalized array contains the following entries:\n") +
                     listDescription(entries));
    if (LanguageModelError noContent = checkModelForContent(entries); !noContent.succeeded())
        return noContent;
    if (LanguageModelError corpusError = writeOutCorpusForArray(entries, name);
        !corpusError.succeeded())
        return corpusError;
    createLanguageModelFromFilename(corpusPath(name));

    const QStringList words = cleanDictionaryWordArray(entries);
    checkPhoneticDictionaryAtAcousticModelPath(acousticModelPath);
    const std::optional<QByteArray> bytes = VoFileUtil::readFile(listPath);
    const std::optional<QString> lookupList =
        bytes ? TextHelpers::fromUtf8Strict(*bytes) : std::nullopt;
    if (!lookupList) {
        const QString description = QStringLiteral("cannot read %1 as UTF-8 text").arg(listPath);
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("Error while trying to load the pronunciation dictionary: ") +
                         description);
        return fileError(LanguageModelError::FileReadFailed, description, listPath);
    }

    QElapsedTimer lookup;
    lookup.start();
    const QStringList lines = performDictionaryLookup(words, *lookupList, listPath);
    VoLog::write(lcSpeech(), VoLog::Progress,
                 QStringLiteral("I'm done running performDictionaryLookup and it took %1 seconds")
                     .arg(seconds(lookup)));

    const QString dictionaryPath = pathInBase(name + QStringLiteral(".dic"));
    if (!VoFileUtil::writeFileAtomically(dictionaryPath, lines.join(QLatin1Char('\n')).toUtf8())) {
        const QString description = QStringLiteral("cannot write %1").arg(dictionaryPath);
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("Error writing out dictionary: ") + description);
        return fileError(LanguageModelError::FileWriteFailed, description, dictionaryPath);
    }

    VoLog::write(
        lcSpeech(), VoLog::Progress,
        QStringLiteral("I'm done running dynamic language model generation and it took %1 seconds")
            .arg(seconds(generation)));
    return {QString::fromLatin1(LanguageModelError::generalDomain),
            LanguageModelError::Success,
            {},
            assembleUserInfoDictionaryForLanguageModelsForFilename(name)};
}

QStringList VoLanguageModelTrainer::compactWhitespaceOfArrayEntries(const QStringList &entries)
{
    QStringList compacted;
    compacted.reserve(entries.size());
    for (const QString &entry : entries)
        compacted.append(entry.split(blanks(), Qt::SkipEmptyParts).join(QLatin1Char(' ')));
    return compacted;
}

LanguageModelError VoLanguageModelTrainer::checkModelForContent(const QStringList &entries)
{
    if (entries.isEmpty() || entries.join(QString()).trimmed().isEmpty())
        return {QString(),
                LanguageModelError::NoContent,
                QStringLiteral("Language model has no content."),
                {}};
    return {};
}

LanguageModelError VoLanguageModelTrainer::writeOutCorpusForArray(const QStringList &entries,
                                                                  const QString &name)
{
    const QString corpus = QStringLiteral("<s> ") + entries.join(QStringLiteral(" </s>\n<s> ")) +
                           QStringLiteral(" </s>\n");
    const QString path = corpusPath(name);
    if (VoFileUtil::writeFileAtomically(path, corpus.toUtf8()))
        return {};
    const QString description = QStringLiteral("cannot write %1").arg(path);
    VoLog::write(lcSpeech(), VoLog::Error,
                 QStringLiteral("Error: file was not written out due to error ") + description);
    return fileError(LanguageModelError::FileWriteFailed, description, path);
}

QStringList VoLanguageModelTrainer::cleanDictionaryWordArray(const QStringList &entries)
{
    const QRegularExpression &unwanted = sanitizeDictionaryCharacterSet();
    QStringList words;
    for (const QString &entry : entries) {
        if (!entry.contains(blankOrLineBreak())) {
            words.append(QString(entry).remove(unwanted));
            continue;
        }
        // Empty pieces stay: they cannot be found and are dropped by the lookup.
        for (const QString &piece : entry.split(blankOrLineBreak()))
            words.append(QString(piece).remove(unwanted));
    }
    words.removeDuplicates();
    std::stable_sort(words.begin(), words.end(), wordLessThan);
    return words;
}

bool VoLanguageModelTrainer::checkPhoneticDictionaryAtAcousticModelPath(
    const QString &acousticModelPath)
{
    const QString path = lookupListPath(acousticModelPath);
    const QFileInfo list(path);
    if (list.isFile() && list.isReadable())
        return true;
    VoLog::write(lcSpeech(), VoLog::Error,
                 QStringLiteral("Error: the default phonetic dictionary %1 can't be found in the "
                                "app bundle but the app is attempting to access it, most likely "
                                "there will be a crash now.")
                     .arg(path));
    return false;
}

QStringList VoLanguageModelTrainer::performDictionaryLookup(QStringList words,
                                                            const QString &lookupList,
                                                            const QString &lookupListPath)
{
    // Alternates are searched in a short window after the previous find, not in the whole rest.
    constexpr qsizetype windowCap = 750;
    constexpr qsizetype windowDivisor = 5;
    constexpr int lastAlternate = 5;

    QStringList found;
    qsizetype position = 0;
    while (!words.isEmpty() && position != lookupList.size()) {
        const QString word = words.takeFirst();
        const qsizetype at = lookupList.indexOf(QLatin1Char('\n') + word + QLatin1Char('\t'),
                                                position, Qt::CaseSensitive);
        if (at < 0) {
            VoLog::write(lcSpeech(), VoLog::Progress,
                         QStringLiteral("The word %1 was not found in the dictionary "
                                        "%2/LanguageModelGeneratorLookupList.text.")
                             .arg(word, lookupListPath));
            VoLog::write(lcSpeech(), VoLog::Progress,
                         QStringLiteral("we are dropping the word %1 from the "
                                        "dynamically-created phonetic dictionary.")
                             .arg(word));
            continue;
        }
        found.append(lineStartingAt(lookupList, at + 1));
        const qsizetype window = std::min(lookupList.size() - at, windowCap) / windowDivisor;
        qsizetype previous = at;
        for (int n = 2; n <= lastAlternate; ++n) {
            const QString alternate =
                QLatin1Char('\n') + word + QLatin1Char('(') + QString::number(n);
            const qsizetype offset = QStringView(lookupList)
                                         .mid(previous, window)
                                         .indexOf(alternate, 0, Qt::CaseSensitive);
            if (offset < 0)
                break;
            previous += offset;
            found.append(lineStartingAt(lookupList, previous + 1));
        }
        position = at + 1;
    }
    return found;
}

QVariantMap VoLanguageModelTrainer::assembleUserInfoDictionaryForLanguageModelsForFilename(
    const QString &name) const
{
    const QString lmFile = name + QStringLiteral(".DMP");
    const QString dictionaryFile = name + QStringLiteral(".dic");
    return {{QStringLiteral("LMFile"), lmFile},
            {QStringLiteral("DictionaryFile"), dictionaryFile},
            {QStringLiteral("LMPath"), pathInBase(lmFile)},
            {QStringLiteral("DictionaryPath"), pathInBase(dictionaryFile)}};
}
