#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

class VoPSRecognizer;

/**
 * @brief One recording judged against one phrase, the way the comparison pop-up judges it.
 *
 * The phrase's dictionary and language model are generated under the name "test"; the recording
 * is recognised against them and its words are scored against the phrase. The mark is the score
 * divided by 10, rounded down.
 */
struct PhraseAssessment {
    enum class Failure {
        None,
        /// The phrase's model could not be generated; `error` says why.
        Model,
        /// The recording did not decode or was too long; the recogniser has logged which.
        Recording,
    };
    Failure failure = Failure::None;
    QString error;
    QString hypothesis;
    QList<QVariantMap> wordsInfo;
    float score = 0.0F;
    int mark = 0;
    QVariantMap advices;

    [[nodiscard]] bool succeeded() const { return failure == Failure::None; }
};

/// The files a phrase's recordings are recognised with; `error` is set when generation failed.
struct PhraseModel {
    QString languageModelPath;
    QString dictionaryPath;
    QString error;

    [[nodiscard]] bool succeeded() const { return error.isEmpty(); }
};

// The steps of an assessment, shared with the comparison pop-up. Like the trainer and the
// recogniser they run synchronously, and no two of them may run at the same time.

/// Generates the dictionary and language model of the phrase's words into an existing folder,
/// as "test.dic" and "test.DMP".
[[nodiscard]] PhraseModel generatePhraseModel(const QString &phrase, const QString &folder,
                                              const QString &acousticModelPath);
/// Recognises the recording with the phrase's model and scores it; the recogniser keeps the
/// recording's samples and spectrum for the caller.
[[nodiscard]] PhraseAssessment assessWithModel(VoPSRecognizer &recognizer, const QString &phrase,
                                               const QString &recordingPath,
                                               const PhraseModel &model,
                                               const QString &acousticModelPath);
/// floor(score / 10). The scorer keeps its result within 0..100, so anything that gives no mark
/// in 0..10 is a broken scorer and fatal.
[[nodiscard]] int markForScore(float score);

/// The whole assessment, the model generated in a temporary folder that is removed afterwards.
[[nodiscard]] PhraseAssessment assessRecording(const QString &phrase, const QString &recordingPath,
                                               const QString &acousticModelPath);
