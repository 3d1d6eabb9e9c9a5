#pragma once

#include <QLoggingCategory>
#include <QString>

Q_DECLARE_LOGGING_CATEGORY(lcContent)
Q_DECLARE_LOGGING_CATEGORY(lcApp)

/**
 * @brief The app's one logger.
 *
 * Level 2 lines are errors and always shown; level 8 lines report progress and timing and are
 * off unless enabled, e.g. with QT_LOGGING_RULES="tolvane.*.info=true".
 */
class VoLog {
public:
    enum Level { Error = 2, Progress = 8 };

    static void write(const QLoggingCategory &category, int level, const QString &text);
};

/**
 * Ends the program after logging what went wrong and where (level 2). For conditions that cannot
 * happen in a correct installation, such as a missing resource or a missing record key.
 */
[[noreturn]] void fatal(const char *source, int line, const QString &what);

/// What fatal() does once the line is logged: abort by default. A tool that reports bad input
/// with an exit status instead sets its own action; the action must not return.
using FatalAction = void (*)();
void setFatalAction(FatalAction action);

/// Source name that fatal errors of the content store and the user record report.
inline constexpr char appCommonSource[] = "Tolvane/AppCommon";
