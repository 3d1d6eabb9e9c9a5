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

/// Source name that fatal errors of the content store and the user record report.
inline constexpr char appCommonSource[] = "Tolvane/AppCommon";
