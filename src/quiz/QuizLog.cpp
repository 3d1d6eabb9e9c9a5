#include "QuizLog.h"

// Errors are on, progress lines (info) are off until a logging rule enables them.
Q_LOGGING_CATEGORY(lcQuiz, "tolvane.quiz", QtWarningMsg)
