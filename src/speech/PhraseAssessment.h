#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

/**
 * @brief One recording judged against one phrase, the way the comparison pop-up judges it.
 *
 * The phrase's dictionary and language model are generated into a temporary folder under the
 * name "test" and removed afterwards; the recording is recognised against them and its words
 * are scored against the phrase. The mark is the score divided by 10, rounded down.
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

[[nodiscard]] PhraseAssessment assessRecording(const QString &phrase, const QString &recordingPath,
                                               const QString &acousticModelPath);
