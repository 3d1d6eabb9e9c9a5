#include "VoImageUtil.h"

#include <QPainter>
#include <array>

namespace VoImageUtil {

QImage adjustImage(const QImage &image, double screenWidth)
{
    if (screenWidth <= 760.0 || image.isNull())
        return image;
    QImage rendered(image.size(), QImage::Format_ARGB32_Premultiplied);
    rendered.fill(Qt::transparent);
    QPainter painter(&rendered);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rendered.rect(), image);
    return rendered;
}

QImage replaceImageColor(const QImage &image, uint64_t src, uint64_t repl)
{
    if (image.isNull())
        return image;
    const auto bytesOf = [](uint64_t colour) {
        return std::array<uchar, 3>{static_cast<uchar>((colour >> 16) & 0xFF),
                                    static_cast<uchar>((colour >> 8) & 0xFF),
                                    static_cast<uchar>(colour & 0xFF)};
    };
    const std::array<uchar, 3> from = bytesOf(src);
    const std::array<uchar, 3> to = bytesOf(repl);
    // Bytes in memory order R, G, B, A, as the comparison reads them.
    QImage result = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    for (int row = 0; row < result.height(); ++row) {
        uchar *pixel = result.scanLine(row);
        for (int column = 0; column < result.width(); ++column, pixel += 4) {
            if (pixel[0] == from[0] && pixel[1] == from[1] && pixel[2] == from[2]) {
                pixel[0] = to[0];
                pixel[1] = to[1];
                pixel[2] = to[2];
            }
        }
    }
    return result;
}

} // namespace VoImageUtil
