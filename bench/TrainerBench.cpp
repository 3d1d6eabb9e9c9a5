#include "content/TextHelpers.h"
#include "content/VoFileUtil.h"
#include "speech/RecognizerWords.h"
#include "speech/VoLanguageModelTrainer.h"

#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The comparison pop-up generates a phrase's dictionary and language model on the main thread
// before it recognises anything; a course phrase of six words, against the full built list.

namespace {

const QString phrase = QStringLiteral("Entschuldigung, wie komme ich zum Bahnhof?");
const QString acousticModel = QStringLiteral(TOLVANE_ACOUSTIC_DIR);

void BM_GenerateSixWordModel(benchmark::State &state)
{
    const QStringList words = recognizerWords(phrase, true);
    QTemporaryDir base;
    if (words.size() != 6 || !base.isValid()) {
        state.SkipWithError("no six-word phrase or no folder to write to");
        return;
    }
    // A fresh folder each time, as for a phrase's first comparison: replacing the files of an
    // earlier run makes ext4 write the old ones out first, which is not what the pop-up pays.
    int run = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const QString folder = base.filePath(QString::number(run++));
        QDir().mkpath(folder);
        state.ResumeTiming();
        VoLanguageModelTrainer trainer;
        trainer.setLmBasePath(folder);
        const LanguageModelError result =
            trainer.generateLanguageModelFromArray(words, QStringLiteral("test"), acousticModel);
        if (!result.succeeded()) {
            state.SkipWithError("the generation failed");
            return;
        }
    }
}
BENCHMARK(BM_GenerateSixWordModel)->Unit(benchmark::kMillisecond)->UseRealTime();

// The parts of a generation: the lookup list read as text, the forward scan over it, and the
// toolkit chain with the binary conversion.

void BM_ReadLookupList(benchmark::State &state)
{
    const QString path = VoLanguageModelTrainer::lookupListPath(acousticModel);
    for (auto _ : state) {
        const auto bytes = VoFileUtil::readFile(path);
        const auto text = bytes ? TextHelpers::fromUtf8Strict(*bytes) : std::nullopt;
        if (!text) {
            state.SkipWithError("no lookup list");
            return;
        }
        benchmark::DoNotOptimize(text->constData());
    }
}
BENCHMARK(BM_ReadLookupList)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_ScanLookupList(benchmark::State &state)
{
    const QString path = VoLanguageModelTrainer::lookupListPath(acousticModel);
    const QString list = QString::fromUtf8(VoFileUtil::readFile(path).value_or(QByteArray()));
    VoLanguageModelTrainer trainer;
    const QStringList words = trainer.cleanDictionaryWordArray(recognizerWords(phrase, true));
    for (auto _ : state) {
        const QStringList lines =
            VoLanguageModelTrainer::performDictionaryLookup(words, list, path);
        if (lines.size() < words.size()) {
            state.SkipWithError("a word was not found");
            return;
        }
    }
}
BENCHMARK(BM_ScanLookupList)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_BuildLanguageModel(benchmark::State &state)
{
    QTemporaryDir base;
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(base.path());
    const QStringList words = recognizerWords(phrase, true);
    for (auto _ : state) {
        if (!trainer.writeOutCorpusForArray(words, QStringLiteral("test")).succeeded()) {
            state.SkipWithError("no corpus");
            return;
        }
        trainer.createLanguageModelFromFilename(base.filePath(QStringLiteral("test.corpus")));
    }
}
BENCHMARK(BM_BuildLanguageModel)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
