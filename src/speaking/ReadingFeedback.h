#pragma once

#include "speech/verify/ReadingVerification.h"

#include <QColor>
#include <QString>

/**
 * @brief What the learner is shown of a reading's check: the phrase with each word in the
 * colour of its verdict, the verdicts in words for screen readers, and one tip for the word
 * that went worst.
 */
namespace ReadingFeedback {

/// Green heard well, orange unclear, red missing: the mark's own colours.
[[nodiscard]] QColor verdictColor(WordVerdict verdict);
/// The phrase as written, punctuation and all, each judged word coloured (styled text); empty
/// when the reading was not checked.
[[nodiscard]] QString colouredPhrase(const QString &phrase, const ReadingVerification &check);
/// "Ich: heard well, hätte: unclear, ..." in the learner's language; empty when not checked.
[[nodiscard]] QString spokenVerdicts(const ReadingVerification &check);
/// One line on the word that went worst and its weakest sound; empty when every word was
/// heard well or the reading was not checked.
[[nodiscard]] QString tip(const ReadingVerification &check);

} // namespace ReadingFeedback
