#pragma once

#include <QLoggingCategory>
#include <QString>

/// The language-model toolkit's steps, written through VoLog.
Q_DECLARE_LOGGING_CATEGORY(lcLm)

namespace lm {
/// Level 2: a step failed or lost data.
void logError(const QString &text);
/// Level 8: what a step made, when the caller asked for it with a positive verbosity.
void logProgress(int verbosity, const QString &text);
} // namespace lm
