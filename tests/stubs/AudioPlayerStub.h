#pragma once

#include "audio/AudioPlayer.h"

#include <QStringList>
#include <algorithm>
#include <utility>

/**
 * @brief A player that sounds nothing and whose time the test moves: finishPlaying() ends the
 * file as the real player would after its last loop.
 *
 * AudioPlayerStubFactory installs itself as the factory for its lifetime, records every path
 * asked for, and refuses the paths listed in `unplayable`.
 */
class AudioPlayerStub final : public AudioPlayer {
public:
    explicit AudioPlayerStub(QString path)
        : m_path(std::move(path))
    {}

    void play() override
    {
        m_playing = true;
        if (finishesAtOnce)
            QMetaObject::invokeMethod(this, &AudioPlayerStub::finishPlaying, Qt::QueuedConnection);
    }
    void pause() override { m_playing = false; }
    void stop() override { m_playing = false; }
    void setCurrentTime(double seconds) override { m_time = seconds; }
    [[nodiscard]] double currentTime() const override { return m_time; }
    [[nodiscard]] double duration() const override { return m_duration; }
    [[nodiscard]] bool isPlaying() const override { return m_playing; }
    void setRate(float rate) override { m_rate = std::clamp(rate, 0.2F, 2.0F); }
    [[nodiscard]] float rate() const override { return m_rate; }
    void setVolume(float volume) override { m_volume = std::clamp(volume, 0.0F, 1.0F); }
    [[nodiscard]] float volume() const override { return m_volume; }
    void setNumberOfLoops(int loops) override { m_loops = loops; }
    [[nodiscard]] int numberOfLoops() const override { return m_loops; }

    [[nodiscard]] const QString &path() const { return m_path; }
    /// Ends each play as soon as the event loop runs, for screens that wait for the end.
    bool finishesAtOnce{false};
    void setDuration(double seconds) { m_duration = seconds; }
    void finishPlaying()
    {
        m_playing = false;
        m_time = m_duration;
        Q_EMIT finished(true);
    }

private:
    QString m_path;
    double m_time{0.0};
    double m_duration{1.0};
    float m_rate{1.0F};
    float m_volume{1.0F};
    int m_loops{0};
    bool m_playing{false};
};

class AudioPlayerStubFactory {
public:
    AudioPlayerStubFactory()
    {
        setAudioPlayerFactory([this](const QString &path) -> std::unique_ptr<AudioPlayer> {
            requested.append(path);
            if (unplayable.contains(path))
                return nullptr;
            auto player = std::make_unique<AudioPlayerStub>(path);
            player->finishesAtOnce = finishAtOnce;
            last = player.get();
            return player;
        });
    }
    ~AudioPlayerStubFactory() { setAudioPlayerFactory({}); }
    AudioPlayerStubFactory(const AudioPlayerStubFactory &) = delete;
    AudioPlayerStubFactory &operator=(const AudioPlayerStubFactory &) = delete;

    QStringList requested;
    QStringList unplayable;
    bool finishAtOnce{false};
    /// The player made last; it belongs to whoever asked for it, so it is valid only while they
    /// keep it.
    AudioPlayerStub *last{nullptr};
};
