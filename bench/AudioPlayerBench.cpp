#include "audio/AudioRenderer.h"
#include "audio/StretchedStream.h"
#include "audio/StretchedStreamDevice.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sndfile.h>
#include <vector>

namespace {

const QString courseRecording = QStringLiteral(TOLVANE_COURSE_DIR "/1/voices/101.mp3");

// A play request, up to the first samples ready for the sink: the file opened (the UI thread's
// share), then the sink's first pull of 100 ms of audio decoded and stretched (the audio
// thread's). The rate is the argument in tenths.
void BM_PlayRequestToFirstSamples(benchmark::State &state)
{
    const float rate = static_cast<float>(state.range(0)) / 10.0F;
    for (auto _ : state) {
        const auto stream = StretchedStream::open(courseRecording);
        if (!stream) {
            state.SkipWithError("the course MP3 is missing: build the course first");
            return;
        }
        stream->setRate(rate);
        const qint64 firstPull =
            stream->sampleRate() / 10 * stream->channels() * static_cast<qint64>(sizeof(float));
        StretchedStreamDevice device(*stream, StretchedStreamDevice::Samples::float32);
        device.open(QIODevice::ReadOnly);
        const QByteArray samples = device.read(firstPull);
        if (samples.size() != firstPull) {
            state.SkipWithError("the first pull came back short");
            return;
        }
        benchmark::DoNotOptimize(samples.constData());
    }
}
BENCHMARK(BM_PlayRequestToFirstSamples)->Arg(10)->Arg(5)->Unit(benchmark::kMicrosecond);

// Rendering a whole file at a rate; `audio_s_per_s` is seconds of sound out per CPU second, so
// its inverse is the share of one core that playing at that rate takes.
void renderAtRate(benchmark::State &state, const QString &path)
{
    const float rate = static_cast<float>(state.range(0)) / 10.0F;
    double seconds = 0.0;
    for (auto _ : state) {
        const auto audio = renderAudio(path, rate);
        if (!audio) {
            state.SkipWithError("the file did not open");
            return;
        }
        seconds = audio->seconds();
        benchmark::DoNotOptimize(audio->samples.data());
    }
    state.counters["audio_s_per_s"] =
        benchmark::Counter(seconds, benchmark::Counter::kIsIterationInvariantRate);
}

// Decoding the course MP3 and stretching it, as the player does.
void BM_StretchCourseMp3(benchmark::State &state)
{
    renderAtRate(state, courseRecording);
}
BENCHMARK(BM_StretchCourseMp3)->Arg(5)->Arg(10)->Arg(20)->Unit(benchmark::kMillisecond);

// The same samples from a float WAV, whose decoding costs next to nothing: the stretch alone.
void BM_StretchCourseWav(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString wav = folder.filePath(QStringLiteral("101.wav"));
    SF_INFO info{};
    SNDFILE *in = sf_open(QFile::encodeName(courseRecording).constData(), SFM_READ, &info);
    if (!in) {
        state.SkipWithError("the course MP3 is missing: build the course first");
        return;
    }
    std::vector<float> samples(static_cast<size_t>(info.frames * info.channels));
    const sf_count_t frames = sf_readf_float(in, samples.data(), info.frames);
    sf_close(in);
    info.format = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
    SNDFILE *out = sf_open(QFile::encodeName(wav).constData(), SFM_WRITE, &info);
    if (!out || sf_writef_float(out, samples.data(), frames) != frames || sf_close(out) != 0) {
        state.SkipWithError("cannot write the WAV in a temporary folder");
        return;
    }
    renderAtRate(state, wav);
}
BENCHMARK(BM_StretchCourseWav)->Arg(5)->Arg(10)->Unit(benchmark::kMillisecond);

} // namespace
