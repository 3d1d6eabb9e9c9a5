#include "ToneFolder.h"

#include "AudioFixtures.h"

#include <cmath>
#include <numbers>
#include <sndfile.h>

QString ToneFolder::tone(double seconds, double frequency, int channels)
{
    const QString file = path(QStringLiteral("tone%1.wav").arg(++m_count));
    const std::vector<double> gains = channels == 1 ? std::vector{0.5} : std::vector{0.5, 0.0};
    if (!AudioFixtures::writeSound(file, SF_FORMAT_WAV | SF_FORMAT_PCM_16, sampleRate, channels,
                                   AudioFixtures::tone(sampleRate, seconds, frequency, gains)))
        return {};
    return file;
}

namespace {

// Goertzel's single-frequency power.
double powerAt(std::span<const float> samples, int channels, int channel, int rate,
               double frequency)
{
    const double coefficient = 2.0 * std::cos(2.0 * std::numbers::pi * frequency / rate);
    double previous = 0.0;
    double beforePrevious = 0.0;
    for (size_t i = static_cast<size_t>(channel); i < samples.size();
         i += static_cast<size_t>(channels)) {
        const double current = samples[i] + coefficient * previous - beforePrevious;
        beforePrevious = previous;
        previous = current;
    }
    return previous * previous + beforePrevious * beforePrevious -
           coefficient * previous * beforePrevious;
}

} // namespace

double dominantFrequency(std::span<const float> samples, int channels, int channel, int rate)
{
    double best = 0.0;
    double bestPower = -1.0;
    for (double frequency = 100.0; frequency <= 2000.0; frequency += 1.0) {
        const double power = powerAt(samples, channels, channel, rate, frequency);
        if (power > bestPower) {
            bestPower = power;
            best = frequency;
        }
    }
    return best;
}

double rootMeanSquare(std::span<const float> samples, int channels, int channel)
{
    double sum = 0.0;
    size_t count = 0;
    for (size_t i = static_cast<size_t>(channel); i < samples.size();
         i += static_cast<size_t>(channels), ++count)
        sum += static_cast<double>(samples[i]) * samples[i];
    return count > 0 ? std::sqrt(sum / static_cast<double>(count)) : 0.0;
}
