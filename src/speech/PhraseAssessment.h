#pragma once

#include "verify/ReadingVerification.h"

#include <QList>
#include <QString>
#include <QVariantMap>
#include <cstdint>
#include <vector>

class ReadingVerifier;
class VoPSRecognizer;

/**
 * @brief One recording judged against one phrase, the way the comparison pop-up judges it.
 *
 * The recording is recognised against the phrase's generated dictionary and language model and
 * its words are scored against the phrase (`score`, 0..100, and its advice); at the same time,
 * on a second thread, it is checked acoustically against the phrase's own sounds
 * (`verification`). The mark the learner sees combines both (see ReadingMark).
 */
struct PhraseAssessment {
    enum class Failure {
        None,
        /// The phrase's model could not be generated; `error` says why.
        Model,
        /// The recording did not decode or was too long; it has been logged which.
        Recording,
    };
    Failure failure = Failure::None;
    QString error;
    QString hypothesis;
    QList<QVariantMap> wordsInfo;
    float score = 0.0F;
    int mark = 0;
    QVariantMap advices;
    /// Not succeeded when the check could not be made; the mark is then the recogniser's.
    ReadingVerification verification;

    [[nodiscard]] bool succeeded() const { return failure == Failure::None; }
};

/// The files a phrase's recordings are recognised with; `error` is set when generation failed.
struct PhraseModel {
    QString languageModelPath;
    QString dictionaryPath;
    QString error;

    [[nodiscard]] bool succeeded() const { return error.isEmpty(); }
};

/// What a reading is judged against.
struct ReadingTarget {
    /// The phrase's German text.
    QString text;
    /// Its IPA, word by word; may be empty.
    QString ipa;
    PhraseModel model;
    QString acousticModelPath;
};

// The steps of an assessment, shared with the comparison pop-up. Like the trainer and the
// recogniser they run synchronously, and no two of them may run at the same time.

/// Generates the dictionary and language model of the phrase's words into an existing folder,
/// as "test.dic" and "test.DMP".
[[nodiscard]] PhraseModel generatePhraseModel(const QString &phrase, const QString &folder,
                                              const QString &acousticModelPath);
/// Recognises and checks 16 kHz mono samples; the recogniser keeps them and their spectrum for
/// the caller.
[[nodiscard]] PhraseAssessment assessSamples(VoPSRecognizer &recognizer, ReadingVerifier &verifier,
                                             const ReadingTarget &target,
                                             std::vector<int16_t> samples);
/// The same for a recording file.
[[nodiscard]] PhraseAssessment assessWithModel(VoPSRecognizer &recognizer,
                                               ReadingVerifier &verifier,
                                               const ReadingTarget &target,
                                               const QString &recordingPath);

/// The whole assessment, the model generated in a temporary folder that is removed afterwards.
[[nodiscard]] PhraseAssessment assessRecording(const QString &phrase, const QString &ipa,
                                               const QString &recordingPath,
                                               const QString &acousticModelPath);
