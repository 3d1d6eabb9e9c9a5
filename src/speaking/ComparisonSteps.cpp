#include "ComparisonSteps.h"

#include "content/VoLog.h"
#include "speech/SpeechLog.h"
#include "speech/VoPSRecognizer.h"
#include "speech/verify/ReadingVerifier.h"

#include <QDir>
#include <QFileInfo>
#include <optional>

namespace {

/// Whose model the shared folder holds now; touched only on the speech worker's thread.
struct FolderContents {
    QString text;
    PhraseModel model;
};

FolderContents &folderContents()
{
    static FolderContents contents;
    return contents;
}

bool filesExist(const PhraseModel &model)
{
    return !model.languageModelPath.isEmpty() && !model.dictionaryPath.isEmpty() &&
           QFileInfo::exists(model.languageModelPath) && QFileInfo::exists(model.dictionaryPath);
}

bool inFolder(const QString &path, const QString &folder)
{
    return QFileInfo(path).absolutePath() == QFileInfo(folder).absoluteFilePath();
}

PhraseModel phraseModel(const ComparisonRequest &request)
{
    FolderContents &contents = folderContents();
    const bool folderIsTheText = contents.text == request.text;
    // Files the opener chose elsewhere are the phrase's own; files in the shared folder only
    // while no other phrase has been generated there since.
    if (filesExist(request.model) &&
        (folderIsTheText || !inFolder(request.model.languageModelPath, request.modelFolder)))
        return request.model;
    if (folderIsTheText && filesExist(contents.model))
        return contents.model;

    contents = {};
    if (!QDir().mkpath(request.modelFolder)) {
        PhraseModel failed;
        failed.error = QStringLiteral("can not make the folder %1").arg(request.modelFolder);
        return failed;
    }
    PhraseModel model =
        generatePhraseModel(request.text, request.modelFolder, request.acousticModelPath);
    if (model.succeeded())
        contents = {request.text, model};
    return model;
}

} // namespace

RecordingComparison compareRecording(const ComparisonRequest &request)
{
    RecordingComparison comparison;
    comparison.model = phraseModel(request);
    if (!comparison.model.succeeded()) {
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("no model to compare \"%1\" with: %2")
                         .arg(request.text, comparison.model.error));
        comparison.failure = RecordingComparison::Failure::Model;
        return comparison;
    }

    const QFileInfo recording(request.recordingPath);
    if (!recording.isFile()) {
        comparison.failure = RecordingComparison::Failure::MissingRecording;
        return comparison;
    }
    if (recording.size() == 0) {
        comparison.failure = RecordingComparison::Failure::EmptyRecording;
        return comparison;
    }

    // Kept for the worker thread's life: its decoder is most of a check's start.
    static std::optional<ReadingVerifier> verifier;
    if (!verifier || verifier->acousticModelPath() != request.acousticModelPath)
        verifier.emplace(request.acousticModelPath);
    VoPSRecognizer recognizer;
    const ReadingTarget target{request.text, request.ipa, comparison.model,
                               request.acousticModelPath};
    comparison.assessment = assessWithModel(recognizer, *verifier, target, request.recordingPath);
    if (!comparison.assessment.succeeded()) {
        comparison.failure = RecordingComparison::Failure::UnreadableRecording;
        return comparison;
    }
    comparison.spectrum = recognizer.powerSpectrumInfo();
    return comparison;
}
