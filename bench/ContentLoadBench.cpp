#include "GeneratedCourse.h"
#include "content/AppCommon.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>

namespace {

const QString sampleCourse = QStringLiteral(TOLVANE_COURSE_DIR);

// What the app pays at start-up for the whole course: every category read, every phrase list
// deciphered and parsed. The store is dropped outside the timing, since the app never drops it.
void loadWholeCourse(benchmark::State &state, const QString &root)
{
    qsizetype phrases = 0;
    for (auto _ : state) {
        auto store = std::make_unique<ContentStore>(root);
        phrases = store->allPhrases().size();
        benchmark::DoNotOptimize(phrases);
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
    state.counters["phrases"] = static_cast<double>(phrases);
}

void BM_LoadSampleCourse(benchmark::State &state)
{
    if (!QFileInfo(sampleCourse).isDir()) {
        state.SkipWithError("no sample course; build the course target");
        return;
    }
    loadWholeCourse(state, sampleCourse);
}
BENCHMARK(BM_LoadSampleCourse)->UseRealTime()->Unit(benchmark::kMillisecond);

constexpr int generatedCategories = 100;
constexpr int generatedPhrasesPerCategory = 100;

// Target: under 300 ms for 100 categories of 100 phrases.
void BM_LoadGeneratedCourse(benchmark::State &state)
{
    // Written and checked once per run; repetitions and iterations read the same files.
    static const QTemporaryDir folder;
    static const QString error = [] {
        if (!folder.isValid())
            return QStringLiteral("cannot make a temporary folder");
        QString problem = writeGeneratedCourse(sampleCourse, folder.path(), generatedCategories,
                                               generatedPhrasesPerCategory);
        if (problem.isEmpty() && ContentStore(folder.path()).allPhrases().size() !=
                                     generatedCategories * generatedPhrasesPerCategory)
            problem = QStringLiteral("the generated course lost phrases");
        return problem;
    }();
    if (!error.isEmpty()) {
        state.SkipWithError(error.toStdString().c_str());
        return;
    }
    loadWholeCourse(state, folder.path());
}
BENCHMARK(BM_LoadGeneratedCourse)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
