#include "AudioFixtures.h"
#include "audio/VoAudioUtil.h"
#include "content/VoFileUtil.h"
#include "support/TestPaths.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sndfile.h>

using namespace AudioFixtures;

namespace {

const QString converted = QStringLiteral("test_convert.wav");

QString target()
{
    return VoFileUtil::getDocumentsDirectory() + converted;
}

class Convert2PcmTest : public ::testing::Test {
protected:
    void SetUp() override { QFile::remove(target()); }
    void TearDown() override { QFile::remove(target()); }
};

TEST_F(Convert2PcmTest, WritesThe16kHzMonoSamplesTheDecoderDelivers)
{
    const QString mp3 = TestPaths::course() + QStringLiteral("/1/voices/101.mp3");
    ASSERT_TRUE(writeBytes(target(), QByteArrayLiteral("an older file")));
    VoAudioUtil::convert2PCM(mp3, converted);

    SF_INFO info{};
    SNDFILE *file = sf_open(QFile::encodeName(target()).constData(), SFM_READ, &info);
    ASSERT_NE(file, nullptr);
    sf_close(file);
    EXPECT_EQ(info.format, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    EXPECT_EQ(info.samplerate, 16000);
    EXPECT_EQ(info.channels, 1);

    AudioDataInfo fromMp3;
    AudioDataInfo fromWave;
    ASSERT_EQ(VoAudioUtil::decodeAudioDataFromFile(mp3, fromMp3), 0);
    ASSERT_EQ(VoAudioUtil::decodeAudioDataFromFile(target(), fromWave), 0);
    EXPECT_EQ(fromWave.data, fromMp3.data);
    EXPECT_EQ(fromWave.bits_per_sample, 16);
}

TEST_F(Convert2PcmTest, FailedConversionLeavesNoFileBehind)
{
    const QTemporaryDir dir;
    ASSERT_TRUE(writeSound(dir.filePath(QStringLiteral("a.mp3")),
                           SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 44100, 1,
                           tone(44100, 1.0, 440, {0.5})));
    const QString cut = dir.filePath(QStringLiteral("cut.mp3"));
    const QByteArray whole = readBytes(dir.filePath(QStringLiteral("a.mp3")));
    ASSERT_TRUE(writeBytes(cut, whole.left(whole.size() / 2)));

    for (const QString &source : {cut, dir.filePath(QStringLiteral("missing.mp3"))}) {
        VoAudioUtil::convert2PCM(source, converted);
        EXPECT_FALSE(QFile::exists(target())) << source.toStdString();
        EXPECT_FALSE(QFile::exists(target() + QStringLiteral(".part"))) << source.toStdString();
    }
}

} // namespace
