#pragma once

/**
 * @brief Tells, from the input level polled while recording, when the learner has finished
 * speaking: after some speech, a stretch of quiet ends the take; the cap ends it regardless.
 *
 * Speech is a level above a fixed floor, above the quietest level heard and not far below the
 * loudest: in a noisy room the learner's voice still stands out, and the room's noise counts as
 * quiet once they have spoken.
 */
class EndOfSpeech {
public:
    enum class Verdict { Listening, Finished, CappedOff };

    /// Quiet this long after speech ends the take, in seconds.
    static constexpr double quietToEnd = 0.7;
    /// Speech shorter than this (a click, a breath) does not count, in seconds.
    static constexpr double shortestSpeech = 0.15;
    /// Below this a level is never speech, in dB.
    static constexpr float speechFloor = -45.0F;
    /// Speech stands this far above the quietest level heard, in dB.
    static constexpr float aboveQuietest = 15.0F;
    /// A level this far below the loudest heard is quiet, in dB.
    static constexpr float belowLoudest = 20.0F;

    explicit EndOfSpeech(double capSeconds);

    /// One level poll: the peak in dB over the last `interval` seconds.
    Verdict feed(float power, double interval);

    [[nodiscard]] bool heardSpeech() const { return m_speech >= shortestSpeech; }

private:
    double m_cap;
    double m_elapsed{0.0};
    double m_speech{0.0};
    double m_quietAfterSpeech{0.0};
    float m_quietest{speechFloor - aboveQuietest};
    float m_loudest{speechFloor};
};
