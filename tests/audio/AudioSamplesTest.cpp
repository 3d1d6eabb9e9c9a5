#include "audio/VoAudioUtil.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

AudioDataInfo recordOf(const std::vector<int16_t> &samples, int32_t size)
{
    AudioDataInfo record;
    record.data.resize(static_cast<qsizetype>(samples.size() * sizeof(int16_t)));
    std::memcpy(record.data.data(), samples.data(), static_cast<size_t>(record.data.size()));
    record.size = size;
    return record;
}

TEST(AudioSamplesTest, BytesBecomeNativeOrderSamples)
{
    const std::vector<int16_t> samples{1, -2, 300, -32768};
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(recordOf(samples, 8)), samples);
    // An odd byte at the end is not half a sample.
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(recordOf(samples, 7)),
              (std::vector<int16_t>{1, -2, 300}));
}

TEST(AudioSamplesTest, SizeDecidesTheCountWithoutReadingPastTheData)
{
    // A record that claims more bytes than it holds gives zeros for the rest, not what lies
    // beyond its buffer.
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(recordOf({5, 6}, 8)),
              (std::vector<int16_t>{5, 6, 0, 0}));
    EXPECT_TRUE(VoAudioUtil::getAudioDataShortForByte(recordOf({5, 6}, 1)).empty());
    EXPECT_TRUE(VoAudioUtil::getAudioDataShortForByte(recordOf({5, 6}, -4)).empty());
    EXPECT_TRUE(VoAudioUtil::getAudioDataShortForByte(AudioDataInfo{}).empty());
}

} // namespace
