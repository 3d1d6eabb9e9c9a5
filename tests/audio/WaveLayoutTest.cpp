#include "AudioFixtures.h"
#include "audio/VoAudioUtil.h"

#include <QDataStream>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sndfile.h>

using namespace AudioFixtures;

namespace {

// The app's own layout: the canonical WAV fields, each as wide as the record's field.
QByteArray ownLayout(const QByteArray &samples, quint64 dataLength)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint64{0};
    out.writeRawData("WAVE", 4);
    out.writeRawData("fmt ", 4);
    out << quint64{16} << quint16{1} << qint16{1} << quint64{16000} << quint64{32000} << qint16{2}
        << qint16{16};
    out.writeRawData("data", 4);
    out << dataLength;
    out.writeRawData(samples.constData(), static_cast<int>(samples.size()));
    return bytes;
}

class WaveLayoutTest : public ::testing::Test {
protected:
    QString path(const char *name) const { return m_dir.filePath(QString::fromLatin1(name)); }
    QTemporaryDir m_dir;
};

TEST_F(WaveLayoutTest, ReadsEveryFieldOfItsOwnLayout)
{
    const QByteArray samples("\x01\x00\xfe\xff", 4);
    ASSERT_TRUE(writeBytes(path("own.wav"), ownLayout(samples, 4)));
    AudioDataInfo record = untouchedRecord();
    VoAudioUtil::decodeWaveData(path("own.wav"), record);
    EXPECT_EQ(record.format_length, 16U);
    EXPECT_EQ(record.format_tag, 1U);
    EXPECT_EQ(record.channels, 1);
    EXPECT_EQ(record.sample_rate, 16000U);
    EXPECT_EQ(record.avg_bytes_sec, 32000U);
    EXPECT_EQ(record.block_align, 2);
    EXPECT_EQ(record.bits_per_sample, 16);
    EXPECT_EQ(record.size, 4);
    EXPECT_EQ(record.data, samples);
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(record), (std::vector<int16_t>{1, -2}));
}

TEST_F(WaveLayoutTest, AnythingElseLeavesTheRecordAsItWas)
{
    ASSERT_TRUE(writeSound(path("canonical.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1,
                           fromShorts({1, 2, 3})));
    ASSERT_TRUE(writeBytes(path("long.wav"), ownLayout("\x01\x00", 1000)));
    ASSERT_TRUE(writeBytes(path("huge.wav"), ownLayout("\x01\x00", quint64{1} << 40)));
    ASSERT_TRUE(writeBytes(path("header.wav"), ownLayout({}, 0).left(40)));
    for (const char *name : {"canonical.wav", "long.wav", "huge.wav", "header.wav", "missing"}) {
        AudioDataInfo record = untouchedRecord();
        VoAudioUtil::decodeWaveData(path(name), record);
        SCOPED_TRACE(name);
        expectUntouched(record);
    }
}

} // namespace
