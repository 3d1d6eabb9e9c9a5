#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

/**
 * @brief Plays one audio file: what the player engine, the phrase cards and the quizzes ask of
 * the platform's player.
 *
 * A player is made for one file (see makeAudioPlayer) and lives on the UI thread; the real one
 * decodes and stretches on its own thread, so that no call here waits for audio work. The rate
 * keeps the pitch. Loops count the extra plays after the first: 2 sounds the file three times,
 * 0 and 1 once. `finished` is emitted once, when the last loop has sounded (not on stop).
 */
class AudioPlayer : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void play() = 0;
    virtual void pause() = 0;
    /// Stops without rewinding; the next play() goes on from currentTime().
    virtual void stop() = 0;
    /// Seconds from the start of the file.
    virtual void setCurrentTime(double seconds) = 0;
    [[nodiscard]] virtual double currentTime() const = 0;
    [[nodiscard]] virtual double duration() const = 0;
    [[nodiscard]] virtual bool isPlaying() const = 0;
    /// Playback rate, 0.2 to 2.0; values outside are clamped.
    virtual void setRate(float rate) = 0;
    [[nodiscard]] virtual float rate() const = 0;
    /// 0 to 1.
    virtual void setVolume(float volume) = 0;
    [[nodiscard]] virtual float volume() const = 0;
    virtual void setNumberOfLoops(int loops) = 0;
    [[nodiscard]] virtual int numberOfLoops() const = 0;

Q_SIGNALS:
    void finished(bool successfully);
};

using AudioPlayerFactory = std::function<std::unique_ptr<AudioPlayer>(const QString &path)>;

/// A player for the file, or null when it cannot be opened or decoded (one log line says which
/// and why). Where no sound device exists, the player keeps time without sounding.
[[nodiscard]] std::unique_ptr<AudioPlayer> makeAudioPlayer(const QString &path);

/// Replaces how makeAudioPlayer makes players, for tests; an empty factory restores the real one.
void setAudioPlayerFactory(AudioPlayerFactory factory);
