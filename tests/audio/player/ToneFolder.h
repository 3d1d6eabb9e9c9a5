#pragma once

#include <QString>
#include <QTemporaryDir>
#include <span>
#include <vector>

/// @brief A temporary folder of sine tones written as 16-bit WAV files, for the player's tests.
class ToneFolder {
public:
    /// A tone of `seconds` at `frequency`; with two channels the right one is silent.
    QString tone(double seconds, double frequency = 440.0, int channels = 1);
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    static constexpr int sampleRate = 22050;

private:
    QTemporaryDir m_folder;
    int m_count{0};
};

/// The frequency between 100 and 2000 Hz with the most power in one channel of the samples
/// (interleaved, `channels` of them), to within 1 Hz.
double dominantFrequency(std::span<const float> samples, int channels, int channel, int rate);
/// The root mean square of one channel.
double rootMeanSquare(std::span<const float> samples, int channels, int channel);
