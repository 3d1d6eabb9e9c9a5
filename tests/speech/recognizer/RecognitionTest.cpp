#include "speech/PhraseAssessment.h"
#include "speech/SpeechTestSupport.h"
#include "speech/VoCommandArray.h"
#include "speech/VoPSRecognizer.h"
#include "tools/CliRunner.h"

#include <QImage>
#include <cmath>
#include <numbers>

namespace {

const QStringList fillers{u"<s>"_s, u"</s>"_s, u"<sil>"_s, u"[NOISE]"_s, u"[SPEECH]"_s};

/// The recognised dictionary words, alternates counted as their word.
QStringList realWords(const QList<QVariantMap> &wordsInfo)
{
    QStringList words;
    for (const QVariantMap &word : wordsInfo) {
        const QString text = word.value(u"word"_s).toString();
        if (!fillers.contains(text))
            words.append(text.section(u'(', 0, 0));
    }
    return words;
}

/// The course's "Guten Morgen!" recognised as the comparison pop-up does: its samples against a
/// model of the phrase's own words.
class Recognition : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder = new QTemporaryDir;
        model = generatePhraseModel(u"Guten Morgen!"_s, folder->path(), TestPaths::acousticModel());
        ASSERT_TRUE(model.succeeded()) << model.error.toStdString();
        recognized = new VoPSRecognizer;
        recognize(*recognized, decodedSamples(gutenMorgenVoice()));
    }
    static void TearDownTestSuite()
    {
        delete recognized;
        delete folder;
    }
    void SetUp() override { ASSERT_TRUE(model.succeeded()); }

    static void recognize(VoPSRecognizer &recognizer, std::vector<int16_t> samples,
                          const QString &languageModel = model.languageModelPath)
    {
        recognizer.runRecognitionOnSamples(std::move(samples), languageModel, model.dictionaryPath,
                                           TestPaths::acousticModel(), false);
    }

    static inline QTemporaryDir *folder = nullptr;
    static inline PhraseModel model;
    static inline VoPSRecognizer *recognized = nullptr;
};

} // namespace

TEST(DecoderConfiguration, NgramModelOptionsInTheirOrder)
{
    EXPECT_EQ(VoCommandArray().commandArrayForLanguageModel(u"/m/p.DMP"_s, u"/m/p.dic"_s, u"/am"_s,
                                                            false),
              u"-lm /m/p.DMP -beam 1e-96 -dict /m/p.dic -fwdflatbeam 1e-128 -hmm /am -lw 6.500000 "
              u"-samprate 16000"_s.split(u' '));
}

TEST_F(Recognition, HearsThePhraseInWordsThatCoverEveryFrame)
{
    EXPECT_EQ(recognized->hypothesis(), u"GUTEN MORGEN"_s);
    EXPECT_EQ(realWords(recognized->wordsInfo()), QStringList({u"GUTEN"_s, u"MORGEN"_s}));
    const QList<QVariantMap> &words = recognized->wordsInfo();
    ASSERT_FALSE(words.isEmpty());
    EXPECT_EQ(words.first().value(u"word"_s).toString(), u"<s>"_s);
    EXPECT_EQ(words.last().value(u"word"_s).toString(), u"</s>"_s);
    qint64 nextFrame = 0;
    for (const QVariantMap &word : words) {
        EXPECT_EQ(word.value(u"startFrame"_s).toLongLong(), nextFrame);
        nextFrame = word.value(u"endFrame"_s).toLongLong() + 1;
        // The linear posterior is the log posterior in the decoder's base, 1.0001; the
        // decoder's sums overshoot a certain word's log posterior of 0 by a few units.
        const float linear = word.value(u"logProbability"_s).toFloat();
        EXPECT_GE(linear, 0.0F);
        EXPECT_LE(linear, 1.001F);
        EXPECT_NEAR(linear, std::pow(1.0001, word.value(u"probability"_s).toInt()), 1e-3);
    }
    // One spectrum row per decoder frame.
    const AudioPowerSpectrumInfo &spectrum = recognized->powerSpectrumInfo();
    EXPECT_EQ(static_cast<qint64>(spectrum.frameCount), nextFrame);
    EXPECT_GT(spectrum.maxPower, 0.0);
}

TEST_F(Recognition, SpectrumRowsFollowTheModelsFraming)
{
    // A 1 kHz tone from sample 1529 to 4799 in 8000 samples. Frame f reads samples 160 f to
    // 160 f + 409, so the tone's first sample is the last one frame 7 reads; the pre-emphasised
    // sample after the tone's last is the first one frame 30 reads. 48 full frames and the rest.
    std::vector<int16_t> samples(8000, 0);
    for (size_t n = 1529; n < 4800; ++n)
        samples[n] = static_cast<int16_t>(
            std::lround(8000.0 * std::cos(2.0 * std::numbers::pi * static_cast<double>(n) / 16.0)));
    VoPSRecognizer recognizer;
    recognize(recognizer, samples);
    const AudioPowerSpectrumInfo &spectrum = recognizer.powerSpectrumInfo();
    ASSERT_EQ(spectrum.frameCount, 49u);
    const auto rowMaximum = [&spectrum](uint64_t frame) {
        double largest = 0.0;
        for (int bin = 0; bin < 128; ++bin)
            largest = std::max(largest, spectrum.at(frame, bin));
        return largest;
    };
    for (uint64_t frame = 0; frame < spectrum.frameCount; ++frame)
        EXPECT_EQ(rowMaximum(frame) > 0.0, frame >= 7 && frame <= 30) << "frame " << frame;
    // Bin 32 of a 512-point FFT; the power is worked out in LogPowerSpectrumTest.
    EXPECT_EQ(rowMaximum(15), spectrum.at(15, 32));
    EXPECT_NEAR(spectrum.at(15, 32), 25.477, 0.01);
}

// The decoder's dither must not reach the spectrum: digital silence stays exactly 0.
TEST_F(Recognition, SilenceAndScrapsHaveNoRealWord)
{
    for (const size_t count : {size_t{32000}, size_t{1}, size_t{100}}) {
        VoPSRecognizer recognizer;
        recognize(recognizer, std::vector<int16_t>(count, 0));
        EXPECT_TRUE(realWords(recognizer.wordsInfo()).isEmpty()) << count << " samples";
        EXPECT_LE(recognizer.powerSpectrumInfo().frameCount, count / 160 + 1);
        for (const double power : recognizer.powerSpectrumInfo().powerData)
            ASSERT_EQ(power, 0.0) << count << " samples";
    }
}

TEST_F(Recognition, FailuresLeaveTheResultsAsTheyWere)
{
    const std::vector<int16_t> tooLong(
        static_cast<size_t>(VoPSRecognizer::longestRecordingSeconds * 16000) + 1, 0);
    VoPSRecognizer recognizer;
    recognize(recognizer, tooLong);
    EXPECT_TRUE(recognizer.wordsInfo().isEmpty());
    EXPECT_TRUE(recognizer.audioData().empty());
    EXPECT_TRUE(recognizer.powerSpectrumInfo().powerData.empty());

    // A decoder of its own, seeding its dither afresh: the very same results.
    recognize(recognizer, recognized->audioData());
    ASSERT_EQ(recognizer.wordsInfo(), recognized->wordsInfo());
    EXPECT_EQ(recognizer.powerSpectrumInfo().powerData, recognized->powerSpectrumInfo().powerData);
    // After a good recognition a failing one changes nothing.
    recognize(recognizer, tooLong);
    recognize(recognizer, {1, 2, 3}, folder->filePath(u"none.DMP"_s));
    EXPECT_EQ(recognizer.wordsInfo(), recognized->wordsInfo());
    EXPECT_EQ(recognizer.hypothesis(), recognized->hypothesis());
    EXPECT_EQ(recognizer.audioData(), recognized->audioData());
    EXPECT_FALSE(recognizer.initializeDecoder(model.languageModelPath, model.dictionaryPath,
                                              folder->filePath(u"no-model"_s), false));
}

TEST_F(Recognition, SpectrumCommandDrawsOneColumnPerDecoderFrame)
{
    const QString png = folder->filePath(u"voice.png"_s);
    const CliRun run = runCli({u"spectrum"_s, gutenMorgenVoice(), u"--png"_s, png, u"--hmm"_s,
                               TestPaths::acousticModel()});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QImage image(png);
    EXPECT_EQ(static_cast<uint64_t>(image.width()), recognized->powerSpectrumInfo().frameCount);
    EXPECT_EQ(image.height(), 128);
    EXPECT_TRUE(run.out.startsWith(QString::number(image.width()) + u" frames"_s))
        << run.out.toStdString();
}
