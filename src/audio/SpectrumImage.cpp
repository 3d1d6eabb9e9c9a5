#include "SpectrumImage.h"

#include "AudioLog.h"
#include "content/VoLog.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

uchar greyOf(double value, double scale)
{
    const double v = std::floor(255.0 / scale * value);
    if (!(v >= 1.0) || !std::isfinite(v))
        return 255;
    return static_cast<uchar>(255 - static_cast<int>(std::fmod(v, 256.0)));
}

} // namespace

QImage spectrumImage(const AudioPowerSpectrumInfo &spectrum)
{
    const uint64_t width = spectrum.frameCount;
    const int height = std::min(spectrum.spectrumSize, AudioPowerSpectrumInfo::bins);
    if (spectrum.powerData.empty() || width == 0 || height <= 0 ||
        width > static_cast<uint64_t>(std::numeric_limits<int>::max()) ||
        spectrum.powerData.size() < width * AudioPowerSpectrumInfo::bins) {
        VoLog::write(lcAudio(), VoLog::Error, QStringLiteral("no spectrum data!"));
        return {};
    }
    const double scale =
        spectrum.maxPower > 0 ? spectrum.maxPower : std::numeric_limits<float>::max();
    QImage image(static_cast<int>(width), height, QImage::Format_Grayscale8);
    if (image.isNull()) {
        VoLog::write(lcAudio(), VoLog::Error, QStringLiteral("can not create bitmap context!"));
        return {};
    }
    for (int column = 0; column < image.width(); ++column)
        for (int bin = 0; bin < height; ++bin)
            image.scanLine(height - 1 - bin)[column] =
                greyOf(spectrum.at(static_cast<uint64_t>(column), bin), scale);
    return image;
}

QImage genereateRGBAData(const AudioPowerSpectrumInfo &spectrum, float playProgress)
{
    const QImage grey = spectrumImage(spectrum);
    if (grey.isNull())
        return {};
    return dimPlayedColumns(grey.convertToFormat(QImage::Format_RGBA8888), playProgress);
}

QImage dimPlayedColumns(QImage picture, float playProgress)
{
    if (picture.format() != QImage::Format_RGBA8888)
        return picture;
    // Straight (not premultiplied) alpha: the grey stays as it is and only its cover halves.
    const double played = static_cast<double>(picture.width()) * static_cast<double>(playProgress);
    for (int row = 0; row < picture.height(); ++row) {
        uchar *pixel = picture.scanLine(row);
        for (int column = 0; column < picture.width() && column < played; ++column)
            pixel[column * 4 + 3] /= 2;
    }
    return picture;
}
