#include "AudioFixtures.h"
#include "audio/AudioDecodeStatus.h"
#include "audio/VoAudioUtil.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sndfile.h>
#include <tuple>

using namespace AudioFixtures;

namespace {

constexpr int32_t anyFailure = 1;

QByteArray bytesOf(const std::vector<int16_t> &samples)
{
    return {reinterpret_cast<const char *>(samples.data()),
            static_cast<qsizetype>(samples.size() * sizeof(int16_t))};
}

class DecodeAudioDataTest : public ::testing::Test {
protected:
    QString path(const char *name) const { return m_dir.filePath(QString::fromLatin1(name)); }

    QString write(const char *name, int format, int rate, int channels,
                  const std::vector<int32_t> &samples) const
    {
        EXPECT_TRUE(writeSound(path(name), format, rate, channels, samples)) << name;
        return path(name);
    }

    static AudioDataInfo decode(const QString &file)
    {
        AudioDataInfo record;
        EXPECT_EQ(VoAudioUtil::decodeAudioDataFromFile(file, record), 0) << qPrintable(file);
        return record;
    }

    QTemporaryDir m_dir;
};

// Linear PCM arrives as stored: own width, interleaved, in native byte order.
TEST_F(DecodeAudioDataTest, LinearPcmArrivesAsStored)
{
    const struct {
        const char *name;
        int format;
        int rate;
        int channels;
        std::vector<int32_t> written;
        QByteArray expected;
    } cases[] = {
        {"stereo.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 44100, 2,
         fromShorts({0, 1, -1, 32767, -32768, 0x1234}), bytesOf({0, 1, -1, 32767, -32768, 0x1234})},
        // WAV's 8-bit samples are unsigned: silence is 128. An odd byte is no sample.
        {"u8.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 8000, 1, fromShorts({-32768, 0, 32512}),
         QByteArray("\x00\x80\xff", 3)},
        {"s24.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24, 8000, 1,
         std::vector<int32_t>{0x12345600, -256}, QByteArray("\x56\x34\x12\xff\xff\xff", 6)},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        const AudioDataInfo record = decode(write(c.name, c.format, c.rate, c.channels, c.written));
        EXPECT_EQ(record.data, c.expected);
        EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(record).size(), c.expected.size() / 2);
    }
}

// Everything else arrives as 16 kHz mono 16-bit samples, as many as the file's length at 16 kHz.
TEST_F(DecodeAudioDataTest, OtherFormatsArriveAs16kHzMonoAtTheirPitchAndLength)
{
    const struct {
        const char *name;
        int format;
        int rate;
        std::vector<double> gains;
        double level;
    } cases[] = {
        // FLAC names its depth with the PCM codes, yet is compressed; a tone on one channel of
        // two comes out at half its level, as the channels are averaged.
        {"left.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 44100, {0.5, 0.0}, 0.25},
        {"tone.mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 22050, {0.5}, 0.5},
        {"tone.opus", SF_FORMAT_OGG | SF_FORMAT_OPUS, 48000, {0.5}, 0.5},
        // µ-law bytes are codes, not samples.
        {"tone.wav", SF_FORMAT_WAV | SF_FORMAT_ULAW, 8000, {0.5}, 0.5},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        const auto channels = static_cast<int>(c.gains.size());
        const QString file =
            write(c.name, c.format, c.rate, channels, tone(c.rate, 1.0, 440, c.gains));
        SF_INFO info{};
        sf_close(sf_open(QFile::encodeName(file).constData(), SFM_READ, &info));
        const AudioDataInfo record = decode(file);
        const std::vector<int16_t> samples = VoAudioUtil::getAudioDataShortForByte(record);
        EXPECT_NEAR(static_cast<double>(samples.size()), info.frames * 16000.0 / c.rate, 2);
        EXPECT_NEAR(measuredFrequency(samples, 16000), 440, 440 * 0.02);
        EXPECT_NEAR(peak(samples), c.level * 32767, 0.05 * 32767);
    }

    // The recorder's own format needs no resampling: nothing may change, and no dither may make
    // two decodes differ.
    std::vector<int16_t> take;
    for (int i = 0; i < 16000; ++i)
        take.push_back(static_cast<int16_t>((i * 7919) % 20000 - 10000));
    const QString caf =
        write("take.caf", SF_FORMAT_CAF | SF_FORMAT_ALAC_16, 16000, 1, fromShorts(take));
    const AudioDataInfo first = decode(caf);
    EXPECT_EQ(VoAudioUtil::getAudioDataShortForByte(first), take);
    EXPECT_EQ(decode(caf).data, first.data);
}

// Bad input: a non-zero status and one log line naming the file, which is all the command line
// says about it.
TEST_F(DecodeAudioDataTest, BadFilesFailWithOneLineNamingThem)
{
    const auto cut = [](const QString &file, qsizetype keep) {
        EXPECT_TRUE(writeBytes(file + QStringLiteral(".cut"), readBytes(file).left(keep)));
        return file + QStringLiteral(".cut");
    };
    ASSERT_TRUE(writeBytes(path("empty.wav"), {}));
    std::vector<std::pair<QString, int32_t>> cases{
        {path("missing.wav"), anyFailure},
        {path("empty.wav"), anyFailure},
        {write("none.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1, {}),
         AudioDecodeStatus::noAudio},
        {write("slow.wav", SF_FORMAT_WAV | SF_FORMAT_ULAW, 1000, 1, tone(1000, 1.0, 100, {0.5})),
         AudioDecodeStatus::unsupportedFormat},
        // Cut inside its header.
        {cut(write("a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1, {1, 2, 3}), 30),
         anyFailure}};
    // Compressed streams say how long they are: one cut half way is damaged. (Not Ogg Vorbis:
    // libsndfile 1.2.0 leaks its stream header on such a file.)
    for (const auto &[name, format, rate] :
         {std::tuple{"a.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 44100},
          std::tuple{"a.mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 44100},
          std::tuple{"a.caf", SF_FORMAT_CAF | SF_FORMAT_ALAC_16, 44100},
          std::tuple{"a.opus", SF_FORMAT_OGG | SF_FORMAT_OPUS, 48000}}) {
        const QString file = write(name, format, rate, 1, tone(rate, 1.0, 440, {0.5}));
        cases.emplace_back(cut(file, QFile(file).size() / 2), anyFailure);
    }
    // A FLAC header that claims 2^36 frames (STREAMINFO's count) for a tenth of a second must not
    // make the decoder ask for that much memory.
    const QString liar = write("liar.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 44100, 1,
                               tone(44100, 0.1, 440, {0.5}));
    QByteArray flac = readBytes(liar);
    flac[21] = static_cast<char>(flac[21] | 0x0F);
    flac.replace(22, 4, QByteArray(4, '\xff'));
    ASSERT_TRUE(writeBytes(liar, flac));
    cases.emplace_back(liar, AudioDecodeStatus::tooLarge);

    for (const auto &[file, expected] : cases) {
        SCOPED_TRACE(file.toStdString());
        const LogCapture log;
        AudioDataInfo record;
        const int32_t status = VoAudioUtil::decodeAudioDataFromFile(file, record);
        EXPECT_TRUE(expected == anyFailure ? status != 0 : status == expected) << status;
        ASSERT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join(u'\n'));
        EXPECT_TRUE(log.lines().first().contains(file));
    }
}

} // namespace

// What the recogniser hears of any file: a 44.1 kHz stereo WAV read as if it were 16 kHz mono
// would last 5.5 times too long; a clipped one must not wrap round; 16 kHz mono comes as stored.
TEST_F(DecodeAudioDataTest, SpeechSamplesAre16kHzMonoWhateverTheFile)
{
    std::vector<int16_t> heard;
    const QString cd = write("cd.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 44100, 2,
                             tone(44100, 2.0, 440.0, {0.5, 0.5}));
    ASSERT_EQ(VoAudioUtil::decodeSpeechSamples(cd, heard, 10 * 16000), 0);
    EXPECT_NEAR(static_cast<double>(heard.size()), 32000.0, 2.0);
    EXPECT_NEAR(measuredFrequency(heard, 16000), 440.0, 4.0);

    std::vector<int32_t> square(44100);
    for (size_t i = 0; i < square.size(); ++i)
        square[i] = (i / 50) % 2 == 0 ? INT32_MAX : INT32_MIN;
    const QString clipped =
        write("clipped.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 44100, 1, square);
    ASSERT_EQ(VoAudioUtil::decodeSpeechSamples(clipped, heard, 10 * 16000), 0);
    // Mid-way through each half period the sign is the square's: a wrap would flip it.
    for (size_t half = 1; half + 1 < heard.size() * 441 / 160 / 50; ++half) {
        const auto at = static_cast<size_t>((static_cast<double>(half) + 0.5) * 50 * 160 / 441);
        ASSERT_EQ(heard[at] > 0, half % 2 == 0) << at;
    }

    const std::vector<int16_t> own{0, 1, -1, 32767, -32768, 0x1234};
    const QString asStored =
        write("own.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000, 1, fromShorts(own));
    ASSERT_EQ(VoAudioUtil::decodeSpeechSamples(asStored, heard, 10 * 16000), 0);
    EXPECT_EQ(heard, own);
    EXPECT_EQ(VoAudioUtil::decodeSpeechSamples(cd, heard, 16000), AudioDecodeStatus::tooLarge);
    EXPECT_TRUE(heard.empty());
}
