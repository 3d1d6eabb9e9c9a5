#include "PlaybackClock.h"

#include <algorithm>
#include <cmath>

PlaybackClock::PlaybackClock(double duration, Now now)
    : m_now(std::move(now))
    , m_duration(std::max(duration, 0.0))
{}

std::chrono::nanoseconds PlaybackClock::steadyNow()
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

void PlaybackClock::setExtraPlays(int plays)
{
    m_extraPlays = std::max(plays, 0);
}

void PlaybackClock::setRate(float rate)
{
    seek(playThroughTime());
    m_rate = rate;
}

void PlaybackClock::start()
{
    if (m_running)
        return;
    m_baseTime = m_now();
    m_running = true;
}

void PlaybackClock::pause()
{
    seek(playThroughTime());
    m_running = false;
}

double PlaybackClock::playThroughTime() const
{
    double time = m_base;
    if (m_running)
        time += std::chrono::duration<double>(m_now() - m_baseTime).count() * m_rate;
    return std::min(time, totalTime());
}

int PlaybackClock::playUnderWay() const
{
    if (m_duration <= 0.0)
        return 0;
    return static_cast<int>(
        std::min(std::floor(playThroughTime() / m_duration), static_cast<double>(m_extraPlays)));
}

double PlaybackClock::currentTime() const
{
    return playThroughTime() - playUnderWay() * m_duration;
}

std::chrono::milliseconds PlaybackClock::remaining() const
{
    const double seconds = (totalTime() - playThroughTime()) / m_rate;
    return std::chrono::milliseconds(static_cast<qint64>(std::ceil(seconds * 1000.0)));
}

void PlaybackClock::seek(double seconds)
{
    m_base = std::isnan(seconds) ? 0.0 : std::clamp(seconds, 0.0, totalTime());
    m_baseTime = m_now();
}

void PlaybackClock::setCurrentTime(double seconds)
{
    const double within = std::isnan(seconds) ? 0.0 : std::clamp(seconds, 0.0, m_duration);
    seek(playUnderWay() * m_duration + within);
}
