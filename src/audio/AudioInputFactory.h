#pragma once

#include <functional>
#include <memory>

class AudioInput;

/// Makes the input of one recording; called on the recording thread.
using AudioInputFactory = std::function<std::unique_ptr<AudioInput>()>;

/// What a recorder made without an input of its own records from: the microphone, unless
/// setDefaultAudioInputFactory has replaced it.
[[nodiscard]] AudioInputFactory defaultAudioInputFactory();

/// Replaces the microphone for recorders made from now on, for tests (a file played as if
/// heard); an empty factory restores the microphone.
void setDefaultAudioInputFactory(AudioInputFactory factory);

/// Whether the default input can record: a replaced factory always can, the microphone when the
/// system has an input device.
[[nodiscard]] bool hasDefaultAudioInput();
