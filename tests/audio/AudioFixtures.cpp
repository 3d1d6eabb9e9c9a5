#include "AudioFixtures.h"

#include <QFile>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <sndfile.h>

namespace AudioFixtures {

bool writeSound(const QString &path, int format, int rate, int channels,
                const std::vector<int32_t> &interleaved)
{
    SF_INFO info{};
    info.samplerate = rate;
    info.channels = channels;
    info.format = format;
    SNDFILE *file = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &info);
    if (!file)
        return false;
    const auto frames = static_cast<sf_count_t>(interleaved.size()) / channels;
    const bool written = sf_writef_int(file, interleaved.data(), frames) == frames;
    return sf_close(file) == 0 && written;
}

std::vector<int32_t> tone(int rate, double seconds, double frequency,
                          const std::vector<double> &gains)
{
    const auto frames = static_cast<size_t>(seconds * rate);
    std::vector<int32_t> samples;
    for (size_t frame = 0; frame < frames; ++frame) {
        const double wave =
            std::sin(2.0 * std::numbers::pi * frequency * static_cast<double>(frame) / rate);
        for (const double gain : gains)
            samples.push_back(static_cast<int32_t>(gain * wave * INT32_MAX));
    }
    return samples;
}

std::vector<int32_t> fromShorts(const std::vector<int16_t> &samples)
{
    std::vector<int32_t> wide;
    for (const int16_t sample : samples)
        wide.push_back(static_cast<int32_t>(sample) * 65536);
    return wide;
}

bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray readBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double measuredFrequency(const std::vector<int16_t> &samples, int rate)
{
    int crossings = 0;
    for (size_t i = 1; i < samples.size(); ++i)
        crossings += samples[i - 1] < 0 && samples[i] >= 0 ? 1 : 0;
    return crossings * static_cast<double>(rate) / static_cast<double>(samples.size());
}

int peak(const std::vector<int16_t> &samples)
{
    int largest = 0;
    for (const int16_t sample : samples)
        largest = std::max(largest, std::abs(static_cast<int>(sample)));
    return largest;
}

namespace {
QStringList capturedLines;
QtMessageHandler previousHandler = nullptr;

void capture(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (QByteArrayView(context.category).startsWith("tolvane."))
        capturedLines.append(message);
    else if (previousHandler)
        previousHandler(type, context, message);
}
} // namespace

LogCapture::LogCapture()
{
    capturedLines.clear();
    previousHandler = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previousHandler);
}

const QStringList &LogCapture::lines() const
{
    return capturedLines;
}

} // namespace AudioFixtures
