#include "LogPowerSpectrum.h"

#include <algorithm>
#include <cmath>
#include <kissfft/kiss_fftr.h>
#include <memory>
#include <numbers>
#include <vector>

namespace {

struct FftrFree {
    void operator()(kiss_fftr_state *state) const { kiss_fftr_free(state); }
};
using FftrPtr = std::unique_ptr<kiss_fftr_state, FftrFree>;

std::vector<double> hammingWindow(int length)
{
    std::vector<double> window(static_cast<size_t>(length), 1.0);
    if (length < 2)
        return window;
    const double step = 2.0 * std::numbers::pi / (length - 1);
    for (int i = 0; i < length; ++i)
        window[static_cast<size_t>(i)] = 0.54 - 0.46 * std::cos(step * i);
    return window;
}

/// The frame starting at `start`, pre-emphasised against the sample before it, with the samples
/// past the end as zeros (padded after the emphasis, as the front end pads its last frame).
void readFrame(std::span<const int16_t> samples, size_t start, const FrontEndFraming &framing,
               std::vector<double> &frame)
{
    for (size_t i = 0; i < frame.size(); ++i) {
        const size_t index = start + i;
        if (index >= samples.size()) {
            frame[i] = 0.0;
            continue;
        }
        const double previous = index > 0 ? samples[index - 1] : 0.0;
        frame[i] = samples[index] - framing.preEmphasis * previous;
    }
}

} // namespace

AudioPowerSpectrumInfo logPowerSpectrum(std::span<const int16_t> samples, uint64_t frameCount,
                                        const FrontEndFraming &framing)
{
    AudioPowerSpectrumInfo spectrum;
    if (!framing.isUsable())
        return spectrum;
    spectrum.frameCount = frameCount;
    spectrum.rowCount = frameCount + 1;
    spectrum.powerData.assign(spectrum.rowCount * AudioPowerSpectrumInfo::bins, 0.0);

    const FftrPtr fft(kiss_fftr_alloc(framing.fftSize, 0, nullptr, nullptr));
    const std::vector<double> window = hammingWindow(framing.frameLength);
    std::vector<double> frame(static_cast<size_t>(framing.frameLength));
    std::vector<kiss_fft_scalar> input(static_cast<size_t>(framing.fftSize), 0.0F);
    std::vector<kiss_fft_cpx> output(static_cast<size_t>(framing.fftSize / 2 + 1));
    const auto keptBins =
        std::min<size_t>(output.size(), static_cast<size_t>(AudioPowerSpectrumInfo::bins));

    for (uint64_t f = 0; f < frameCount; ++f) {
        readFrame(samples, f * static_cast<uint64_t>(framing.frameShift), framing, frame);
        double mean = 0.0;
        if (framing.removeDc) {
            for (const double value : frame)
                mean += value;
            mean /= static_cast<double>(frame.size());
        }
        for (size_t i = 0; i < frame.size(); ++i)
            input[i] = static_cast<kiss_fft_scalar>((frame[i] - mean) * window[i]);
        kiss_fftr(fft.get(), input.data(), output.data());

        double *row = spectrum.powerData.data() + f * AudioPowerSpectrumInfo::bins;
        for (size_t k = 0; k < keptBins; ++k) {
            const double re = output[k].r;
            const double im = output[k].i;
            // A zero bin gives -inf, which the floor turns into 0 like any value below it.
            const double value = std::max(std::log(re * re + im * im), 0.0);
            row[k] = value;
            spectrum.maxPower = std::max(spectrum.maxPower, value);
        }
    }
    return spectrum;
}
