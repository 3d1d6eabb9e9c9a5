#pragma once

#include <QLoggingCategory>

/// Quiz sessions and their results; written through VoLog.
Q_DECLARE_LOGGING_CATEGORY(lcQuiz)
