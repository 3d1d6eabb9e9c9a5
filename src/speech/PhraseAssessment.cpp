#include "PhraseAssessment.h"

#include "VoLanguageModelTrainer.h"
#include "VoPSRecognizer.h"

#include <QTemporaryDir>
#include <cmath>

PhraseAssessment assessRecording(const QString &phrase, const QString &recordingPath,
                                 const QString &acousticModelPath)
{
    PhraseAssessment assessment;
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        assessment.failure = PhraseAssessment::Failure::Model;
        assessment.error = QStringLiteral("can not make a temporary folder for the model");
        return assessment;
    }
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(folder.path());
    const LanguageModelError model =
        trainer.generateLanguageModelFromArray(VoPSRecognizer::getAllWordFromText(phrase, true),
                                               QStringLiteral("test"), acousticModelPath);
    if (!model.succeeded()) {
        assessment.failure = PhraseAssessment::Failure::Model;
        assessment.error =
            model.description.isEmpty()
                ? QStringLiteral("the model generation failed with error %1").arg(model.code)
                : model.description;
        return assessment;
    }

    VoPSRecognizer recognizer;
    recognizer.runRecognitionOnWavFileAtPath(
        recordingPath, model.userInfo.value(QStringLiteral("LMPath")).toString(),
        model.userInfo.value(QStringLiteral("DictionaryPath")).toString(), acousticModelPath,
        false);
    if (recognizer.audioData().empty()) {
        assessment.failure = PhraseAssessment::Failure::Recording;
        assessment.error = QStringLiteral("%1 could not be recognised").arg(recordingPath);
        return assessment;
    }
    assessment.hypothesis = recognizer.hypothesis();
    assessment.wordsInfo = recognizer.wordsInfo();
    assessment.score = VoPSRecognizer::getScore(assessment.wordsInfo, phrase, assessment.advices);
    // The scorer keeps its result within 0..100, so the mark is 0..10.
    assessment.mark = static_cast<int>(std::floor(assessment.score / 10.0F));
    return assessment;
}
