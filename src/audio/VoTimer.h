#pragma once

#include <QElapsedTimer>

/// @brief A lap stopwatch: each getSpentTime() gives the seconds since the previous lap.
class VoTimer {
public:
    void startTimer() { m_timer.start(); }
    /// Seconds since the last start or lap, and starts the next lap.
    double getSpentTime()
    {
        const double seconds = static_cast<double>(m_timer.nsecsElapsed()) / 1e9;
        m_timer.start();
        return seconds;
    }

private:
    QElapsedTimer m_timer;
};
