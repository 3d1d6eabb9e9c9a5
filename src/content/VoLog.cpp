#include "VoLog.h"

#include <cstdlib>

// Warnings and errors are on, progress lines (info) are off until a logging rule enables them.
Q_LOGGING_CATEGORY(lcContent, "tolvane.content", QtWarningMsg)
Q_LOGGING_CATEGORY(lcApp, "tolvane.app", QtWarningMsg)

void VoLog::write(const QLoggingCategory &category, int level, const QString &text)
{
    if (level <= Error) {
        if (category.isCriticalEnabled())
            QMessageLogger(nullptr, 0, nullptr, category.categoryName())
                .critical("%s", qUtf8Printable(text));
    } else if (category.isInfoEnabled()) {
        QMessageLogger(nullptr, 0, nullptr, category.categoryName())
            .info("%s", qUtf8Printable(text));
    }
}

namespace {
FatalAction fatalAction = &std::abort;
} // namespace

void setFatalAction(FatalAction action)
{
    fatalAction = action ? action : &std::abort;
}

void fatal(const char *source, int line, const QString &what)
{
    VoLog::write(lcApp(), VoLog::Error,
                 QStringLiteral("Fatal error in %1 line %2: %3")
                     .arg(QString::fromUtf8(source))
                     .arg(line)
                     .arg(what));
    fatalAction();
    std::abort();
}
