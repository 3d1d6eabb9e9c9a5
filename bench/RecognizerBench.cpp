#include "audio/VoAudioUtil.h"
#include "speech/LogPowerSpectrum.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/VoPSRecognizer.h"
#include "speech/verify/ReadingVerifier.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

const QString acousticModel = QStringLiteral(TOLVANE_ACOUSTIC_DIR);
// "Was machst du in deiner Freizeit?": 2.98 s, 298 decoder frames.
const QString phraseText = QStringLiteral("Was machst du in deiner Freizeit?");
const QString phraseVoice = QStringLiteral(TOLVANE_COURSE_DIR "/10/voices/1005.mp3");

/// The phrase's model as the comparison pop-up makes it before recognising; not timed.
struct PhraseModel {
    QTemporaryDir folder;
    QString languageModelPath;
    QString dictionaryPath;

    bool generate()
    {
        VoLanguageModelTrainer trainer;
        trainer.setLmBasePath(folder.path());
        const LanguageModelError result = trainer.generateLanguageModelFromArray(
            VoPSRecognizer::getAllWordFromText(phraseText, true), QStringLiteral("test"),
            acousticModel);
        languageModelPath = result.userInfo.value(QStringLiteral("LMPath")).toString();
        dictionaryPath = result.userInfo.value(QStringLiteral("DictionaryPath")).toString();
        return result.succeeded();
    }
};

// One recognition as the pop-up runs it, per recording: a decoder started from the option
// list, the MP3 decoded, the utterance searched, the spectrum and the word results.
void BM_RecognizeThreeSecondPhrase(benchmark::State &state)
{
    PhraseModel model;
    if (!model.generate()) {
        state.SkipWithError("no model: build the course and the acoustic model folder first");
        return;
    }
    for (auto _ : state) {
        VoPSRecognizer recognizer;
        recognizer.runRecognitionOnWavFileAtPath(phraseVoice, model.languageModelPath,
                                                 model.dictionaryPath, acousticModel, false);
        if (recognizer.wordsInfo().isEmpty()) {
            state.SkipWithError("nothing was recognised");
            return;
        }
        benchmark::DoNotOptimize(recognizer.powerSpectrumInfo().maxPower);
    }
}
BENCHMARK(BM_RecognizeThreeSecondPhrase)->Unit(benchmark::kMillisecond)->UseRealTime();

// The check of the same reading, on its own: the alignment and the phone loop, with the
// checking decoder kept from one reading to the next as the speech worker keeps it.
void BM_CheckThreeSecondPhrase(benchmark::State &state)
{
    PhraseModel model;
    AudioDataInfo audio;
    if (!model.generate() || VoAudioUtil::decodeAudioDataFromFile(phraseVoice, audio) != 0) {
        state.SkipWithError("no model: build the course and the acoustic model folder first");
        return;
    }
    const std::vector<int16_t> samples = VoAudioUtil::getAudioDataShortForByte(audio);
    ReadingVerifier verifier(acousticModel);
    for (auto _ : state) {
        const ReadingVerification check =
            verifier.verify(phraseText, {}, model.dictionaryPath, samples);
        if (!check.aligned) {
            state.SkipWithError("the phrase could not be aligned");
            return;
        }
        benchmark::DoNotOptimize(check.goodness);
    }
}
BENCHMARK(BM_CheckThreeSecondPhrase)->Unit(benchmark::kMillisecond)->UseRealTime();

// The fixed part of the recognition: reading the acoustic model and the phrase's model.
void BM_StartDecoder(benchmark::State &state)
{
    PhraseModel model;
    if (!model.generate()) {
        state.SkipWithError("no model: build the course and the acoustic model folder first");
        return;
    }
    VoPSRecognizer recognizer;
    for (auto _ : state)
        benchmark::DoNotOptimize(recognizer.initializeDecoder(
            model.languageModelPath, model.dictionaryPath, acousticModel, false));
}
BENCHMARK(BM_StartDecoder)->Unit(benchmark::kMillisecond)->UseRealTime();

// The spectrum computed beside the decoder, on the samples of the recognition above.
void BM_LogPowerSpectrum(benchmark::State &state)
{
    PhraseModel model;
    if (!model.generate()) {
        state.SkipWithError("no model: build the course and the acoustic model folder first");
        return;
    }
    VoPSRecognizer recognizer;
    recognizer.runRecognitionOnWavFileAtPath(phraseVoice, model.languageModelPath,
                                             model.dictionaryPath, acousticModel, false);
    const std::optional<FrontEndFraming> framing = FrontEndFraming::ofAcousticModel(acousticModel);
    if (!framing) {
        state.SkipWithError("the acoustic model has no usable feat.params");
        return;
    }
    const std::vector<int16_t> &samples = recognizer.audioData();
    for (auto _ : state)
        benchmark::DoNotOptimize(
            logPowerSpectrum(samples, framing->frameCount(samples.size()), *framing).maxPower);
}
BENCHMARK(BM_LogPowerSpectrum)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
