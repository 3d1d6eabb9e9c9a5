#include "content/AppCommon.h"
#include "speech/PhraseAssessment.h"

#include <QFileInfo>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <vector>

// How well the engine tells a phrase's own recording from the same recording judged against
// another phrase: every phrase of the sample course, its model recording scored against its own
// text and against the next phrase's text, twice over, so that a run also shows whether a
// recording always gets the same score. One row per phrase goes to standard error; the counters
// sum the table up. It takes a few minutes: run it alone, with --benchmark_filter=QualityTable.

namespace {

const QString acousticModel = QStringLiteral(TOLVANE_ACOUSTIC_DIR);

double median(std::vector<int> marks)
{
    if (marks.empty())
        return 0.0;
    std::sort(marks.begin(), marks.end());
    const size_t middle = marks.size() / 2;
    return marks.size() % 2 ? marks[middle] : (marks[middle - 1] + marks[middle]) / 2.0;
}

/// The mark below which the given share of the marks lie.
int quantile(std::vector<int> marks, double share)
{
    if (marks.empty())
        return 0;
    std::sort(marks.begin(), marks.end());
    return marks[static_cast<size_t>(share * static_cast<double>(marks.size() - 1))];
}

void BM_QualityTable(benchmark::State &state)
{
    ContentStore store{QStringLiteral(TOLVANE_COURSE_DIR)};
    if (!QFileInfo(acousticModel).isDir()) {
        state.SkipWithError("no acoustic model folder: build the acoustic_model target");
        return;
    }
    const QList<PhraseInfo *> &phrases = store.allPhrases();
    std::vector<int> ownMarks;
    std::vector<int> otherMarks;
    int unsteady = 0;
    int failures = 0;
    for (auto _ : state) {
        std::fprintf(stderr, "phrase\town\tother\town text\n");
        for (qsizetype i = 0; i < phrases.size(); ++i) {
            PhraseInfo &phrase = *phrases[i];
            const QString recording = store.soundPath(phrase);
            const QString ownText = foreignText(phrase);
            const QString otherText = foreignText(*phrases[(i + 1) % phrases.size()]);
            const PhraseAssessment own =
                assessRecording(ownText, phrase.phon, recording, acousticModel);
            const PhraseAssessment ownAgain =
                assessRecording(ownText, phrase.phon, recording, acousticModel);
            const PhraseAssessment other = assessRecording(otherText, {}, recording, acousticModel);
            const PhraseAssessment otherAgain =
                assessRecording(otherText, {}, recording, acousticModel);
            if (!own.succeeded() || !other.succeeded()) {
                ++failures;
                continue;
            }
            if (own.score != ownAgain.score || other.score != otherAgain.score)
                ++unsteady;
            ownMarks.push_back(own.mark);
            otherMarks.push_back(other.mark);
            std::fprintf(stderr, "%s\t%g\t%g\t%s\n", qPrintable(phrase.id),
                         static_cast<double>(own.score), static_cast<double>(other.score),
                         qPrintable(ownText));
        }
    }
    state.counters["phrases"] = static_cast<double>(ownMarks.size());
    state.counters["failed"] = failures;
    state.counters["unsteady"] = unsteady;
    state.counters["own_median"] = median(ownMarks);
    state.counters["own_p10"] = quantile(ownMarks, 0.1);
    state.counters["own_at_least_8"] = static_cast<double>(
        std::count_if(ownMarks.begin(), ownMarks.end(), [](int mark) { return mark >= 8; }));
    state.counters["other_median"] = median(otherMarks);
    state.counters["other_p10"] = quantile(otherMarks, 0.1);
    state.counters["other_p90"] = quantile(otherMarks, 0.9);
}
BENCHMARK(BM_QualityTable)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();

} // namespace
