#pragma once

#include "AudioPlayer.h"
#include "PlaybackClock.h"

#include <QString>
#include <memory>

class SoundOutput;
class StretchedStream;

/// Where a player's sound goes.
enum class SoundDestination {
    /// The system's default output device; nowhere when there is none.
    defaultDevice,
    /// Nowhere: the player keeps time and ends as if it sounded.
    nowhere,
};

/**
 * @brief The app's player: a file decoded and time-stretched so that the pitch stays at every
 * rate, sounded on a device or kept in time without one.
 *
 * Its time is file time, kept by a clock on the UI thread; the output only sounds. `finished`
 * comes from the output, once the last play has ended.
 */
class TempoAudioPlayer final : public AudioPlayer {
    Q_OBJECT
public:
    /// Null when the file cannot be opened or holds no audio (one log line says why).
    [[nodiscard]] static std::unique_ptr<TempoAudioPlayer> open(const QString &path,
                                                                SoundDestination destination);
    ~TempoAudioPlayer() override;

    void play() override;
    void pause() override;
    void stop() override;
    void setCurrentTime(double seconds) override;
    [[nodiscard]] double currentTime() const override { return m_clock.currentTime(); }
    [[nodiscard]] double duration() const override { return m_clock.duration(); }
    [[nodiscard]] bool isPlaying() const override { return m_clock.isRunning(); }
    void setRate(float rate) override;
    [[nodiscard]] float rate() const override { return m_clock.rate(); }
    void setVolume(float volume) override;
    [[nodiscard]] float volume() const override { return m_volume; }
    void setNumberOfLoops(int loops) override;
    [[nodiscard]] int numberOfLoops() const override { return m_loops; }

private:
    TempoAudioPlayer(QString path, std::unique_ptr<StretchedStream> stream,
                     SoundDestination destination);
    [[nodiscard]] std::unique_ptr<SoundOutput> makeOutput(std::unique_ptr<StretchedStream> stream);
    void useOutput(std::unique_ptr<SoundOutput> output);
    void outputLost();
    void end(bool successfully);

    PlaybackClock m_clock;
    QString m_path;
    SoundDestination m_destination;
    std::unique_ptr<SoundOutput> m_output;
    int m_losses{0};
    float m_volume{1.0F};
    int m_loops{0};
};
