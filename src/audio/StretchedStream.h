#pragma once

#include "AudioHandles.h"

#include <QString>
#include <QtGlobal>
#include <memory>
#include <span>
#include <vector>

namespace soundtouch {
class SoundTouch;
}

/**
 * @brief A sound file decoded and time-stretched on demand: what a player sounds and what the
 * offline renderer writes, so both hear the same thing.
 *
 * Samples come out as interleaved floats at the file's own sample rate and channel count. The
 * rate changes the tempo only; the pitch stays. Extra plays follow the first seamlessly. Not
 * thread-safe: one thread uses a stream at a time, though it may be handed to another.
 */
class StretchedStream {
public:
    /// Null when the file cannot be opened or holds no audio, with one log line saying why.
    [[nodiscard]] static std::unique_ptr<StretchedStream> open(const QString &path);
    ~StretchedStream();
    StretchedStream(const StretchedStream &) = delete;
    StretchedStream &operator=(const StretchedStream &) = delete;

    [[nodiscard]] int sampleRate() const { return m_info.samplerate; }
    [[nodiscard]] int channels() const { return m_info.channels; }
    /// Seconds of one play at rate 1.
    [[nodiscard]] double duration() const;

    /// 0.2 to 2.0 (clamped); applies to the samples read from now on.
    void setRate(float rate);
    [[nodiscard]] float rate() const { return m_rate; }
    /// Plays after the first; lowering it below the play under way ends the stream with that one.
    void setExtraPlays(int plays);
    /// Goes to `seconds` counted over all plays: in a one-second file with one extra play, 1.5
    /// is the middle of the second play.
    void seek(double seconds);

    /// Fills `out` with whole frames and returns how many; fewer than asked only at the end, and
    /// 0 once the last play has sounded or the file proved damaged.
    qsizetype read(std::span<float> out);
    /// Whether reading stopped early at a part of the file that did not decode (logged once).
    [[nodiscard]] bool failed() const { return m_failed; }

private:
    StretchedStream(QString path, audio::SndfilePtr file, const SF_INFO &info);
    /// Moves the input to `frame` of play `play` and forgets what the stretcher held.
    void startPlay(int play, sf_count_t frame);
    /// Hands the next block of the file to the stretcher; flushes it at the end of a play.
    void feed();

    QString m_path;
    audio::SndfilePtr m_file;
    SF_INFO m_info{};
    std::unique_ptr<soundtouch::SoundTouch> m_stretcher;
    std::vector<float> m_block;
    float m_rate{1.0F};
    int m_extraPlays{0};
    int m_play{0};
    bool m_inputEnded{false};
    bool m_failed{false};
};
