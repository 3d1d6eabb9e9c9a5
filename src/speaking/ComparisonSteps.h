#pragma once

#include "audio/AudioPowerSpectrumInfo.h"
#include "speech/PhraseAssessment.h"

#include <QString>

/// What a comparison job needs, gathered on the UI thread so that the job owns all of it.
struct ComparisonRequest {
    /// The phrase's German text.
    QString text;
    /// Its IPA, word by word.
    QString ipa;
    QString recordingPath;
    /// The files the pop-up already has, possibly none.
    PhraseModel model;
    /// Where missing models are generated; every phrase shares it.
    QString modelFolder;
    QString acousticModelPath;
};

/// What one recording of a comparison gives back to the pop-up.
struct RecordingComparison {
    enum class Failure {
        None,
        Model,
        MissingRecording,
        EmptyRecording,
        /// Undecodable or too long; the recogniser has logged which.
        UnreadableRecording,
    };
    Failure failure{Failure::None};
    /// The files the recording was recognised with; empty when they could not be generated.
    PhraseModel model;
    AudioPowerSpectrumInfo spectrum;
    /// Mark and advices; valid without a failure.
    PhraseAssessment assessment;
};

/**
 * Makes sure the phrase's model exists, then recognises the recording and scores it. For the
 * speech worker's thread only.
 *
 * The model folder holds one phrase's model at a time, under one name. The worker remembers
 * whose it is, so that a later comparison of the same phrase, in any pop-up, skips the
 * generation, and paths into the folder are not trusted once another phrase has replaced it.
 */
[[nodiscard]] RecordingComparison compareRecording(const ComparisonRequest &request);
