#include "ReadingVerification.h"

#include <QtGlobal>
#include <algorithm>

int ReadingVerification::count(WordVerdict verdict) const
{
    return static_cast<int>(std::count_if(words.cbegin(), words.cend(), [verdict](const auto &w) {
        return w.judged && w.verdict == verdict;
    }));
}

int ReadingVerification::judgedWords() const
{
    return static_cast<int>(
        std::count_if(words.cbegin(), words.cend(), [](const auto &w) { return w.judged; }));
}

const char *verdictName(WordVerdict verdict)
{
    switch (verdict) {
    case WordVerdict::HeardWell:
        return QT_TRANSLATE_NOOP("ReadingFeedback", "heard well");
    case WordVerdict::Unclear:
        return QT_TRANSLATE_NOOP("ReadingFeedback", "unclear");
    case WordVerdict::Missing:
        break;
    }
    return QT_TRANSLATE_NOOP("ReadingFeedback", "missing");
}
