#include "PhraseAssessment.h"

#include "RunBeside.h"
#include "SpeechLog.h"
#include "VoCommandArray.h"
#include "VoLanguageModelTrainer.h"
#include "VoPSRecognizer.h"
#include "audio/VoAudioUtil.h"
#include "content/VoLog.h"
#include "verify/ReadingMark.h"
#include "verify/ReadingVerifier.h"

#include <QTemporaryDir>

namespace {

PhraseAssessment failed(PhraseAssessment::Failure failure, const QString &error)
{
    PhraseAssessment assessment;
    assessment.failure = failure;
    assessment.error = error;
    return assessment;
}

} // namespace

PhraseModel generatePhraseModel(const QString &phrase, const QString &folder,
                                const QString &acousticModelPath)
{
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(folder);
    const LanguageModelError result =
        trainer.generateLanguageModelFromArray(VoPSRecognizer::getAllWordFromText(phrase, true),
                                               QStringLiteral("test"), acousticModelPath);
    PhraseModel model;
    if (!result.succeeded()) {
        model.error =
            result.description.isEmpty()
                ? QStringLiteral("the model generation failed with error %1").arg(result.code)
                : result.description;
        return model;
    }
    model.languageModelPath = result.userInfo.value(QStringLiteral("LMPath")).toString();
    model.dictionaryPath = result.userInfo.value(QStringLiteral("DictionaryPath")).toString();
    return model;
}

PhraseAssessment assessSamples(VoPSRecognizer &recognizer, ReadingVerifier &verifier,
                               const ReadingTarget &target, std::vector<int16_t> samples)
{
    // Refused before the check starts: it would only be thrown away.
    if (!VoPSRecognizer::acceptsLength(samples.size(), QStringLiteral("in memory")))
        return failed(PhraseAssessment::Failure::Recording,
                      QStringLiteral("the recording is too long"));
    // The check costs the learner no time beside the recognition.
    std::future<ReadingVerification> check = runBeside([&verifier, &target, &samples] {
        return verifier.verify(target.text, target.ipa, target.model.dictionaryPath, samples);
    });
    recognizer.runRecognitionOnSamples(samples, target.model.languageModelPath,
                                       target.model.dictionaryPath, target.acousticModelPath,
                                       false);
    ReadingVerification verification = check.get();
    // The recogniser keeps the samples once its decoder has started.
    if (recognizer.audioData().empty())
        return failed(PhraseAssessment::Failure::Recording,
                      QStringLiteral("the recording could not be recognised"));
    PhraseAssessment assessment;
    assessment.verification = std::move(verification);
    assessment.hypothesis = recognizer.hypothesis();
    assessment.wordsInfo = recognizer.wordsInfo();
    assessment.score =
        VoPSRecognizer::getScore(assessment.wordsInfo, target.text, assessment.advices);
    if (!assessment.verification.succeeded)
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("the reading of \"%1\" was not checked (%2); it gets the "
                                    "recogniser's mark")
                         .arg(target.text, assessment.verification.note));
    assessment.mark = ReadingMark::mark(assessment.score, assessment.verification);
    return assessment;
}

PhraseAssessment assessWithModel(VoPSRecognizer &recognizer, ReadingVerifier &verifier,
                                 const ReadingTarget &target, const QString &recordingPath)
{
    // Twice the longest reading is read, so that the recogniser's own length check, not the
    // decoder, tells the learner how long a too-long recording is.
    constexpr auto readAtMost = static_cast<size_t>(2 * VoPSRecognizer::longestRecordingSeconds *
                                                    VoCommandArray::sampleRate);
    std::vector<int16_t> samples;
    if (VoAudioUtil::decodeSpeechSamples(recordingPath, samples, readAtMost) != 0) {
        VoLog::write(
            lcSpeech(), VoLog::Error,
            QStringLiteral(" can not decode audio data from the file: %1").arg(recordingPath));
        return failed(PhraseAssessment::Failure::Recording,
                      QStringLiteral("%1 could not be decoded").arg(recordingPath));
    }
    return assessSamples(recognizer, verifier, target, std::move(samples));
}

PhraseAssessment assessRecording(const QString &phrase, const QString &ipa,
                                 const QString &recordingPath, const QString &acousticModelPath)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return failed(PhraseAssessment::Failure::Model,
                      QStringLiteral("can not make a temporary folder for the model"));
    ReadingTarget target{phrase, ipa, generatePhraseModel(phrase, folder.path(), acousticModelPath),
                         acousticModelPath};
    if (!target.model.succeeded())
        return failed(PhraseAssessment::Failure::Model, target.model.error);
    VoPSRecognizer recognizer;
    ReadingVerifier verifier(acousticModelPath);
    return assessWithModel(recognizer, verifier, target, recordingPath);
}
