#include "DirectSpectrum.h"
#include "SpokenSentence.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/VoPSRecognizer.h"
#include "support/TestPaths.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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

bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

class Recognition : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder = new QTemporaryDir;
        QString error;
        sentence = SpokenSentence::make(folder->path(), error);
        ASSERT_TRUE(sentence) << error.toStdString();
        recognized = new VoPSRecognizer;
        recognize(*recognized, sentence->wavPath);
    }
    static void TearDownTestSuite()
    {
        delete recognized;
        delete folder;
    }
    void SetUp() override { ASSERT_TRUE(sentence); }

    static void recognize(VoPSRecognizer &recognizer, const QString &path)
    {
        recognizer.runRecognitionOnWavFileAtPath(path, sentence->languageModelPath,
                                                 sentence->dictionaryPath,
                                                 SpokenSentence::acousticModelPath(), false);
    }
    static void recognize(VoPSRecognizer &recognizer, std::vector<int16_t> samples)
    {
        recognizer.runRecognitionOnSamples(std::move(samples), sentence->languageModelPath,
                                           sentence->dictionaryPath,
                                           SpokenSentence::acousticModelPath(), false);
    }
    static void expectEmpty(const VoPSRecognizer &recognizer)
    {
        EXPECT_TRUE(recognizer.hypothesis().isEmpty());
        EXPECT_TRUE(recognizer.wordsInfo().isEmpty());
        EXPECT_TRUE(recognizer.audioData().empty());
        EXPECT_EQ(recognizer.audioDataInfo().size, 0);
        EXPECT_EQ(recognizer.powerSpectrumInfo().frameCount, 0u);
        EXPECT_TRUE(recognizer.powerSpectrumInfo().powerData.empty());
    }

    static inline QTemporaryDir *folder = nullptr;
    static inline std::optional<SpokenSentence> sentence;
    /// The sentence's own recording, recognised once for the tests that only read results.
    static inline VoPSRecognizer *recognized = nullptr;
};

} // namespace

TEST_F(Recognition, HearsTheSentence)
{
    EXPECT_EQ(recognized->hypothesis(), QString::fromLatin1(SpokenSentence::text));
    EXPECT_EQ(realWords(recognized->wordsInfo()),
              QString::fromLatin1(SpokenSentence::text).split(u' '));
}

TEST_F(Recognition, WordResultsCoverTheUtteranceWithEveryKey)
{
    const QList<QVariantMap> &words = recognized->wordsInfo();
    ASSERT_FALSE(words.isEmpty());
    EXPECT_EQ(words.first().value(u"word"_s).toString(), u"<s>"_s);
    EXPECT_EQ(words.last().value(u"word"_s).toString(), u"</s>"_s);
    qint64 nextFrame = 0;
    for (const QVariantMap &word : words) {
        EXPECT_EQ(word.size(), 8);
        EXPECT_EQ(word.value(u"word"_s).typeId(), QMetaType::QString);
        for (const QString &key :
             {u"startFrame"_s, u"endFrame"_s, u"acousticScore"_s, u"lmScore"_s})
            EXPECT_EQ(word.value(key).typeId(), QMetaType::LongLong) << key.toStdString();
        EXPECT_EQ(word.value(u"probability"_s).typeId(), QMetaType::Int);
        EXPECT_EQ(word.value(u"logProbability"_s).typeId(), QMetaType::Float);
        EXPECT_EQ(word.value(u"lmWeightFactor"_s).typeId(), QMetaType::Float);

        // Segments follow each other frame by frame.
        EXPECT_EQ(word.value(u"startFrame"_s).toLongLong(), nextFrame);
        nextFrame = word.value(u"endFrame"_s).toLongLong() + 1;

        // The linear posterior is the log posterior in the decoder's base, 1.0001. The
        // decoder's sums overshoot a certain word's log posterior of 0 by a few units.
        const float linear = word.value(u"logProbability"_s).toFloat();
        EXPECT_GE(linear, 0.0F);
        EXPECT_LE(linear, 1.001F);
        EXPECT_NEAR(linear, std::pow(1.0001, word.value(u"probability"_s).toInt()), 1e-3);
    }
}

TEST_F(Recognition, SpectrumHasOneRowPerDecoderFrame)
{
    const std::vector<int16_t> &samples = recognized->audioData();
    const AudioPowerSpectrumInfo &spectrum = recognized->powerSpectrumInfo();
    ASSERT_EQ(samples.size() * 2, static_cast<size_t>(recognized->audioDataInfo().size));

    // Every frame of the recording, the last partial one included, is a decoder frame.
    const uint64_t fullFrames = 1 + (samples.size() - 410) / 160;
    EXPECT_EQ(spectrum.frameCount, fullFrames + 1);
    EXPECT_EQ(static_cast<qint64>(spectrum.frameCount),
              recognized->wordsInfo().last().value(u"endFrame"_s).toLongLong() + 1);
    EXPECT_EQ(spectrum.rowCount, spectrum.frameCount + 1);
    EXPECT_EQ(spectrum.spectrumSize, 128);

    // A frame in the middle and the zero-padded last one.
    for (const uint64_t frame : {spectrum.frameCount / 2, spectrum.frameCount - 1})
        expectRowMatchesDirect(spectrum, samples, frame, englishFrontEnd);
    double largest = 0.0;
    for (uint64_t frame = 0; frame < spectrum.frameCount; ++frame)
        for (int bin = 0; bin < 128; ++bin)
            largest = std::max(largest, spectrum.at(frame, bin));
    EXPECT_GT(largest, 0.0);
    EXPECT_EQ(spectrum.maxPower, largest);
}

TEST_F(Recognition, SameRecordingGivesTheSameResultsEveryTime)
{
    VoPSRecognizer again;
    recognize(again, sentence->wavPath);
    EXPECT_EQ(again.hypothesis(), recognized->hypothesis());
    EXPECT_EQ(again.wordsInfo(), recognized->wordsInfo());
    EXPECT_EQ(again.powerSpectrumInfo().powerData, recognized->powerSpectrumInfo().powerData);

    // Samples handed over directly are recognised the same as their file.
    VoPSRecognizer fromSamples;
    recognize(fromSamples, recognized->audioData());
    EXPECT_EQ(fromSamples.wordsInfo(), recognized->wordsInfo());
    EXPECT_EQ(fromSamples.powerSpectrumInfo().powerData, recognized->powerSpectrumInfo().powerData);
}

TEST_F(Recognition, SilenceAndScrapsHaveNoRealWord)
{
    for (const size_t count : {size_t{32000}, size_t{1}, size_t{100}, size_t{2000}}) {
        VoPSRecognizer recognizer;
        recognize(recognizer, std::vector<int16_t>(count, 0));
        EXPECT_TRUE(realWords(recognizer.wordsInfo()).isEmpty()) << count << " samples";
        EXPECT_LE(recognizer.powerSpectrumInfo().frameCount, count / 160 + 1);
        EXPECT_EQ(recognizer.powerSpectrumInfo().maxPower, 0.0);
    }
}

TEST_F(Recognition, FailuresLeaveTheResultsAsTheyWere)
{
    VoPSRecognizer recognizer;
    recognize(recognizer, folder->filePath(u"missing.wav"_s));
    expectEmpty(recognizer);

    const QString damaged = folder->filePath(u"damaged.wav"_s);
    ASSERT_TRUE(writeBytes(damaged, QByteArray("RIFF\x10\0\0\0WAVEfmt garbage", 24)));
    recognize(recognizer, damaged);
    expectEmpty(recognizer);

    // After a good recognition a failing one changes nothing.
    recognize(recognizer, sentence->wavPath);
    const QList<QVariantMap> words = recognizer.wordsInfo();
    ASSERT_FALSE(words.isEmpty());
    recognize(recognizer, damaged);
    recognizer.runRecognitionOnWavFileAtPath(sentence->wavPath, folder->filePath(u"none.arpa"_s),
                                             sentence->dictionaryPath,
                                             SpokenSentence::acousticModelPath(), false);
    EXPECT_EQ(recognizer.wordsInfo(), words);
    EXPECT_EQ(recognizer.hypothesis(), recognized->hypothesis());
    EXPECT_EQ(recognizer.audioData(), recognized->audioData());
}

TEST_F(Recognition, OverLongRecordingIsRefused)
{
    VoPSRecognizer recognizer;
    const auto samples = static_cast<size_t>(VoPSRecognizer::longestRecordingSeconds * 16000) + 1;
    recognize(recognizer, std::vector<int16_t>(samples, 0));
    expectEmpty(recognizer);
}

TEST_F(Recognition, MissingModelFilesStartNoDecoder)
{
    VoPSRecognizer recognizer;
    EXPECT_FALSE(recognizer.initializeDecoder(folder->filePath(u"none.arpa"_s),
                                              sentence->dictionaryPath,
                                              SpokenSentence::acousticModelPath(), false));
    EXPECT_FALSE(recognizer.initializeDecoder(sentence->languageModelPath, sentence->dictionaryPath,
                                              folder->filePath(u"no-model"_s), false));
    EXPECT_TRUE(recognizer.initializeDecoder(sentence->languageModelPath, sentence->dictionaryPath,
                                             SpokenSentence::acousticModelPath(), false));
}

TEST_F(Recognition, RawFileEntryPointFillsTheWords)
{
    const std::vector<int16_t> &samples = recognized->audioData();
    const QString raw = folder->filePath(u"sentence.raw"_s);
    ASSERT_TRUE(writeBytes(raw, QByteArray(reinterpret_cast<const char *>(samples.data()),
                                           static_cast<qsizetype>(samples.size() * 2))));
    VoPSRecognizer recognizer;
    EXPECT_EQ(recognizer.runRecognitionOnRawFileAtPath(raw, sentence->languageModelPath,
                                                       sentence->dictionaryPath,
                                                       SpokenSentence::acousticModelPath()),
              0);
    EXPECT_EQ(realWords(recognizer.wordsInfo()),
              QString::fromLatin1(SpokenSentence::text).split(u' '));
    EXPECT_TRUE(recognizer.hypothesis().isEmpty());

    VoPSRecognizer failing;
    EXPECT_EQ(failing.runRecognitionOnRawFileAtPath(
                  folder->filePath(u"missing.raw"_s), sentence->languageModelPath,
                  sentence->dictionaryPath, SpokenSentence::acousticModelPath()),
              1);
    EXPECT_EQ(failing.runRecognitionOnRawFileAtPath(raw, folder->filePath(u"none.arpa"_s),
                                                    sentence->dictionaryPath,
                                                    SpokenSentence::acousticModelPath()),
              1);
    EXPECT_TRUE(failing.wordsInfo().isEmpty());
}

TEST(CoursePhraseRecognition, ModelRecordingIsHeardAsItsPhrase)
{
    // As the comparison pop-up does: a model of the phrase's words named "test", then the
    // phrase's own recording (espeak-ng's German voice, MP3).
    const QTemporaryDir folder;
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(folder.path());
    const LanguageModelError generated = trainer.generateLanguageModelFromArray(
        VoPSRecognizer::getAllWordFromText(u"Guten Morgen!"_s, true), u"test"_s,
        TestPaths::acousticModel());
    ASSERT_TRUE(generated.succeeded()) << generated.description.toStdString();

    VoPSRecognizer recognizer;
    recognizer.runRecognitionOnWavFileAtPath(
        TestPaths::course() + u"/1/voices/101.mp3"_s,
        generated.userInfo.value(u"LMPath"_s).toString(),
        generated.userInfo.value(u"DictionaryPath"_s).toString(), TestPaths::acousticModel(),
        false);
    EXPECT_EQ(recognizer.hypothesis(), u"GUTEN MORGEN"_s);
    EXPECT_EQ(realWords(recognizer.wordsInfo()), QStringList({u"GUTEN"_s, u"MORGEN"_s}));
    ASSERT_FALSE(recognizer.wordsInfo().isEmpty());
    EXPECT_EQ(static_cast<qint64>(recognizer.powerSpectrumInfo().frameCount),
              recognizer.wordsInfo().last().value(u"endFrame"_s).toLongLong() + 1);
}
