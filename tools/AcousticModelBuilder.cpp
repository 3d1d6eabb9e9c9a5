#include "AcousticModelBuilder.h"

#include "GermanPronouncer.h"
#include "ModelPhones.h"
#include "content/AppCommon.h"
#include "content/VoAppCommon.h"
#include "content/VoFileUtil.h"
#include "speech/PronunciationList.h"
#include "speech/RecognizerWords.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/verify/ReadingVerifier.h"
#include "speech/verify/VerificationDecoder.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace {

/// The model generator reads alternates up to WORD(5).
constexpr int lastAlternate = 5;

/// The distinct words of the course's phrases as the recogniser splits them, upper-cased, in
/// course order.
QStringList courseWords(const QString &courseFolder)
{
    ContentStore store(courseFolder);
    QStringList words;
    for (const CategoryInfo *category : store.loadAllCategories()) {
        for (const PhraseInfo *phrase : *store.loadPhrases(category->id))
            words += recognizerWords(foreignText(*phrase), true);
    }
    words.removeDuplicates();
    return words;
}

/// The course's words as the quizzes split them, as written, that the recogniser's split would
/// not keep whole: they hold a letter outside A to Z ("Brötchen", "heißen"). One of each by its
/// upper-cased form, which is how they are looked up.
QStringList wholeWordsOnly(const QString &courseFolder)
{
    static const QRegularExpression asciiWord(QStringLiteral("^[A-Za-z']+$"));
    ContentStore store(courseFolder);
    QStringList words;
    QStringList keys;
    for (const CategoryInfo *category : store.loadAllCategories()) {
        for (const PhraseInfo *phrase : *store.loadPhrases(category->id)) {
            for (const QString &word :
                 VoAppCommon::getAllWordFromText(foreignText(*phrase), false)) {
                if (asciiWord.match(word).hasMatch() || keys.contains(word.toUpper()))
                    continue;
                words.append(word);
                keys.append(word.toUpper());
            }
        }
    }
    return words;
}

} // namespace

AcousticModelBuilder::AcousticModelBuilder(Sources sources, QString outputFolder)
    : m_sources(std::move(sources))
    , m_outputFolder(std::move(outputFolder))
{}

bool AcousticModelBuilder::fail(const QString &message)
{
    m_error = message;
    return false;
}

QString AcousticModelBuilder::summary() const
{
    return QStringLiteral("%1: %2 dictionary entries, %3 course words, %4 German pronunciations "
                          "from espeak-ng, %5 whole words")
        .arg(m_outputFolder)
        .arg(m_dictionaryEntries)
        .arg(m_courseWords)
        .arg(m_pronounced)
        .arg(m_wholeWords);
}

bool AcousticModelBuilder::build()
{
    if (!QFileInfo(m_sources.courseFolder).isDir())
        return fail(QStringLiteral("no course at %1").arg(m_sources.courseFolder));
    const std::optional<QStringList> modelPhones =
        readModelPhones(QDir(m_sources.modelFolder).filePath(QStringLiteral("mdef")), m_error);
    if (!modelPhones)
        return false;
    const std::optional<GermanPronouncer> pronouncer =
        GermanPronouncer::fromTable(m_sources.phoneTablePath, *modelPhones, m_error);
    if (!pronouncer)
        return false;
    std::optional<QList<Pronunciation>> list =
        readPronunciationDictionary(m_sources.dictionaryPath, m_error);
    if (!list)
        return false;
    m_dictionaryEntries = list->size();

    QHash<QString, QList<Pronunciation>> known;
    for (const Pronunciation &entry : *list)
        known[entry.word].append(entry);
    const QStringList words = courseWords(m_sources.courseFolder);
    m_courseWords = words.size();
    const std::optional<QStringList> phones = pronouncer->pronounce(words, m_error);
    if (!phones)
        return false;
    // A course word the English dictionary knows gets the German pronunciation as one more
    // alternate: the decoder then hears "die" as D IY as well as D AY. Without these, the course
    // recordings scored a median mark of 7 against their own phrases; with them, 8.
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QList<Pronunciation> english = known.value(words[i]);
        int last = 0;
        bool same = false;
        for (const Pronunciation &entry : english) {
            last = std::max(last, entry.alternate);
            same = same || entry.phones == (*phones)[i];
        }
        if (!same && last < lastAlternate) {
            list->append({words[i], last + 1, (*phones)[i]});
            ++m_pronounced;
        }
    }
    sortForLookup(*list);

    if (!QDir().mkpath(m_outputFolder))
        return fail(QStringLiteral("cannot make the folder %1").arg(m_outputFolder));
    if (!copyModelFiles() || !writeWholeWordList(*pronouncer))
        return false;
    // Written last: the build takes this file for the whole folder.
    const QString listPath =
        QDir(m_outputFolder).filePath(QLatin1String(VoLanguageModelTrainer::lookupListFileName));
    if (!VoFileUtil::writeFileAtomically(listPath, lookupListText(*list)))
        return fail(QStringLiteral("cannot write %1").arg(listPath));
    return true;
}

bool AcousticModelBuilder::writeWholeWordList(const GermanPronouncer &pronouncer)
{
    const QStringList words = wholeWordsOnly(m_sources.courseFolder);
    const std::optional<QStringList> phones = pronouncer.pronounce(words, m_error);
    if (!phones)
        return false;
    QList<Pronunciation> list;
    for (qsizetype i = 0; i < words.size(); ++i)
        list.append({words[i].toUpper(), 1, (*phones)[i]});
    sortForLookup(list);
    m_wholeWords = list.size();
    const QString path =
        QDir(m_outputFolder).filePath(QLatin1String(ReadingVerifier::wholeWordListFileName));
    if (!VoFileUtil::writeFileAtomically(path, lookupListText(list)))
        return fail(QStringLiteral("cannot write %1").arg(path));
    return true;
}

bool AcousticModelBuilder::copyModelFiles()
{
    const QDir model(m_sources.modelFolder);
    const QStringList files = model.entryList(QDir::Files, QDir::Name);
    if (files.isEmpty())
        return fail(QStringLiteral("no model files in %1").arg(m_sources.modelFolder));
    for (const QString &file : files) {
        const std::optional<QByteArray> bytes = VoFileUtil::readFile(model.filePath(file));
        if (!bytes)
            return fail(QStringLiteral("cannot read %1").arg(model.filePath(file)));
        const QString target = QDir(m_outputFolder).filePath(file);
        if (!VoFileUtil::writeFileAtomically(target, *bytes))
            return fail(QStringLiteral("cannot write %1").arg(target));
    }
    return true;
}
