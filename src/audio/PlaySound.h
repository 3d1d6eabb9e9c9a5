#pragma once

#include "AudioPlayer.h"

#include <QString>
#include <memory>

/// Plays a phrase's recording at the learner's speed (the "playSpeed" preference) at full volume,
/// with `loops` as AudioPlayer counts them. Null when the file cannot be played; the caller keeps
/// the player for as long as it should sound.
[[nodiscard]] std::unique_ptr<AudioPlayer> playSound(const QString &path, int loops);
