#pragma once

#include <QLoggingCategory>

/// Model generation, recognition and scoring; written through VoLog.
Q_DECLARE_LOGGING_CATEGORY(lcSpeech)
