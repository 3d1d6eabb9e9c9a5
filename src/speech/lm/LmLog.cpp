#include "LmLog.h"

#include "content/VoLog.h"

// Errors are on, progress lines (info) are off until a logging rule enables them.
Q_LOGGING_CATEGORY(lcLm, "tolvane.speech.lm", QtWarningMsg)

namespace lm {

void logError(const QString &text)
{
    VoLog::write(lcLm(), VoLog::Error, text);
}

void logProgress(int verbosity, const QString &text)
{
    if (verbosity > 0)
        VoLog::write(lcLm(), VoLog::Progress, text);
}

} // namespace lm
