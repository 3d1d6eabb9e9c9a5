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

} // namespace

TEST(SpectrumImage, OneColumnPerFrameLouderDarkerSilenceWhite)
{
    // With a maximum of 255 each value is its own step below white, so the greys are exact.
    AudioPowerSpectrumInfo spectrum = spectrumOf(3, 255.0);
    set(spectrum, 0, 0, 255.0);
    set(spectrum, 1, 127, 15.0);
    set(spectrum, 2, 5, 0.5); // below one step: white
    const QImage image = spectrumImage(spectrum);
    ASSERT_EQ(image.width(), 3);
    ASSERT_EQ(image.height(), 128);
    EXPECT_EQ(qGray(image.pixel(0, 127)), 0);
    EXPECT_EQ(qGray(image.pixel(1, 0)), 240);
    EXPECT_EQ(qGray(image.pixel(2, 127 - 5)), 255);
    EXPECT_EQ(qGray(image.pixel(1, 127)), 255);

    const QImage silence = spectrumImage(spectrumOf(4, 0.0));
    ASSERT_EQ(silence.width(), 4);
    for (int y = 0; y < silence.height(); ++y)
        for (int x = 0; x < silence.width(); ++x)
            ASSERT_EQ(silence.pixel(x, y), qRgb(255, 255, 255));

    EXPECT_TRUE(spectrumImage(AudioPowerSpectrumInfo{}).isNull());
    EXPECT_TRUE(spectrumImage(spectrumOf(0, 0.0)).isNull());
    // A frame count the rows do not back up is refused, not read past.
    AudioPowerSpectrumInfo damaged = spectrumOf(2, 1.0);
    damaged.frameCount = 50;
    EXPECT_TRUE(spectrumImage(damaged).isNull());
}
