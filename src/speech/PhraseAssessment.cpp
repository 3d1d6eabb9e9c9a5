#include "PhraseAssessment.h"

#include "VoLanguageModelTrainer.h"
#include "VoPSRecognizer.h"
#include "content/VoLog.h"

#include <QTemporaryDir>
#include <cmath>

namespace {
constexpr char assessmentSource[] = "Tolvane/PhraseAssessment";
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

PhraseAssessment assessWithModel(VoPSRecognizer &recognizer, const QString &phrase,
                                 const QString &recordingPath, const PhraseModel &model,
                                 const QString &acousticModelPath)
{
    PhraseAssessment assessment;
    recognizer.runRecognitionOnWavFileAtPath(recordingPath, model.languageModelPath,
                                             model.dictionaryPath, acousticModelPath, false);
    if (recognizer.audioData().empty()) {
        assessment.failure = PhraseAssessment::Failure::Recording;
        assessment.error = QStringLiteral("%1 could not be recognised").arg(recordingPath);
        return assessment;
    }
    assessment.hypothesis = recognizer.hypothesis();
    assessment.wordsInfo = recognizer.wordsInfo();
    assessment.score = VoPSRecognizer::getScore(assessment.wordsInfo, phrase, assessment.advices);
    assessment.mark = markForScore(assessment.score);
    return assessment;
}

int markForScore(float score)
{
    const float mark = std::floor(score / 10.0F);
    if (!std::isfinite(mark) || mark < 0.0F || mark > 10.0F)
        fatal(assessmentSource, __LINE__, QStringLiteral("the score %1 gives no mark").arg(score));
    return static_cast<int>(mark);
}

PhraseAssessment assessRecording(const QString &phrase, const QString &recordingPath,
                                 const QString &acousticModelPath)
{
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        PhraseAssessment assessment;
        assessment.failure = PhraseAssessment::Failure::Model;
        assessment.error = QStringLiteral("can not make a temporary folder for the model");
        return assessment;
    }
    const PhraseModel model = generatePhraseModel(phrase, folder.path(), acousticModelPath);
    if (!model.succeeded()) {
        PhraseAssessment assessment;
        assessment.failure = PhraseAssessment::Failure::Model;
        assessment.error = model.error;
        return assessment;
    }
    VoPSRecognizer recognizer;
    return assessWithModel(recognizer, phrase, recordingPath, model, acousticModelPath);
}
