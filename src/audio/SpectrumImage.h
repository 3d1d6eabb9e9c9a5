#pragma once

#include "AudioPowerSpectrumInfo.h"

#include <QImage>

/**
 * The spectrum as a grey-scale picture: one column per frame from left to right, bin 0 at the
 * bottom, louder darker.
 *
 * A value p becomes v = integer part of (255 / m) x p, with m the spectrum's maxPower (or the
 * largest float when that is 0, so that an all-zero spectrum is white); v below 1 counts as 0
 * and the grey is the complement of v's low byte. There is no upper clamp: a value above m
 * wraps and shows light. A null image, and a logged error, when there is no frame to draw.
 */
[[nodiscard]] QImage spectrumImage(const AudioPowerSpectrumInfo &spectrum);

/**
 * The picture a spectrum view shows: the grey spectrum in RGBA with the part already played
 * (the columns left of width x playProgress) at half alpha, so that the view's background shows
 * through it and the boundary reads as the play position. Null, as above, without data.
 */
[[nodiscard]] QImage genereateRGBAData(const AudioPowerSpectrumInfo &spectrum, float playProgress);
/// The dimming of genereateRGBAData on a picture already in RGBA8888 (others come back as they
/// are), for views that keep the undimmed picture and dim it as the recording plays.
[[nodiscard]] QImage dimPlayedColumns(QImage picture, float playProgress);
