#pragma once

#include <QString>
#include <optional>
#include <vector>

/// @brief Samples as a player would sound them: interleaved floats at the file's own rate.
struct RenderedAudio {
    int sampleRate{0};
    int channels{0};
    std::vector<float> samples;

    [[nodiscard]] double seconds() const
    {
        return sampleRate > 0 && channels > 0
                   ? static_cast<double>(samples.size()) / channels / sampleRate
                   : 0.0;
    }
};

/// Renders the file at `rate` (0.2 to 2.0) with `extraPlays` after the first, through the same
/// decoding and stretching a player uses, into memory. Empty when the file cannot be played (one
/// log line); a file that turns out damaged gives what decoded before the damage.
[[nodiscard]] std::optional<RenderedAudio> renderAudio(const QString &path, float rate,
                                                       int extraPlays = 0);
