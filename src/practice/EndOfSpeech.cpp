#include "EndOfSpeech.h"

#include <algorithm>

EndOfSpeech::EndOfSpeech(double capSeconds)
    : m_cap(capSeconds)
{}

EndOfSpeech::Verdict EndOfSpeech::feed(float power, double interval)
{
    m_quietest = std::min(m_quietest, power);
    m_loudest = std::max(m_loudest, power);
    m_elapsed += interval;
    const float bar = std::max({speechFloor, m_quietest + aboveQuietest, m_loudest - belowLoudest});
    if (power >= bar) {
        m_speech += interval;
        m_quietAfterSpeech = 0.0;
    } else if (heardSpeech()) {
        m_quietAfterSpeech += interval;
    }
    if (heardSpeech() && m_quietAfterSpeech >= quietToEnd)
        return Verdict::Finished;
    return m_elapsed >= m_cap ? Verdict::CappedOff : Verdict::Listening;
}
