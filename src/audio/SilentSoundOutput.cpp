#include "SilentSoundOutput.h"

#include "PlaybackClock.h"

SilentSoundOutput::SilentSoundOutput(const PlaybackClock &clock, QObject *parent)
    : SoundOutput(parent)
    , m_clock(clock)
{
    m_end.setSingleShot(true);
    m_end.setTimerType(Qt::PreciseTimer);
    connect(&m_end, &QTimer::timeout, this, [this] { Q_EMIT ended(true); });
}

void SilentSoundOutput::schedule()
{
    if (m_clock.isRunning())
        m_end.start(m_clock.remaining());
    else
        m_end.stop();
}
