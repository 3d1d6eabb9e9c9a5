#pragma once

#include <QImage>
#include <cstdint>

/// @brief Image helpers for the player bars' button pictures.
namespace VoImageUtil {

/// On screens wider than 760 points a fresh rendering of the image at its own size, so that
/// large screens draw it crisp; elsewhere the image itself.
[[nodiscard]] QImage adjustImage(const QImage &image, double screenWidth);

/// The image with every pixel whose colour is src (0xRRGGBB, the low 24 bits) painted repl
/// instead; alpha is left as it was.
[[nodiscard]] QImage replaceImageColor(const QImage &image, uint64_t src, uint64_t repl);

} // namespace VoImageUtil
