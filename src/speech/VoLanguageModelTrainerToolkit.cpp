// The toolkit chain of VoLanguageModelTrainer: corpus to ARPA model to SphinxBase binary model.
#include "NgramModelFile.h"
#include "SpeechLog.h"
#include "VoLanguageModelTrainer.h"
#include "content/VoFileUtil.h"
#include "content/VoLog.h"
#include "lm/LmToolkit.h"

#include <QElapsedTimer>
#include <QFile>
#include <cstdio>
#include <sphinxbase/err.h>

namespace {

bool toolkitDebugOn = false;

constexpr int quietVerbosity = -1;
constexpr int debugVerbosity = 10;
// Sizes the toolkit's word table starts from and the records its vocabulary step sorts in.
constexpr int initialWordTableSize = 7500;
constexpr int vocabularyRecords = 64000;

void progress(const QString &text)
{
    VoLog::write(lcSpeech(), VoLog::Progress, text);
}

void error(const QString &text)
{
    VoLog::write(lcSpeech(), VoLog::Error, text);
}

/// Opens the file and logs the outcome with the caller's two lines; false when it cannot.
bool openLogged(QFile &file, QIODevice::OpenMode mode, const QString &opened, const QString &failed)
{
    if (file.open(mode)) {
        progress(opened.arg(file.fileName()));
        return true;
    }
    error(failed.arg(file.fileName()) + QLatin1Char(' ') + file.errorString());
    return false;
}

void removeLogged(const QString &path, const QString &named)
{
    if (!QFile::remove(path))
        progress(QStringLiteral("couldn't delete the file %1\n").arg(named));
}

} // namespace

void VoLanguageModelTrainer::setToolkitDebug(bool on)
{
    toolkitDebugOn = on;
}

bool VoLanguageModelTrainer::toolkitDebug()
{
    return toolkitDebugOn;
}

void VoLanguageModelTrainer::createLanguageModelFromFilename(const QString &corpusPath)
{
    QElapsedTimer timer;
    timer.start();
    progress(QStringLiteral("Starting dynamic language model generation"));
    m_algorithmType = QStringLiteral("-witten_bell");
    runCMUCLMTKOnCorpusFile(corpusPath, m_outputDMP);
    if (!QFile::remove(corpusPath))
        error(QStringLiteral("Error while deleting language model corpus: cannot remove %1")
                  .arg(corpusPath));
    progress(QStringLiteral("Done creating language model with CMUCLMTK in %1 seconds.")
                 .arg(static_cast<double>(timer.nsecsElapsed()) / 1e9, 0, 'f', 6));
}

void VoLanguageModelTrainer::runCMUCLMTKOnCorpusFile(const QString &corpusPath, bool withDMP)
{
    m_verbosity = toolkitDebugOn ? debugVerbosity : quietVerbosity;
    const QLatin1String corpusSuffix(".corpus");
    const QString base =
        corpusPath.endsWith(corpusSuffix) ? corpusPath.chopped(corpusSuffix.size()) : corpusPath;
    const QString alternativeCorpusPath = corpusPath + QStringLiteral(".alternative.corpus");
    const QString frequenciesPath = base + QStringLiteral("_pipe.txt");
    const QString vocabularyPath = base + QStringLiteral(".vocab");
    const QString idngramPath = base + QStringLiteral(".idngram");
    const QString contextCuesPath = base + QStringLiteral(".ccs");
    const QString arpaPath = base + QStringLiteral(".arpa");
    const QString dmpPath = base + QStringLiteral(".DMP");

    // The id n-grams are counted over the corpus plus one sentence of a word no phrase has, so
    // that the vocabulary never covers the whole text.
    if (const auto corpus = VoFileUtil::readFile(corpusPath); !corpus)
        error(QStringLiteral("Error: cannot read %1").arg(corpusPath));
    else if (!VoFileUtil::writeFileAtomically(
                 alternativeCorpusPath,
                 *corpus + QByteArrayLiteral("<s> _____REPLACEMENTTOKEN </s>")))
        error(QStringLiteral("Error: cannot write %1").arg(alternativeCorpusPath));

    {
        QFile text(corpusPath);
        QFile frequencies(frequenciesPath);
        const bool textOpen =
            openLogged(text, QIODevice::ReadOnly, QStringLiteral("Able to open %1 for reading"),
                       QStringLiteral("Error: unable to open %1 for reading, error:"));
        const bool frequenciesOpen =
            openLogged(frequencies, QIODevice::WriteOnly | QIODevice::Truncate,
                       QStringLiteral("Able to open %1 for writing"),
                       QStringLiteral("Error: unable to open %1 for writing, error:"));
        progress(QStringLiteral("Starting text2wfreq_impl"));
        // The toolkit logs its own failures; the chain goes on either way.
        if (textOpen && frequenciesOpen)
            lm::text2wfreq(text, frequencies, initialWordTableSize, m_verbosity);
        progress(QStringLiteral("Done with text2wfreq_impl"));
    }
    {
        QFile frequencies(frequenciesPath);
        QFile vocabulary(vocabularyPath);
        const bool frequenciesOpen = openLogged(
            frequencies, QIODevice::ReadOnly, QStringLiteral("Able to open %1 for reading."),
            QStringLiteral("Error: unable to open %1 for reading. error:"));
        const bool vocabularyOpen =
            openLogged(vocabulary, QIODevice::WriteOnly | QIODevice::Truncate,
                       QStringLiteral("Able to open %1 for writing"),
                       QStringLiteral("Error: unable to open %1 for writing error:"));
        progress(QStringLiteral("Starting wfreq2vocab"));
        if (frequenciesOpen && vocabularyOpen)
            lm::wfreq2vocab(frequencies, vocabulary, -1, -1, vocabularyRecords, m_verbosity);
        progress(QStringLiteral("Done with wfreq2vocab"));
    }

    progress(QStringLiteral("Starting text2idngram"));
    lm::text2idngram({QStringLiteral("text2idngram"), QStringLiteral("-vocab"), vocabularyPath,
                      QStringLiteral("-idngram"), idngramPath, QStringLiteral("-textfile"),
                      alternativeCorpusPath, QStringLiteral("-temp_directory"),
                      pathInBase(QStringLiteral("cmuclmtk-XXXXXX"))});
    progress(QStringLiteral("Done with text2idngram"));

    if (!VoFileUtil::writeFileAtomically(contextCuesPath, QByteArrayLiteral("<s>\n</s>")))
        error(QStringLiteral("Error: context cues file was not written out, cannot write %1")
                  .arg(contextCuesPath));

    if (m_algorithmType.isEmpty())
        m_algorithmType = QStringLiteral("-witten_bell");
    progress(QStringLiteral("Starting idngram2lm"));
    lm::idngram2lm({QStringLiteral("idngram2lm"), QStringLiteral("-vocab_type"),
                    QStringLiteral("0"), QStringLiteral("-idngram"), idngramPath,
                    QStringLiteral("-vocab"), vocabularyPath, QStringLiteral("-arpa"), arpaPath,
                    QStringLiteral("-context"), contextCuesPath, m_algorithmType,
                    QStringLiteral("-verbosity"), QString::number(m_verbosity)});
    progress(QStringLiteral("Done with idngram2lm"));

    if (withDMP)
        convertARPAAtPath(arpaPath, dmpPath);

    removeLogged(frequenciesPath, frequenciesPath);
    removeLogged(vocabularyPath, vocabularyPath);
    removeLogged(idngramPath, idngramPath);
    removeLogged(contextCuesPath, contextCuesPath);
    // The message names the context cues, not the alternative corpus: an old slip, kept so
    // that logs read as they always have.
    removeLogged(alternativeCorpusPath, contextCuesPath);
}

bool VoLanguageModelTrainer::convertARPAAtPath(const QString &arpaPath, const QString &dmpPath)
{
    progress(QStringLiteral("Starting sphinx_lm_convert"));
    if (toolkitDebugOn) {
        err_set_logfp(stderr);
        err_set_debug_level(debugVerbosity);
    } else {
        err_set_logfp(nullptr);
    }
    const sphinx::NgramModelPtr model = sphinx::readNgramModel(arpaPath, NGRAM_ARPA);
    const bool converted =
        model &&
        ngram_model_write(model.get(), QFile::encodeName(dmpPath).constData(), NGRAM_BIN) == 0;
    if (!converted)
        error(QStringLiteral("Error: cannot convert the language model %1 to %2")
                  .arg(arpaPath, dmpPath));
    progress(QStringLiteral("Finishing sphinx_lm_convert"));
    return converted;
}
