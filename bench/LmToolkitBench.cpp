#include "speech/lm/LmToolkit.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

// What the model generator hands the toolkit for a six-word phrase.
const QByteArray corpus = "<s> ICH HAETTE GERN EINEN KAFFEE BITTE </s>\n";

struct ChainFiles {
    explicit ChainFiles(const QString &folder)
        : corpus(folder + QStringLiteral("/m.corpus"))
        , alternative(corpus + QStringLiteral(".alternative.corpus"))
        , frequencies(folder + QStringLiteral("/m_pipe.txt"))
        , vocabulary(folder + QStringLiteral("/m.vocab"))
        , idNgrams(folder + QStringLiteral("/m.idngram"))
        , contextCues(folder + QStringLiteral("/m.ccs"))
        , arpa(folder + QStringLiteral("/m.arpa"))
        , temporary(folder + QStringLiteral("/cmuclmtk-XXXXXX"))
    {}
    QString corpus, alternative, frequencies, vocabulary, idNgrams, contextCues, arpa, temporary;
};

bool writeInputs(const ChainFiles &files)
{
    const std::pair<QString, QByteArray> inputs[] = {
        {files.corpus, corpus},
        {files.alternative, corpus + "<s> _____REPLACEMENTTOKEN </s>"},
        {files.contextCues, "<s>\n</s>"}};
    for (const auto &[path, bytes] : inputs) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return false;
    }
    return true;
}

bool runStep(const ChainFiles &files, int step)
{
    switch (step) {
    case 0: {
        QFile text(files.corpus);
        QFile frequencies(files.frequencies);
        return text.open(QIODevice::ReadOnly) && frequencies.open(QIODevice::WriteOnly) &&
               lm::text2wfreq(text, frequencies, 7500, -1);
    }
    case 1: {
        QFile frequencies(files.frequencies);
        QFile vocabulary(files.vocabulary);
        return frequencies.open(QIODevice::ReadOnly) && vocabulary.open(QIODevice::WriteOnly) &&
               lm::wfreq2vocab(frequencies, vocabulary, -1, -1, 64000, -1);
    }
    case 2:
        return lm::text2idngram({QStringLiteral("text2idngram"), QStringLiteral("-vocab"),
                                 files.vocabulary, QStringLiteral("-idngram"), files.idNgrams,
                                 QStringLiteral("-textfile"), files.alternative,
                                 QStringLiteral("-temp_directory"), files.temporary}) == 0;
    default:
        return lm::idngram2lm({QStringLiteral("idngram2lm"), QStringLiteral("-vocab_type"),
                               QStringLiteral("0"), QStringLiteral("-idngram"), files.idNgrams,
                               QStringLiteral("-vocab"), files.vocabulary, QStringLiteral("-arpa"),
                               files.arpa, QStringLiteral("-context"), files.contextCues,
                               QStringLiteral("-witten_bell"), QStringLiteral("-verbosity"),
                               QStringLiteral("-1")}) == 0;
    }
}

// range(0): 0-3 times one step alone on the previous steps' files, 4 the whole chain.
void BM_LmToolkit(benchmark::State &state)
{
    const QTemporaryDir folder;
    const ChainFiles files(folder.path());
    if (!folder.isValid() || !writeInputs(files)) {
        state.SkipWithError("cannot write the corpus");
        return;
    }
    for (int step = 0; step < 4; ++step) {
        if (!runStep(files, step)) {
            state.SkipWithError("a toolkit step failed");
            return;
        }
    }
    const int only = static_cast<int>(state.range(0));
    for (auto _ : state) {
        bool done = true;
        for (int step = 0; step < 4; ++step) {
            if (only == 4 || only == step)
                done = runStep(files, step) && done;
        }
        benchmark::DoNotOptimize(done);
    }
}
BENCHMARK(BM_LmToolkit)
    ->ArgName("step")
    ->DenseRange(0, 4)
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace
