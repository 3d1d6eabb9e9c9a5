#pragma once

#include <QLoggingCategory>

/// Decoding, playback and drawing of audio; written through VoLog.
Q_DECLARE_LOGGING_CATEGORY(lcAudio)
