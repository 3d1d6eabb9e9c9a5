#include "PhraseImage.h"

#include <QCryptographicHash>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QSaveFile>

namespace {
constexpr int imageWidth = 480;
constexpr int imageHeight = 320;
} // namespace

bool PhraseImage::write(const QString &text, const QString &seed, const QString &path)
{
    const QByteArray digest = QCryptographicHash::hash(seed.toUtf8(), QCryptographicHash::Md5);
    const auto byteAt = [&digest](int i) {
        return static_cast<quint8>(digest.at(i));
    };
    const int hue = (byteAt(0) << 8 | byteAt(1)) % 360;

    QImage image(imageWidth, imageHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient background(0, 0, imageWidth, imageHeight);
    background.setColorAt(0, QColor::fromHsv(hue, 90, 235));
    background.setColorAt(1, QColor::fromHsv((hue + 40) % 360, 140, 190));
    painter.fillRect(image.rect(), background);

    // A few soft circles, placed by the digest, so that neighbouring cards look different.
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 4; ++i) {
        const int x = byteAt(2 + i * 3) * imageWidth / 255;
        const int y = byteAt(3 + i * 3) * imageHeight / 255;
        const int r = 40 + byteAt(4 + i * 3) % 90;
        painter.setBrush(QColor::fromHsv((hue + 180 + i * 25) % 360, 60, 255, 70));
        painter.drawEllipse(QPoint(x, y), r, r);
    }

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(34);
    font.setBold(true);
    painter.setFont(font);
    const QRect textArea = image.rect().adjusted(36, 36, -36, -36);
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    painter.setPen(QColor(0, 0, 0, 90));
    painter.drawText(textArea.translated(2, 2), flags, text);
    painter.setPen(Qt::white);
    painter.drawText(textArea, flags, text);
    painter.end();

    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && image.save(&file, "JPG", 85) && file.commit();
}
