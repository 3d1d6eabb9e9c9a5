#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

/// Sound files made in the test with libsndfile, and what tests measure of decoded samples.
namespace AudioFixtures {

/// Writes interleaved samples, full scale at 32 bits as libsndfile takes them; false on failure.
bool writeSound(const QString &path, int format, int rate, int channels,
                const std::vector<int32_t> &interleaved);
/// A sine of `seconds` at `frequency`; channel c has gains[c] x full scale (0 leaves it silent).
std::vector<int32_t> tone(int rate, double seconds, double frequency,
                          const std::vector<double> &gains);
/// 16-bit values as the 32-bit samples writeSound() takes.
std::vector<int32_t> fromShorts(const std::vector<int16_t> &samples);

bool writeBytes(const QString &path, const QByteArray &bytes);
QByteArray readBytes(const QString &path);

/// The frequency of a tone at `rate`, from its upward zero crossings.
double measuredFrequency(const std::vector<int16_t> &samples, int rate);
int peak(const std::vector<int16_t> &samples);

/// Collects the tolvane.* log lines written while it lives.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;
    [[nodiscard]] const QStringList &lines() const;
};

} // namespace AudioFixtures
