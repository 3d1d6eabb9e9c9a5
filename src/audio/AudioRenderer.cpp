#include "AudioRenderer.h"

#include "StretchedStream.h"

std::optional<RenderedAudio> renderAudio(const QString &path, float rate, int extraPlays)
{
    const auto stream = StretchedStream::open(path);
    if (!stream)
        return std::nullopt;
    stream->setRate(rate);
    stream->setExtraPlays(extraPlays);

    RenderedAudio audio{stream->sampleRate(), stream->channels(), {}};
    const auto chunk = static_cast<size_t>(4096 * audio.channels);
    for (qsizetype frames = 1; frames > 0;) {
        const size_t start = audio.samples.size();
        audio.samples.resize(start + chunk);
        frames = stream->read(std::span(audio.samples).subspan(start));
        audio.samples.resize(start + static_cast<size_t>(frames * audio.channels));
    }
    return audio;
}
