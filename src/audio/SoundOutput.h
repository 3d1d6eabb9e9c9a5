#pragma once

#include <QObject>

/**
 * @brief Where a player's sound goes: a device, or nowhere.
 *
 * Called on the UI thread, and no call waits for audio work. Times are play-through times, as
 * PlaybackClock counts them; the player moves its clock before it tells the output.
 */
class SoundOutput : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Starts, or goes on from where it paused.
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void seek(double seconds) = 0;
    virtual void setRate(float rate) = 0;
    virtual void setVolume(float volume) = 0;
    virtual void setExtraPlays(int plays) = 0;

Q_SIGNALS:
    /// The last play has sounded to its end; false when the file proved damaged on the way.
    void ended(bool successfully);
};
