#pragma once

#include <QColor>
#include <QString>

/// @brief How a score is shown: "Score: 7/10" with the points in the colour of how good they are.
namespace ScoreText {
/// Red below half the full score, orange from half, green from four fifths.
[[nodiscard]] QColor color(int points, int outOf);
/// label + ": " + points + "/" + outOf as rich text, the points coloured and, if asked, bold.
[[nodiscard]] QString styled(const QString &label, int points, int outOf, bool boldPoints);
/// "Label: value", with the separator each language writes (a full-width colon in Chinese and
/// Japanese, a space before it in French).
[[nodiscard]] QString labelled(const QString &label, const QString &value);
} // namespace ScoreText
