#include "LmTestSupport.h"

#include "content/VoFileUtil.h"
#include "speech/lm/LmToolkit.h"

#include <QFile>
#include <QMutex>
#include <cmath>
#include <gtest/gtest.h>

QByteArray corpusOf(const QByteArrayList &phrases)
{
    return "<s> " + phrases.join(" </s>\n<s> ") + " </s>\n";
}

ModelFiles::ModelFiles(const QString &folder_, const QString &name)
    : folder(folder_)
{
    const QString base = folder + u'/' + name;
    corpus = base + QStringLiteral(".corpus");
    alternativeCorpus = corpus + QStringLiteral(".alternative.corpus");
    frequencies = base + QStringLiteral("_pipe.txt");
    vocabulary = base + QStringLiteral(".vocab");
    idNgrams = base + QStringLiteral(".idngram");
    contextCues = base + QStringLiteral(".ccs");
    arpa = base + QStringLiteral(".arpa");
}

QStringList ModelFiles::text2idngramArguments() const
{
    return {QStringLiteral("text2idngram"),
            QStringLiteral("-vocab"),
            vocabulary,
            QStringLiteral("-idngram"),
            idNgrams,
            QStringLiteral("-textfile"),
            alternativeCorpus,
            QStringLiteral("-temp_directory"),
            folder + QStringLiteral("/cmuclmtk-XXXXXX")};
}

QStringList ModelFiles::idngram2lmArguments() const
{
    return {QStringLiteral("idngram2lm"),
            QStringLiteral("-vocab_type"),
            QStringLiteral("0"),
            QStringLiteral("-idngram"),
            idNgrams,
            QStringLiteral("-vocab"),
            vocabulary,
            QStringLiteral("-arpa"),
            arpa,
            QStringLiteral("-context"),
            contextCues,
            QStringLiteral("-witten_bell"),
            QStringLiteral("-verbosity"),
            QStringLiteral("-1")};
}

bool buildModel(const ModelFiles &files, const QByteArray &corpus)
{
    if (!VoFileUtil::writeFileAtomically(files.corpus, corpus) ||
        !VoFileUtil::writeFileAtomically(files.alternativeCorpus,
                                         corpus + "<s> _____REPLACEMENTTOKEN </s>") ||
        !VoFileUtil::writeFileAtomically(files.contextCues, "<s>\n</s>"))
        return false;
    {
        QFile text(files.corpus);
        QFile frequencies(files.frequencies);
        if (!text.open(QIODevice::ReadOnly) || !frequencies.open(QIODevice::WriteOnly) ||
            !lm::text2wfreq(text, frequencies, 7500, -1))
            return false;
    }
    {
        QFile frequencies(files.frequencies);
        QFile vocabulary(files.vocabulary);
        if (!frequencies.open(QIODevice::ReadOnly) || !vocabulary.open(QIODevice::WriteOnly) ||
            !lm::wfreq2vocab(frequencies, vocabulary, -1, -1, 64000, -1))
            return false;
    }
    return lm::text2idngram(files.text2idngramArguments()) == 0 &&
           lm::idngram2lm(files.idngram2lmArguments()) == 0;
}

NgramTables NgramTables::fromArpa(const QString &path)
{
    NgramTables tables;
    const auto text = VoFileUtil::readFile(path);
    if (!text) {
        ADD_FAILURE() << "cannot read " << path.toStdString();
        return tables;
    }
    const QByteArrayList lines = text->split('\n');
    const qsizetype data = lines.indexOf("\\data\\");
    if (data < 0 || lines.size() < data + 4) {
        ADD_FAILURE() << path.toStdString() << " has no \\data\\ header";
        return tables;
    }
    for (int order = 1; order <= 3; ++order)
        tables.headerCounts[order - 1] = lines[data + order].mid(8).toLongLong(); // "ngram N=count"
    int order = 0;
    for (qsizetype i = data + 4; i < lines.size(); ++i) {
        const QByteArray line = lines[i].trimmed();
        if (line.endsWith("-grams:")) {
            order = line.mid(1, 1).toInt();
            continue;
        }
        if (line.isEmpty() || line == "\\end\\" || order == 0)
            continue;
        const QByteArrayList fields = line.simplified().split(' ');
        if (fields.size() < order + 1) {
            ADD_FAILURE() << "short line in " << path.toStdString() << ": " << line.toStdString();
            continue;
        }
        Entry entry{fields[0].toDouble(),
                    fields.size() > order + 1 ? fields.last().toDouble() : 0.0};
        const QByteArray key = fields.mid(1, order).join(' ');
        tables.sections[order - 1].insert(key, entry);
        if (order == 1)
            tables.words += key;
    }
    return tables;
}

NgramTables NgramTables::fromModel(const lm::TrigramModel &model, const QByteArrayList &words)
{
    NgramTables tables;
    tables.words = words;
    for (int order = 1; order <= 3; ++order) {
        for (const lm::ArpaEntry &entry : model.sections[order - 1]) {
            QByteArrayList key;
            for (int place = 0; place < order; ++place)
                key += words[entry.ids[place] - 1];
            tables.sections[order - 1].insert(key.join(' '),
                                              {entry.log10Probability, entry.log10Backoff});
        }
        tables.headerCounts[order - 1] = tables.sections[order - 1].size();
    }
    return tables;
}

double NgramTables::log10Probability(const QByteArrayList &history, const QByteArray &word) const
{
    const qsizetype order = history.size() + 1;
    const QByteArray key = (history + QByteArrayList{word}).join(' ');
    if (const auto it = sections[order - 1].find(key); it != sections[order - 1].end())
        return it->log10Probability;
    if (history.isEmpty())
        return -99.0; // no such word in a closed vocabulary
    const auto context = sections[order - 2].find(history.join(' '));
    const double backoff = context != sections[order - 2].end() ? context->log10Backoff : 0.0;
    return backoff + log10Probability(history.mid(1), word);
}

QList<QByteArrayList> NgramTables::histories() const
{
    QList<QByteArrayList> all{{}};
    for (const QByteArray &word : words)
        all += QByteArrayList{word};
    for (const QByteArray &bigram : sections[1].keys())
        all += bigram.split(' ');
    return all;
}

namespace {

QMutex capturedMutex;
QStringList captured;
QtMessageHandler previousHandler = nullptr;

void captureLmLines(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtCriticalMsg && qstrcmp(context.category, "tolvane.speech.lm") == 0) {
        const QMutexLocker lock(&capturedMutex);
        captured += text;
    }
    if (previousHandler)
        previousHandler(type, context, text);
}

} // namespace

LmLogCapture::LmLogCapture()
{
    captured.clear();
    previousHandler = qInstallMessageHandler(captureLmLines);
}

LmLogCapture::~LmLogCapture()
{
    qInstallMessageHandler(previousHandler);
}

QStringList LmLogCapture::errors() const
{
    const QMutexLocker lock(&capturedMutex);
    return captured;
}
