#include "app/AppPaths.h"
#include "audio/AudioInputFactory.h"
#include "audio/FileAudioInput.h"
#include "content/AppCommon.h"
#include "speaking/PhraseRecording.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <benchmark/benchmark.h>
#include <memory>

namespace {

// "Was machst du in deiner Freizeit?": 2.98 s, read aloud by the learner as the model speaker.
const QString categoryId = QStringLiteral("10");
const QString phraseId = QStringLiteral("1005");
const QString phraseVoice = QStringLiteral(TOLVANE_COURSE_DIR "/10/voices/1005.mp3");

/// Runs the event loop until `done` holds, checking it whenever `changed` fires; false after a
/// minute without it.
template <typename Signal, typename Done>
bool waitFor(const SpectrumCompView *comparison, Signal changed, Done done)
{
    QEventLoop loop;
    QTimer::singleShot(60000, &loop, [&loop] { loop.exit(1); });
    QObject::connect(comparison, changed, &loop, [&loop, &done] {
        if (done())
            loop.exit(0);
    });
    return done() || loop.exec() == 0;
}

/// The app's setting for a reading: the course, the acoustic model, the record folder, and the
/// model recording heard by the "microphone" in full before each release.
class Reading {
public:
    Reading()
    {
        setResourceRoot(QStringLiteral(TOLVANE_COURSE_DIR));
        AppPaths::setAcousticModelFolder(QStringLiteral(TOLVANE_ACOUSTIC_DIR));
        QDir().mkpath(AppPaths::recordFolder());
        setDefaultAudioInputFactory([this]() -> std::unique_ptr<AudioInput> {
            auto input = std::make_unique<FileAudioInput>(phraseVoice);
            // Made on the recording thread; the end of the file is reported to this one.
            QObject::connect(input.get(), &FileAudioInput::allDelivered, &m_context, [this] {
                if (m_heard)
                    m_heard->exit(0);
            });
            return input;
        });
        // A recorder takes the input factory current when it is made.
        m_recording = std::make_unique<PhraseRecording>();
        if (const QList<PhraseInfo *> *phrases = loadPhrases(categoryId)) {
            for (const PhraseInfo *phrase : *phrases) {
                if (phrase->id == phraseId)
                    m_phrase = phrase;
            }
        }
    }
    ~Reading() { setDefaultAudioInputFactory({}); }
    Reading(const Reading &) = delete;
    Reading &operator=(const Reading &) = delete;

    [[nodiscard]] bool valid() const { return m_phrase != nullptr; }

    /// Records the whole phrase, untimed; false when the recording did not start or end.
    bool record()
    {
        QEventLoop heard;
        QTimer::singleShot(60000, &heard, [&heard] { heard.exit(1); });
        m_heard = &heard;
        const bool recorded = !m_recording->begin(*m_phrase).isEmpty() && heard.exec() == 0;
        m_heard = nullptr;
        return recorded;
    }

    /// Releases the button and waits for the mark; the seconds from release to mark, or a
    /// negative value when no mark came.
    double releaseToMark()
    {
        QElapsedTimer clock;
        clock.start();
        const std::shared_ptr<SpectrumCompView> comparison = m_recording->end();
        if (!comparison || !waitFor(comparison.get(), &SpectrumCompView::scoreChanged,
                                    [&comparison] { return comparison->scored(); }))
            return -1.0;
        const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
        // The model recording's spectrum follows the mark; it must not spill into the next run.
        waitFor(comparison.get(), &SpectrumCompView::busyChanged,
                [&comparison] { return !comparison->busy(); });
        return seconds;
    }

private:
    const PhraseInfo *m_phrase{nullptr};
    std::unique_ptr<PhraseRecording> m_recording;
    QObject m_context;
    QEventLoop *m_heard{nullptr};
};

void runReadings(benchmark::State &state, bool generateEachTime)
{
    Reading reading;
    if (!reading.valid()) {
        state.SkipWithError("no course: build the course and the acoustic model folder first");
        return;
    }
    for (auto _ : state) {
        if (generateEachTime)
            QDir(AppPaths::languageModelFolder()).removeRecursively();
        if (!reading.record()) {
            state.SkipWithError("the recording did not run");
            return;
        }
        const double seconds = reading.releaseToMark();
        if (seconds < 0) {
            state.SkipWithError("no mark came");
            return;
        }
        state.SetIterationTime(seconds);
    }
}

// Release of the record button to the mark, for a 3-second reading of a phrase whose model the
// comparison has already generated.
void BM_ReleaseToMark(benchmark::State &state)
{
    runReadings(state, false);
}
BENCHMARK(BM_ReleaseToMark)->Unit(benchmark::kMillisecond)->UseManualTime();

// The same the first time a phrase is read: its dictionary and language model are generated
// first.
void BM_ReleaseToMarkFirstTime(benchmark::State &state)
{
    runReadings(state, true);
}
BENCHMARK(BM_ReleaseToMarkFirstTime)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace
