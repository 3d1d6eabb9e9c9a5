#include "EvenSpectrum.h"
#include "audio/SpectrumImage.h"
#include "audio/VoImageUtil.h"

#include <gtest/gtest.h>

namespace {

TEST(SpectrumPicture, PlayedColumnsLetTheBackgroundThroughAtHalfCover)
{
    const QImage image = genereateRGBAData(evenSpectrum(100), 0.5F);
    ASSERT_EQ(image.width(), 100);
    for (const int row : {0, 64, 127}) {
        EXPECT_EQ(qAlpha(image.pixel(0, row)), 127);
        EXPECT_EQ(qAlpha(image.pixel(49, row)), 127);
        EXPECT_EQ(qAlpha(image.pixel(50, row)), 255);
        EXPECT_EQ(qAlpha(image.pixel(99, row)), 255);
    }
    // Only the cover changes: the grey of a played column is the grey of an unplayed one.
    EXPECT_EQ(qRed(image.pixel(10, 5)), qRed(image.pixel(90, 5)));

    EXPECT_EQ(qAlpha(genereateRGBAData(evenSpectrum(100), 0.0F).pixel(0, 0)), 255);
    EXPECT_EQ(qAlpha(genereateRGBAData(evenSpectrum(100), 1.0F).pixel(99, 0)), 127);
    EXPECT_TRUE(genereateRGBAData(AudioPowerSpectrumInfo{}, 0.5F).isNull());
}

TEST(ImageUtil, ReplacesOneColourKeepingAlpha)
{
    QImage image(2, 1, QImage::Format_RGBA8888);
    image.setPixelColor(0, 0, QColor(0x12, 0x34, 0x56, 255));
    image.setPixelColor(1, 0, QColor(0x12, 0x34, 0x57, 255));
    const QImage replaced = VoImageUtil::replaceImageColor(image, 0xFF123456, 0xABCDEF);
    const QColor first = replaced.pixelColor(0, 0);
    EXPECT_EQ(first.rgb() & 0xFFFFFF, 0xABCDEFU);
    EXPECT_EQ(first.alpha(), 255);
    EXPECT_EQ(replaced.pixelColor(1, 0).rgb() & 0xFFFFFF, 0x123457U);
}

TEST(ImageUtil, RendersAfreshOnlyOnWideScreens)
{
    QImage image(4, 3, QImage::Format_ARGB32);
    image.fill(Qt::red);
    EXPECT_EQ(VoImageUtil::adjustImage(image, 760.0).cacheKey(), image.cacheKey());
    const QImage wide = VoImageUtil::adjustImage(image, 761.0);
    EXPECT_NE(wide.cacheKey(), image.cacheKey());
    EXPECT_EQ(wide.size(), image.size());
    EXPECT_EQ(wide.pixelColor(2, 1), QColor(Qt::red));
}

} // namespace
