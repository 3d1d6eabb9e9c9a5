#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <sphinxbase/cmd_ln.h>

/**
 * @brief How the decoder's acoustic front end cuts samples into frames and prepares each frame
 * for its FFT, as read from a decoder configuration.
 *
 * The window is always Hamming: this release's front end has no other. A frame is pre-emphasised
 * (y[n] = x[n] - alpha x[n-1] across frame boundaries, x[-1] = 0), has its mean removed when
 * asked, is windowed over its length and zero-padded to the FFT size.
 */
struct FrontEndFraming {
    int frameLength{0}; ///< samples per frame: -wlen seconds at -samprate, rounded
    int frameShift{0};  ///< samples between frame starts: -samprate / -frate, rounded
    int fftSize{0};
    double preEmphasis{0.0}; ///< -alpha; 0 leaves the samples as they are
    bool removeDc{false};

    /// The values a front end could have started with: positive lengths, an even FFT size that
    /// holds a whole frame.
    [[nodiscard]] bool isUsable() const;

    /// The frames the front end makes of a whole utterance: every full frame, then one more for
    /// the samples left after the last full frame's shift (zero-padded), if any.
    [[nodiscard]] uint64_t frameCount(size_t sampleCount) const;

    [[nodiscard]] static FrontEndFraming fromConfig(cmd_ln_t *config);
    /// The front end a decoder would get from this acoustic model with otherwise default options:
    /// the library's defaults overridden by the model's "feat.params". Null, and a logged error,
    /// when that file cannot be read or gives unusable values.
    [[nodiscard]] static std::optional<FrontEndFraming>
    ofAcousticModel(const QString &acousticModelPath);
};
