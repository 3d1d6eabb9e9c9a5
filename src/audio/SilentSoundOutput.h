#pragma once

#include "SoundOutput.h"

#include <QTimer>

class PlaybackClock;

/**
 * @brief The output where no sound device exists: it sounds nothing and ends when the player's
 * clock reaches the end of the last play.
 */
class SilentSoundOutput final : public SoundOutput {
    Q_OBJECT
public:
    /// The clock is the player's and outlives this output.
    explicit SilentSoundOutput(const PlaybackClock &clock, QObject *parent = nullptr);

    void play() override { schedule(); }
    void pause() override { schedule(); }
    void seek(double) override { schedule(); }
    void setRate(float) override { schedule(); }
    void setVolume(float) override {}
    void setExtraPlays(int) override { schedule(); }

private:
    /// Any change of the clock moves the end.
    void schedule();

    const PlaybackClock &m_clock;
    QTimer m_end;
};
