#pragma once

#include <QString>

class PhraseInfo;

/// The phrase in the learner's mother language (the "LanguageType" preference).
[[nodiscard]] QString motherText(const PhraseInfo &phrase);

/// Whether the given answer is the expected phrase: their foreign texts are equal ignoring case
/// only, so a missing full stop or an extra space is wrong. Score and result colour both use it.
[[nodiscard]] bool isRightAnswer(const PhraseInfo &expected, const PhraseInfo &given);
