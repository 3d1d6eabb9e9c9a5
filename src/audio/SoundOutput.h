#pragma once

#include <QObject>
#include <functional>
#include <memory>

class StretchedStream;

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
    /// The device went away mid-play; nothing more will sound or end here.
    void lost();
};

/// Makes the output of a stream on the system's default sound device, or null when there is no
/// device that takes it (the player then keeps time silently). Asked again whenever a device
/// goes away, so that playback moves to whatever is the default then.
using DeviceOutputMaker =
    std::function<std::unique_ptr<SoundOutput>(std::unique_ptr<StretchedStream> stream)>;

[[nodiscard]] std::unique_ptr<SoundOutput>
makeDeviceOutput(std::unique_ptr<StretchedStream> stream);
/// Replaces the system's devices, for tests; an empty maker restores them.
void setDeviceOutputMaker(DeviceOutputMaker maker);
