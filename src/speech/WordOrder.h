#pragma once

#include <QString>

/**
 * @brief The one order of dictionary words: case-insensitive collation in a fixed locale.
 *
 * The pronunciation list is sorted with it when the build makes it, and the model generator
 * sorts a phrase's words with it before its forward-only scan of that list; both sides must use
 * this very comparison or the scan misses words. The locale is fixed so that the learner's own
 * locale cannot change the order.
 */
[[nodiscard]] int compareWords(const QString &a, const QString &b);
[[nodiscard]] inline bool wordLessThan(const QString &a, const QString &b)
{
    return compareWords(a, b) < 0;
}
