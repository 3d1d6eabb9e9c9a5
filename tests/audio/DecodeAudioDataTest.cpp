#include "AudioFixtures.h"
#include "audio/AudioDecodeStatus.h"
#include "audio/VoAudioUtil.h"
#include "support/TestPaths.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstring>
#include <gtest/gtest.h>
#include <sndfile.h>

using namespace AudioFixtures;

namespace {

class DecodeAudioDataTest : public ::testing::Test {
protected:
    QString path(const char *name) const { return m_dir.filePath(QString::fromLatin1(name)); }

    AudioDataInfo decode(const QString &file)
    {
        AudioDataInfo record;
        EXPECT_EQ(VoAudioUtil::decodeAudioDataFromFile(file, record), 0) << file.toStdString();
        return record;
    }

    /// Decodes a file that must fail: any non-zero status, and the record as it was.
    int32_t decodeFailing(const QString &file)
    {
        AudioDataInfo record = untouchedRecord();
        const int32_t status = VoAudioUtil::decodeAudioDataFromFile(file, record);
        EXPECT_NE(status, 0) << file.toStdString();
        expectUntouched(record);
        return status;
    }

    QTemporaryDir m_dir;
};

// Linear PCM arrives as stored: own rate, own width, interleaved, in native byte order.

TEST_F(DecodeAudioDataTest, SixteenBitMonoWaveArrivesUnchanged)
{
    const std::vector<int16_t> written{0, 1, -1, 32767, -32768, 0x1234};
    ASSERT_TRUE(writeSound(path("mono.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 22050, 1,
                           fromShorts(written)));
    const AudioDataInfo record = decode(path("mono.wav"));
    EXPECT_EQ(record.size, 2 * 6);
    EXPECT_EQ(record.data.size(), record.size);
    EXPECT_EQ(record.channels, 1);
    EXPECT_EQ(record.bits_per_sample, 16);
    EXPECT_EQ(record.sample_rate, 22050U);
    EXPECT_EQ(record.format_tag, uint64_t{SF_FORMAT_WAV | SF_FORMAT_PCM_16});
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(record), written);
}

TEST_F(DecodeAudioDataTest, StereoIsInterleavedAndCountsBothChannelsInItsBits)
{
    const std::vector<int16_t> written{100, -100, 200, -200, 300, -300};
    ASSERT_TRUE(writeSound(path("stereo.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 44100, 2,
                           fromShorts(written)));
    const AudioDataInfo record = decode(path("stereo.wav"));
    EXPECT_EQ(record.size, 2 * 6);
    EXPECT_EQ(record.channels, 2);
    EXPECT_EQ(record.bits_per_sample, 32);
    EXPECT_EQ(record.sample_rate, 44100U);
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(record), written);
}

TEST_F(DecodeAudioDataTest, BigEndianFileArrivesInNativeOrder)
{
    const std::vector<int16_t> written{1, -2, 0x1234};
    ASSERT_TRUE(writeSound(path("big.aiff"), SF_FORMAT_AIFF | SF_FORMAT_PCM_16, 8000, 1,
                           fromShorts(written)));
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(decode(path("big.aiff"))), written);
}

TEST_F(DecodeAudioDataTest, NarrowAndWideSamplesKeepTheirStoredWidth)
{
    // WAV's 8-bit samples are unsigned: silence is 128.
    ASSERT_TRUE(writeSound(path("u8.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 8000, 1,
                           fromShorts({-32768, 0, 32512})));
    const AudioDataInfo u8 = decode(path("u8.wav"));
    EXPECT_EQ(u8.data, QByteArray("\x00\x80\xff", 3));
    EXPECT_EQ(u8.bits_per_sample, 8);

    ASSERT_TRUE(
        writeSound(path("s24.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_24, 8000, 1, {0x12345600, -256}));
    const AudioDataInfo s24 = decode(path("s24.wav"));
    ASSERT_EQ(s24.size, 6);
    int32_t first = 0;
    std::memcpy(&first, s24.data.constData(), 3);
    EXPECT_EQ(first & 0xFFFFFF, 0x123456);
    EXPECT_EQ(s24.data.mid(3), QByteArray("\xff\xff\xff", 3));
    EXPECT_EQ(s24.bits_per_sample, 24);
}

// Everything else arrives as 16 kHz mono 16-bit, while the record describes the file.

TEST_F(DecodeAudioDataTest, CourseMp3ArrivesAt16kHzWithTheFilesOwnFigures)
{
    const QString mp3 = TestPaths::course() + QStringLiteral("/1/voices/101.mp3");
    SF_INFO info{};
    SNDFILE *file = sf_open(QFile::encodeName(mp3).constData(), SFM_READ, &info);
    ASSERT_NE(file, nullptr);
    sf_close(file);

    const AudioDataInfo record = decode(mp3);
    EXPECT_EQ(record.bits_per_sample, 8);
    EXPECT_EQ(record.channels, 1);
    EXPECT_EQ(record.sample_rate, 22050U);
    EXPECT_EQ(record.format_tag, uint64_t{SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III});
    EXPECT_EQ(record.data.size(), record.size);
    const std::vector<int16_t> samples = VoAudioUtil::getAudioDataShortForByte(record);
    EXPECT_NEAR(static_cast<double>(samples.size()), info.frames * 16000.0 / info.samplerate, 2);
    EXPECT_GT(peak(samples), 1000);
}

struct CompressedFormat {
    const char *name;
    int format;
    int rate;
};

void PrintTo(const CompressedFormat &format, std::ostream *os)
{
    *os << format.name;
}

class CompressedToneTest : public DecodeAudioDataTest,
                           public ::testing::WithParamInterface<CompressedFormat> {};

TEST_P(CompressedToneTest, ToneKeepsItsPitchAndLengthAt16kHz)
{
    const CompressedFormat format = GetParam();
    const QString file = path(format.name);
    ASSERT_TRUE(
        writeSound(file, format.format, format.rate, 1, tone(format.rate, 1.0, 440, {0.5})));
    const AudioDataInfo record = decode(file);
    EXPECT_EQ(record.bits_per_sample, 8);
    EXPECT_EQ(record.sample_rate, static_cast<uint64_t>(format.rate));
    const std::vector<int16_t> samples = VoAudioUtil::getAudioDataShortForByte(record);
    EXPECT_NEAR(static_cast<double>(samples.size()), 16000, 160);
    EXPECT_NEAR(measuredFrequency(samples, 16000), 440, 440 * 0.02);
    EXPECT_NEAR(peak(samples), 0.5 * 32767, 0.05 * 32767);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, CompressedToneTest,
    ::testing::Values(CompressedFormat{"tone.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 44100},
                      CompressedFormat{"tone.caf", SF_FORMAT_CAF | SF_FORMAT_ALAC_16, 44100},
                      CompressedFormat{"tone.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS, 44100},
                      CompressedFormat{"tone.opus", SF_FORMAT_OGG | SF_FORMAT_OPUS, 48000},
                      CompressedFormat{"tone.mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III,
                                       44100},
                      // µ-law bytes are codes, not samples, so they are converted as well.
                      CompressedFormat{"tone.wav", SF_FORMAT_WAV | SF_FORMAT_ULAW, 8000}),
    [](const auto &test) {
        return QString::fromLatin1(test.param.name)
            .replace(QLatin1Char('.'), QLatin1Char('_'))
            .toStdString();
    });

TEST_F(DecodeAudioDataTest, ChannelsAreAveragedIntoOne)
{
    // A tone on the left only comes out at half its level; a bug that took one channel would
    // give full level or silence.
    ASSERT_TRUE(writeSound(path("left.flac"), SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 44100, 2,
                           tone(44100, 0.5, 440, {0.5, 0.0})));
    const AudioDataInfo record = decode(path("left.flac"));
    EXPECT_EQ(record.channels, 2);
    EXPECT_EQ(record.bits_per_sample, 16);
    EXPECT_NEAR(peak(VoAudioUtil::getAudioDataShortForByte(record)), 0.25 * 32767, 0.02 * 32767);
}

TEST_F(DecodeAudioDataTest, RecordingAt16kHzMonoComesBackSampleForSampleEveryTime)
{
    // The recorder's own format: nothing to resample, so nothing may change, and no dither may
    // make two decodes differ.
    std::vector<int16_t> written;
    for (int i = 0; i < 16000; ++i)
        written.push_back(static_cast<int16_t>((i * 7919) % 20000 - 10000));
    ASSERT_TRUE(writeSound(path("take.caf"), SF_FORMAT_CAF | SF_FORMAT_ALAC_16, 16000, 1,
                           fromShorts(written)));
    const AudioDataInfo first = decode(path("take.caf"));
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(first), written);
    EXPECT_EQ(decode(path("take.caf")).data, first.data);
}

// Bad input: a non-zero status, one log line, and the record as it was.

TEST_F(DecodeAudioDataTest, MissingEmptyAndNonAudioFilesFail)
{
    {
        const LogCapture log;
        decodeFailing(path("missing.wav"));
        ASSERT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(log.lines().first().startsWith(QStringLiteral("can not open the file: ")));
        EXPECT_TRUE(log.lines().first().contains(path("missing.wav")));
    }
    ASSERT_TRUE(writeBytes(path("empty.wav"), {}));
    decodeFailing(path("empty.wav"));
    ASSERT_TRUE(writeBytes(path("words.mp3"), QByteArrayLiteral("Guten Tag, wie geht's?\n")));
    decodeFailing(path("words.mp3"));
    decodeFailing(m_dir.path());
}

TEST_F(DecodeAudioDataTest, FileWithoutFramesHasNoAudio)
{
    ASSERT_TRUE(writeSound(path("none.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1, {}));
    EXPECT_EQ(decodeFailing(path("none.wav")), AudioDecodeStatus::noAudio);
}

TEST_F(DecodeAudioDataTest, TruncatedFilesFail)
{
    const auto cut = [this](const char *name, qsizetype keep) {
        return writeBytes(path(QByteArray("cut-").append(name).constData()),
                          readBytes(path(name)).left(keep));
    };
    ASSERT_TRUE(writeSound(path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1,
                           tone(16000, 0.5, 440, {0.5})));
    ASSERT_TRUE(cut("a.wav", 30));
    decodeFailing(path("cut-a.wav"));

    // Compressed streams say how long they are; one that stops short is damaged. (Ogg Vorbis is
    // left out: libsndfile 1.2.0 leaks its stream header when such a file fails to open.)
    for (const auto &[name, format, rate] :
         {std::tuple{"a.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 44100},
          std::tuple{"a.mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 44100},
          std::tuple{"a.caf", SF_FORMAT_CAF | SF_FORMAT_ALAC_16, 44100},
          std::tuple{"a.opus", SF_FORMAT_OGG | SF_FORMAT_OPUS, 48000}}) {
        ASSERT_TRUE(writeSound(path(name), format, rate, 1, tone(rate, 1.0, 440, {0.5})));
        ASSERT_TRUE(cut(name, QFile(path(name)).size() / 2));
        decodeFailing(path(QByteArray("cut-").append(name).constData()));
    }
}

TEST_F(DecodeAudioDataTest, WaveCutInsideItsSamplesGivesTheSamplesLeft)
{
    // libsndfile trims a linear PCM file's length to the bytes present, so a cut WAV reads as
    // the shorter recording it now is; `size` still counts exactly the bytes delivered.
    ASSERT_TRUE(writeSound(path("a.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1,
                           tone(16000, 0.5, 440, {0.5})));
    ASSERT_TRUE(writeBytes(path("cut.wav"), readBytes(path("a.wav")).left(44 + 1001)));
    const AudioDataInfo record = decode(path("cut.wav"));
    EXPECT_EQ(record.size, 1000);
    EXPECT_EQ(record.data.size(), 1000);
}

TEST_F(DecodeAudioDataTest, SizeBeyond32BitsIsRefusedBeforeDecoding)
{
    // A WAV of exactly 2^31 bytes of samples, one past what `size` holds; the file is sparse.
    ASSERT_TRUE(writeSound(path("big.wav"), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 2, {0, 0}));
    {
        QFile big(path("big.wav"));
        ASSERT_TRUE(big.open(QIODevice::ReadWrite));
        const qint64 dataBytes = qint64{1} << 31;
        ASSERT_TRUE(big.resize(44 + dataBytes));
        const auto putLittleEndian = [&big](qint64 offset, quint32 value) {
            big.seek(offset);
            for (int i = 0; i < 4; ++i)
                big.putChar(static_cast<char>(value >> (8 * i)));
        };
        putLittleEndian(4, static_cast<quint32>(36 + dataBytes));
        putLittleEndian(40, static_cast<quint32>(dataBytes));
    }
    {
        const LogCapture log;
        EXPECT_EQ(decodeFailing(path("big.wav")), AudioDecodeStatus::tooLarge);
        ASSERT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(log.lines().first().contains(QStringLiteral("would not fit")));
    }

    // A FLAC header that claims 2^36 frames for a tenth of a second of sound.
    ASSERT_TRUE(writeSound(path("liar.flac"), SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 44100, 1,
                           tone(44100, 0.1, 440, {0.5})));
    QByteArray flac = readBytes(path("liar.flac"));
    ASSERT_EQ(flac.left(4), QByteArrayLiteral("fLaC"));
    flac[21] = static_cast<char>(flac[21] | 0x0F); // STREAMINFO's 36-bit frame count
    flac.replace(22, 4, QByteArray(4, '\xff'));
    ASSERT_TRUE(writeBytes(path("liar.flac"), flac));
    EXPECT_EQ(decodeFailing(path("liar.flac")), AudioDecodeStatus::tooLarge);
}

TEST_F(DecodeAudioDataTest, RateTooLowToConvertIsRefused)
{
    ASSERT_TRUE(writeSound(path("slow.wav"), SF_FORMAT_WAV | SF_FORMAT_ULAW, 1000, 1,
                           tone(1000, 1.0, 100, {0.5})));
    EXPECT_EQ(decodeFailing(path("slow.wav")), AudioDecodeStatus::unsupportedFormat);
}

} // namespace
