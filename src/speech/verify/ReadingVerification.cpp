#include "ReadingVerification.h"

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

QString verdictName(WordVerdict verdict)
{
    switch (verdict) {
    case WordVerdict::HeardWell:
        return QStringLiteral("heard well");
    case WordVerdict::Unclear:
        return QStringLiteral("unclear");
    case WordVerdict::Missing:
        break;
    }
    return QStringLiteral("missing");
}
