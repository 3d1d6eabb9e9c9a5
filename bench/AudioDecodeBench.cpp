#include "audio/VoAudioUtil.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cmath>
#include <numbers>
#include <sndfile.h>
#include <vector>

namespace {

// Both recordings of a comparison are decoded on the main thread while the pop-up sets itself
// up: the phrase's course MP3 and the learner's take. Each reports how many seconds of audio it
// decodes per second of work.
void decodeFile(benchmark::State &state, const QString &path, double seconds)
{
    for (auto _ : state) {
        AudioDataInfo record;
        if (VoAudioUtil::decodeAudioDataFromFile(path, record) != 0) {
            state.SkipWithError("the file did not decode");
            return;
        }
        benchmark::DoNotOptimize(record.data.constData());
    }
    state.counters["audio_s_per_s"] =
        benchmark::Counter(seconds, benchmark::Counter::kIsIterationInvariantRate);
}

// Three seconds of a voice-like signal at 16 kHz mono 16-bit in the given container.
bool writeTake(const QString &path, int format)
{
    SF_INFO info{};
    info.samplerate = 16000;
    info.channels = 1;
    info.format = format;
    SNDFILE *file = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &info);
    if (!file)
        return false;
    std::vector<short> samples(size_t{3} * 16000);
    for (size_t i = 0; i < samples.size(); ++i) {
        const double t = static_cast<double>(i) / 16000.0;
        samples[i] = static_cast<short>(6000 * std::sin(2 * std::numbers::pi * 180 * t) +
                                        2000 * std::sin(2 * std::numbers::pi * 1250 * t));
    }
    const auto frames = static_cast<sf_count_t>(samples.size());
    const bool written = sf_writef_short(file, samples.data(), frames) == frames;
    return sf_close(file) == 0 && written;
}

void BM_DecodeCourseMp3(benchmark::State &state)
{
    const QString path = QStringLiteral(TOLVANE_COURSE_DIR "/1/voices/101.mp3");
    SF_INFO info{};
    SNDFILE *file = sf_open(QFile::encodeName(path).constData(), SFM_READ, &info);
    if (!file) {
        state.SkipWithError("the course MP3 is missing: build the course first");
        return;
    }
    sf_close(file);
    decodeFile(state, path, static_cast<double>(info.frames) / info.samplerate);
}
BENCHMARK(BM_DecodeCourseMp3)->Unit(benchmark::kMicrosecond);

// 0: a 16 kHz WAV, delivered as stored; 1: the recorder's ALAC in CAF, decoded and passed
// through the resampler at 1:1.
void BM_DecodeTake3s(benchmark::State &state)
{
    const QTemporaryDir folder;
    const bool alac = state.range(0) == 1;
    const QString path =
        folder.filePath(alac ? QStringLiteral("take.caf") : QStringLiteral("take.wav"));
    if (!writeTake(path,
                   alac ? SF_FORMAT_CAF | SF_FORMAT_ALAC_16 : SF_FORMAT_WAV | SF_FORMAT_PCM_16)) {
        state.SkipWithError("cannot write the take in a temporary folder");
        return;
    }
    decodeFile(state, path, 3.0);
}
BENCHMARK(BM_DecodeTake3s)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
