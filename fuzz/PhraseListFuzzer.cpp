#include "FuzzSupport.h"
#include "content/AppCommon.h"
#include "content/VoCryptor.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

// A category's phrase list after deciphering: the input is the JSON, enciphered here the way the
// build enciphers the course, so that every input reaches the parser and the phrase checks.

namespace {

const QString categoryId = QStringLiteral("7");

const QTemporaryDir &course()
{
    static const QTemporaryDir folder = [] {
        QTemporaryDir made;
        QDir(made.path()).mkpath(categoryId);
        const QJsonObject info{{QStringLiteral("id"), 7},
                               {QStringLiteral("name"), QStringLiteral("Zahlen")},
                               {QStringLiteral("nameTrans"), QJsonObject{}}};
        fuzz::writeFile(made.filePath(categoryId + QStringLiteral("/pkgInfo")),
                        QJsonDocument(info).toJson());
        return made;
    }();
    return folder;
}

// The phrase as the file holds it, to hold the loaded one against.
void checkPhrase(const PhraseInfo &phrase, const QJsonObject &source, qsizetype index)
{
    const QJsonValue id = source.value(QLatin1String("id"));
    // An "id" that is no integer has no decimal text to stand for it.
    fuzz::check(id.isDouble() && id.toDouble() == static_cast<double>(id.toInteger()));
    fuzz::check(phrase.id == QString::number(id.toInteger()));
    fuzz::check(phrase.content == source.value(QLatin1String("txt")).toString());
    fuzz::check(phrase.categoryId == categoryId && phrase.indexInCategory == index);
    for (auto it = phrase.trans.cbegin(); it != phrase.trans.cend(); ++it)
        fuzz::check(source.value(QLatin1String("wTrans"))[it.key()].toString() == it.value());
    (void)foreignText(phrase);
    (void)translation(phrase, QStringLiteral("fr"));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::setUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json = fuzz::bytesOf(data, size);
    const auto cipher = VoCryptor::encryptData(json, VoCryptor::Encipher, VoCryptor::contentKey);
    if (!cipher || !fuzz::writeFile(course().filePath(categoryId + QStringLiteral("/phrasesInfo")),
                                    cipher->toBase64()))
        return 0;

    ContentStore store(course().path());
    try {
        const QList<PhraseInfo *> *phrases = store.loadPhrases(categoryId);
        fuzz::check(phrases != nullptr);
        // Whatever the store accepted is a JSON array of objects.
        const QJsonArray source = QJsonDocument::fromJson(json).array();
        fuzz::check(phrases->size() == source.size());
        for (qsizetype i = 0; i < phrases->size(); ++i) {
            checkPhrase(*(*phrases)[i], source[i].toObject(), i);
            (void)store.imagePath(*(*phrases)[i]);
        }
        fuzz::check(store.loadPhrases(categoryId) == phrases);
    } catch (const fuzz::Rejected &) {
    }
    return 0;
}
