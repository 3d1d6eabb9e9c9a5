#pragma once

#include <algorithm>
#include <cmath>

/// @brief The bounds every player keeps its rate and volume within.
namespace playback {

inline constexpr float slowestRate = 0.2F;
inline constexpr float fastestRate = 2.0F;

/// The rate within 0.2 to 2.0; a rate that is not a number plays at 1.0.
[[nodiscard]] inline float clampedRate(float rate)
{
    return std::isnan(rate) ? 1.0F : std::clamp(rate, slowestRate, fastestRate);
}

/// The volume within 0 to 1; a volume that is not a number is full.
[[nodiscard]] inline float clampedVolume(float volume)
{
    return std::isnan(volume) ? 1.0F : std::clamp(volume, 0.0F, 1.0F);
}

/// Extra plays after the first for a player's loop count: 0 and 1 both sound the file once.
[[nodiscard]] inline int extraPlays(int loops)
{
    return loops > 1 ? loops : 0;
}

} // namespace playback
