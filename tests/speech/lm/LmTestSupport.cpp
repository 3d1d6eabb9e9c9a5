#include "LmTestSupport.h"

#include "content/VoFileUtil.h"
#include "speech/VoLanguageModelTrainer.h"

#include <QFile>
#include <QtEndian>

using namespace Qt::StringLiterals;

QByteArray corpusOf(const QByteArrayList &phrases)
{
    return "<s> " + phrases.join(" </s>\n<s> ") + " </s>\n";
}

QByteArray idRecords(std::initializer_list<std::array<quint32, 4>> rows)
{
    QByteArray bytes;
    for (const auto &row : rows) {
        for (const quint32 field : row) {
            char big[4];
            qToBigEndian(field, big);
            bytes.append(big, 4);
        }
    }
    return bytes;
}

ModelFiles::ModelFiles(const QString &folder_)
    : folder(folder_)
    , text(folder + u"/m.corpus.alternative.corpus"_s)
    , vocabulary(folder + u"/m.vocab"_s)
    , idNgrams(folder + u"/m.idngram"_s)
    , contextCues(folder + u"/m.ccs"_s)
    , arpa(folder + u"/m.arpa"_s)
{}

// The temporary folders these live in have no blanks in their paths.
QStringList ModelFiles::text2idngramArguments() const
{
    return u"text2idngram -vocab %1 -idngram %2 -textfile %3 -temp_directory %4/cmuclmtk-XXXXXX"_s
        .arg(vocabulary, idNgrams, text, folder)
        .split(u' ');
}

QStringList ModelFiles::idngram2lmArguments() const
{
    return u"idngram2lm -vocab_type 0 -idngram %1 -vocab %2 -arpa %3 -context %4 -witten_bell "
           u"-verbosity -1"_s.arg(idNgrams, vocabulary, arpa, contextCues)
               .split(u' ');
}

QString generateArpa(const QString &folder, const QByteArray &corpus)
{
    const QString corpusPath = folder + u"/m.corpus"_s;
    if (!VoFileUtil::writeFileAtomically(corpusPath, corpus))
        return {};
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(folder);
    trainer.runCMUCLMTKOnCorpusFile(corpusPath, false);
    const ModelFiles files(folder);
    return QFile::exists(files.arpa) ? files.arpa : QString();
}

ArpaCounts arpaCounts(const QString &path)
{
    ArpaCounts counts;
    int order = 0;
    for (const QByteArray &line : VoFileUtil::readFile(path).value_or(QByteArray()).split('\n')) {
        if (line.startsWith("ngram ") && line.size() > 8)
            counts.announced.at(line.at(6) - '1') = line.mid(8).toLongLong();
        else if (line.endsWith("-grams:"))
            order = line.at(1) - '0';
        else if (line.startsWith('\\'))
            order = 0;
        else if (order > 0 && !line.isEmpty())
            ++counts.listed.at(order - 1);
    }
    return counts;
}
