#include "ReadingMark.h"

#include "content/VoLog.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr char markSource[] = "Tolvane/ReadingMark";
constexpr int maxMark = 10;
} // namespace

namespace ReadingMark {

int recognizerMark(float score)
{
    const float mark = std::floor(score / 10.0F);
    if (!std::isfinite(mark) || mark < 0.0F || mark > 10.0F)
        fatal(markSource, __LINE__, QStringLiteral("the score %1 gives no mark").arg(score));
    return static_cast<int>(mark);
}

int verifiedMark(const ReadingVerification &verification)
{
    const int judged = verification.judgedWords();
    if (judged == 0)
        return 0;
    // In halves, so that the rounding stays in whole numbers.
    const int halves =
        2 * verification.count(WordVerdict::HeardWell) + verification.count(WordVerdict::Unclear);
    return halves * maxMark / (2 * judged);
}

int mark(float score, const ReadingVerification &verification)
{
    const int recognized = recognizerMark(score);
    const int judged = verification.judgedWords();
    if (!verification.succeeded || judged == 0)
        return recognized;
    if (!verification.aligned)
        return std::min(recognized, notThePhraseMost);
    if (verification.count(WordVerdict::Missing) == judged)
        return 0;
    const int combined = std::max(recognized, verifiedMark(verification));
    const bool fewHeard = 10 * verification.count(WordVerdict::HeardWell) < 9 * judged;
    if (verification.unmatchedSpeech > mostUnmatchedSpeech ||
        (fewHeard && verification.goodness < phraseGoodness))
        return std::min(combined, notThePhraseMost);
    return combined;
}

} // namespace ReadingMark
