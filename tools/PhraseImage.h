#pragma once

#include <QString>

/// @brief The picture of a phrase card: the phrase on a calm background of its own colour.
class PhraseImage {
public:
    /// Changes whenever the drawing changes, so that the build draws every picture anew.
    static constexpr const char *styleVersion = "card-v1";

    /// Writes a JPEG; the colours follow from the seed, so a phrase keeps its picture.
    static bool write(const QString &text, const QString &seed, const QString &path);
};
