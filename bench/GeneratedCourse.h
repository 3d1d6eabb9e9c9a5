#pragma once

#include <QString>

/**
 * Writes a full-size course into a folder the way the build writes one: plain JSON pkgInfo with
 * every name translation, and a phrasesInfo enciphered with the content key whose phrases each
 * carry their IPA and 16 translations. The text is the sample course's, repeated under fresh
 * ids, so it has the real mix of scripts and lengths.
 *
 * Returns what went wrong, or an empty text on success.
 */
[[nodiscard]] QString writeGeneratedCourse(const QString &sampleRoot, const QString &folder,
                                           int categories, int phrasesPerCategory);
