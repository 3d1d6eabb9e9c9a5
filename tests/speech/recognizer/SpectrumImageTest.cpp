#include "audio/SpectrumImage.h"

#include <QImage>
#include <gtest/gtest.h>

namespace {

AudioPowerSpectrumInfo spectrumOf(uint64_t frames, double maxPower)
{
    AudioPowerSpectrumInfo spectrum;
    spectrum.frameCount = frames;
    spectrum.rowCount = frames + 1;
    spectrum.powerData.assign(spectrum.rowCount * AudioPowerSpectrumInfo::bins, 0.0);
    spectrum.maxPower = maxPower;
    return spectrum;
}

void set(AudioPowerSpectrumInfo &spectrum, uint64_t frame, int bin, double value)
{
    spectrum.powerData[frame * AudioPowerSpectrumInfo::bins + static_cast<uint64_t>(bin)] = value;
}

/// The grey of a frame's bin, counting rows from the bottom.
int greyAt(const QImage &image, int frame, int bin)
{
    return qGray(image.pixel(frame, image.height() - 1 - bin));
}

} // namespace

TEST(SpectrumImage, OneColumnPerFrameAndOneRowPerBin)
{
    const QImage image = spectrumImage(spectrumOf(7, 0.0));
    EXPECT_EQ(image.width(), 7);
    EXPECT_EQ(image.height(), 128);
}

TEST(SpectrumImage, LouderIsDarkerWithBinZeroAtTheBottom)
{
    // With a maximum of 255 each value is its own v, so the grey levels below are exact.
    AudioPowerSpectrumInfo spectrum = spectrumOf(3, 255.0);
    set(spectrum, 0, 0, 255.0); // black
    set(spectrum, 1, 127, 15.0);
    set(spectrum, 2, 5, 0.5); // below 1: white
    const QImage image = spectrumImage(spectrum);
    EXPECT_EQ(greyAt(image, 0, 0), 0);
    EXPECT_EQ(qGray(image.pixel(0, 127)), 0); // the bottom row of the picture
    EXPECT_EQ(greyAt(image, 1, 127), 240);
    EXPECT_EQ(qGray(image.pixel(1, 0)), 240); // the top row
    EXPECT_EQ(greyAt(image, 2, 5), 255);
    EXPECT_EQ(greyAt(image, 1, 0), 255);
}

TEST(SpectrumImage, ValuesAboveTheMaximumWrapAround)
{
    AudioPowerSpectrumInfo spectrum = spectrumOf(2, 255.0);
    set(spectrum, 0, 3, 256.0); // wraps to white
    set(spectrum, 1, 3, 257.9); // v = 257: 254
    const QImage image = spectrumImage(spectrum);
    EXPECT_EQ(greyAt(image, 0, 3), 255);
    EXPECT_EQ(greyAt(image, 1, 3), 254);
}

TEST(SpectrumImage, AllZeroSpectrumIsWhite)
{
    const QImage image = spectrumImage(spectrumOf(4, 0.0));
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ASSERT_EQ(image.pixel(x, y), qRgb(255, 255, 255));
}

TEST(SpectrumImage, NoFramesGiveNoPicture)
{
    EXPECT_TRUE(spectrumImage(AudioPowerSpectrumInfo{}).isNull());
    EXPECT_TRUE(spectrumImage(spectrumOf(0, 0.0)).isNull());
    // A frame count the rows do not back up is refused, not read past.
    AudioPowerSpectrumInfo damaged = spectrumOf(2, 1.0);
    damaged.frameCount = 50;
    EXPECT_TRUE(spectrumImage(damaged).isNull());
}
