#pragma once

#include <QtGlobal>
#include <chrono>
#include <functional>

/**
 * @brief The file time of a player, kept from a monotonic clock while it plays, pauses, seeks
 * and changes its rate.
 *
 * Time runs over all plays of a looping file ("play-through" time, from 0 to totalTime());
 * currentTime() folds it back into the play under way. Rate 2 moves the file time two seconds
 * for each second that passes.
 */
class PlaybackClock {
public:
    /// The monotonic clock the time is read from; tests pass their own.
    using Now = std::function<std::chrono::nanoseconds()>;

    explicit PlaybackClock(double duration, Now now = steadyNow);

    [[nodiscard]] double duration() const { return m_duration; }
    void setExtraPlays(int plays);
    void setRate(float rate);
    [[nodiscard]] float rate() const { return m_rate; }

    void start();
    void pause();
    [[nodiscard]] bool isRunning() const { return m_running; }

    /// Seconds over all plays, 0 to totalTime().
    [[nodiscard]] double playThroughTime() const;
    [[nodiscard]] double totalTime() const { return m_duration * (m_extraPlays + 1); }
    /// Seconds into the play under way; the duration once the last play has ended.
    [[nodiscard]] double currentTime() const;
    [[nodiscard]] bool atEnd() const { return playThroughTime() >= totalTime(); }
    /// Wall time until the end at the current rate.
    [[nodiscard]] std::chrono::milliseconds remaining() const;

    /// Moves to `seconds` over all plays (clamped to 0 .. totalTime()).
    void seek(double seconds);
    /// Moves to `seconds` into the play under way.
    void setCurrentTime(double seconds);

private:
    static std::chrono::nanoseconds steadyNow();
    [[nodiscard]] int playUnderWay() const;

    Now m_now;
    double m_duration{0.0};
    int m_extraPlays{0};
    float m_rate{1.0F};
    bool m_running{false};
    // The play-through time was m_base at m_baseTime; it has moved on at m_rate since if running.
    double m_base{0.0};
    std::chrono::nanoseconds m_baseTime{};
};
