#pragma once

#include <QStringList>

/**
 * @brief The recogniser's own word split: runs of ASCII letters and apostrophes followed by
 * white space or ? ! . ,
 *
 * Narrower than the quizzes' split on purpose: the acoustic model knows English phones only,
 * so any other character ends a run, and a run only counts when a separator follows it
 * ("Müller " gives "ller"). The pronunciation list is built from the same split.
 */
[[nodiscard]] QStringList recognizerWords(const QString &text, bool uppercased);
