#include "content/AppCommon.h"
#include "speech/PhraseAssessment.h"
#include "speech/VoPSRecognizer.h"
#include "speech/verify/ReadingVerifier.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

// How well the mark tells a phrase's own recording from the same recording judged against other
// phrases, and from no speech at all: every phrase of the sample course, its model recording
// marked against its own text, the next phrase's text and a phrase of another category, then
// 3 s of silence and 3 s of noise against its text; the own-text judgement twice, so that a run
// also shows whether a recording always gets the same mark and verdicts. One row per phrase goes
// to standard error; the counters sum the table up. It takes several minutes: run it alone, with
// --benchmark_filter=QualityTable.

namespace {

const QString acousticModel = QStringLiteral(TOLVANE_ACOUSTIC_DIR);
constexpr int sampleRate = 16000;

struct Column {
    std::vector<int> marks;
    int words = 0;
    int heardWell = 0;

    void add(const PhraseAssessment &assessment)
    {
        marks.push_back(assessment.mark);
        words += assessment.verification.judgedWords();
        heardWell += assessment.verification.count(WordVerdict::HeardWell);
    }
    [[nodiscard]] double share(bool (*test)(int)) const
    {
        return marks.empty()
                   ? 0.0
                   : static_cast<double>(std::count_if(marks.begin(), marks.end(), test)) /
                         static_cast<double>(marks.size());
    }
};

/// Samples judged against a phrase, its model generated in a temporary folder.
PhraseAssessment assessSamplesOf(const QString &text, std::vector<int16_t> samples)
{
    const QTemporaryDir folder;
    const ReadingTarget target{
        text, {}, generatePhraseModel(text, folder.path(), acousticModel), acousticModel};
    VoPSRecognizer recognizer;
    ReadingVerifier verifier(acousticModel);
    return assessSamples(recognizer, verifier, target, std::move(samples));
}

std::vector<int16_t> noise()
{
    std::mt19937 random(1);
    std::normal_distribution<double> level(0.0, 3000.0);
    std::vector<int16_t> samples(3 * sampleRate);
    for (int16_t &sample : samples)
        sample = static_cast<int16_t>(std::clamp(level(random), -32768.0, 32767.0));
    return samples;
}

bool sameVerdicts(const PhraseAssessment &a, const PhraseAssessment &b)
{
    if (a.mark != b.mark || a.verification.words.size() != b.verification.words.size())
        return false;
    for (qsizetype i = 0; i < a.verification.words.size(); ++i) {
        if (a.verification.words[i].verdict != b.verification.words[i].verdict)
            return false;
    }
    return true;
}

void BM_QualityTable(benchmark::State &state)
{
    ContentStore store{QStringLiteral(TOLVANE_COURSE_DIR)};
    if (!QFileInfo(acousticModel).isDir()) {
        state.SkipWithError("no acoustic model folder: build the acoustic_model target");
        return;
    }
    const QList<PhraseInfo *> &phrases = store.allPhrases();
    std::map<std::string, Column> columns;
    int unsteady = 0;
    int failures = 0;
    int silenceWithoutNoVoice = 0;
    for (auto _ : state) {
        std::fprintf(stderr, "phrase\town\tnext\tother category\tsilence\tnoise\town text\n");
        for (qsizetype i = 0; i < phrases.size(); ++i) {
            PhraseInfo &phrase = *phrases[i];
            const QString recording = store.soundPath(phrase);
            const QString ownText = foreignText(phrase);
            const QString nextText = foreignText(*phrases[(i + 1) % phrases.size()]);
            // Half the course further on: always another category.
            const PhraseInfo &far = *phrases[(i + phrases.size() / 2) % phrases.size()];
            const PhraseAssessment own =
                assessRecording(ownText, phrase.phon, recording, acousticModel);
            const PhraseAssessment ownAgain =
                assessRecording(ownText, phrase.phon, recording, acousticModel);
            const PhraseAssessment next = assessRecording(nextText, {}, recording, acousticModel);
            const PhraseAssessment other =
                assessRecording(foreignText(far), far.phon, recording, acousticModel);
            const PhraseAssessment silence =
                assessSamplesOf(ownText, std::vector<int16_t>(3 * sampleRate, 0));
            const PhraseAssessment noisy = assessSamplesOf(ownText, noise());
            if (!own.succeeded() || !next.succeeded() || !other.succeeded() ||
                !silence.succeeded() || !noisy.succeeded()) {
                ++failures;
                continue;
            }
            if (!sameVerdicts(own, ownAgain))
                ++unsteady;
            if (!silence.advices.contains(QStringLiteral("no_voice")))
                ++silenceWithoutNoVoice;
            columns["own"].add(own);
            columns["next"].add(next);
            columns["other"].add(other);
            columns["silence"].add(silence);
            columns["noise"].add(noisy);
            std::fprintf(stderr, "%s\t%d\t%d\t%d\t%d\t%d\t%s\n", qPrintable(phrase.id), own.mark,
                         next.mark, other.mark, silence.mark, noisy.mark, qPrintable(ownText));
        }
    }
    state.counters["phrases"] = static_cast<double>(columns["own"].marks.size());
    state.counters["failed"] = failures;
    state.counters["unsteady"] = unsteady;
    state.counters["silence_without_no_voice"] = silenceWithoutNoVoice;
    state.counters["own_at_least_8"] = columns["own"].share([](int m) { return m >= 8; });
    state.counters["own_below_5"] = columns["own"].share([](int m) { return m < 5; });
    state.counters["own_words_heard_well"] =
        static_cast<double>(columns["own"].heardWell) / std::max(1, columns["own"].words);
    state.counters["next_at_most_2"] = columns["next"].share([](int m) { return m <= 2; });
    state.counters["other_at_most_2"] = columns["other"].share([](int m) { return m <= 2; });
    state.counters["other_words_heard_well"] =
        static_cast<double>(columns["other"].heardWell) / std::max(1, columns["other"].words);
    state.counters["silence_zero"] = columns["silence"].share([](int m) { return m == 0; });
    state.counters["noise_zero"] = columns["noise"].share([](int m) { return m == 0; });
}
BENCHMARK(BM_QualityTable)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();

} // namespace
