#include "FuzzSupport.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/lm/LmToolkit.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <fuzzer/FuzzedDataProvider.h>

// The language-model toolkit on files it did not write itself. The first byte, modulo 3, picks
// the files:
//  0  the corpus, run through the model generator's whole chain (all four steps and the
//     conversion to SphinxBase's binary model), as a phrase's model is made: a model the
//     toolkit writes must be one SphinxBase reads, the decoder has no other;
//  1  a vocabulary, context cues and id n-grams for idngram2lm;
//  2  a vocabulary and a text for text2idngram, whose id n-grams then go to idngram2lm.

namespace {

const QTemporaryDir &folder()
{
    static const QTemporaryDir made;
    return made;
}

QString path(const char *name)
{
    return folder().filePath(QString::fromLatin1(name));
}

void clearFolder()
{
    QDir dir(folder().path());
    for (const QString &entry : dir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        if (!dir.remove(entry))
            QDir(dir.filePath(entry)).removeRecursively();
    }
}

void runChain(const QByteArray &corpus)
{
    if (!fuzz::writeFile(path("phrase.corpus"), corpus))
        return;
    static VoLanguageModelTrainer trainer = [] {
        VoLanguageModelTrainer made;
        made.setLmBasePath(folder().path());
        return made;
    }();
    trainer.runCMUCLMTKOnCorpusFile(path("phrase.corpus"), true);
    if (QFileInfo::exists(path("phrase.arpa")))
        fuzz::check(QFileInfo::exists(path("phrase.DMP")));
}

int modelStep()
{
    return lm::idngram2lm({QStringLiteral("idngram2lm"), QStringLiteral("-vocab_type"),
                           QStringLiteral("0"), QStringLiteral("-idngram"), path("lm.idngram"),
                           QStringLiteral("-vocab"), path("lm.vocab"), QStringLiteral("-arpa"),
                           path("lm.arpa"), QStringLiteral("-context"), path("lm.ccs"),
                           QStringLiteral("-witten_bell")});
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::setUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    FuzzedDataProvider input(data + 1, size - 1);
    clearFolder();
    switch (data[0] % 3) {
    case 0:
        runChain(fuzz::bytesOf(data + 1, size - 1));
        break;
    case 1: {
        const std::string vocabulary = input.ConsumeRandomLengthString(512);
        const std::string cues = input.ConsumeRandomLengthString(64);
        const std::string idNgrams = input.ConsumeRemainingBytesAsString();
        if (fuzz::writeFile(path("lm.vocab"), QByteArray::fromStdString(vocabulary)) &&
            fuzz::writeFile(path("lm.ccs"), QByteArray::fromStdString(cues)) &&
            fuzz::writeFile(path("lm.idngram"), QByteArray::fromStdString(idNgrams)))
            (void)modelStep();
        break;
    }
    default: {
        const std::string vocabulary = input.ConsumeRandomLengthString(512);
        const std::string text = input.ConsumeRemainingBytesAsString();
        if (!fuzz::writeFile(path("lm.vocab"), QByteArray::fromStdString(vocabulary)) ||
            !fuzz::writeFile(path("lm.text"), QByteArray::fromStdString(text)) ||
            !fuzz::writeFile(path("lm.ccs"), QByteArrayLiteral("<s>\n</s>")))
            break;
        if (lm::text2idngram({QStringLiteral("text2idngram"), QStringLiteral("-vocab"),
                              path("lm.vocab"), QStringLiteral("-idngram"), path("lm.idngram"),
                              QStringLiteral("-textfile"), path("lm.text"),
                              QStringLiteral("-temp_directory"), path("scratch-XXXXXX")}) == 0)
            (void)modelStep();
        break;
    }
    }
    return 0;
}
