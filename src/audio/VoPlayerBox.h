#pragma once

#include "AudioPlayer.h"

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariant>
#include <QtQml/qqmlregistration.h>
#include <functional>
#include <optional>

/**
 * @brief Plays a list of audio files one item at a time: repeat modes, speed steps, previous and
 * next, pause and stop, the elapsed time and a short-lived speed badge.
 *
 * The box owns no layout. A player bar binds its buttons to the image names and enabled flags
 * kept here and forwards taps to the actions; a control the bar does not have is simply not
 * bound. One audio player is shared by every box of the process: starting an item in any box
 * stops and replaces the one sounding, and only the box that started it hears it finish.
 *
 * Hosts follow the box through its signals (played, stopped, didFinishPlaying,
 * periodicTimeObserver). The pause between items (timeOfItemdelay) runs on a timer so the UI
 * keeps going, but the signals come in the order a host of a blocking wait would see them:
 * finish, stopped, the wait, played, then the ticks. While the wait runs the status is finished
 * and nothing ticks, but the controls show the list playing: stop cancels the start, and play
 * holds it (paused) until play is pressed again.
 */
class VoPlayerBox : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(float playRate READ playRate WRITE setPlayRate NOTIFY playRateChanged)
    Q_PROPERTY(int playStatus READ playStatus NOTIFY playStatusChanged)
    Q_PROPERTY(int currItemIndex READ currItemIndex NOTIFY currItemIndexChanged)
    Q_PROPERTY(int subtitleType READ subtitleType WRITE setSubtitleType NOTIFY subtitleTypeChanged)
    Q_PROPERTY(int playModel READ playModel NOTIFY playModelChanged)
    Q_PROPERTY(int numberOfItemLoops READ numberOfItemLoops WRITE setNumberOfItemLoops NOTIFY
                   numberOfItemLoopsChanged)
    Q_PROPERTY(int timeOfItemdelay READ timeOfItemdelay WRITE setTimeOfItemdelay NOTIFY
                   timeOfItemdelayChanged)
    Q_PROPERTY(QStringList audioFileList READ audioFileList NOTIFY audioFileListChanged)
    /// The bar's volume slider, 0 to 1; undefined while the bar has none.
    Q_PROPERTY(QVariant volumeSliderValue READ volumeSliderValue WRITE setVolumeSliderValue NOTIFY
                   volumeSliderValueChanged)
    /// True while the pause before an item runs.
    Q_PROPERTY(bool waitingToStart READ waitingToStart NOTIFY waitingToStartChanged)
    Q_PROPERTY(QString timeText READ timeText NOTIFY timeTextChanged)

    // What resetBtnImage and switchPlayModel keep up to date: image names and enabled flags.
    Q_PROPERTY(QString playImage READ playImage NOTIFY controlsChanged)
    Q_PROPERTY(QString stopImage READ stopImage NOTIFY controlsChanged)
    Q_PROPERTY(bool stopEnabled READ stopEnabled NOTIFY controlsChanged)
    Q_PROPERTY(QString lastImage READ lastImage NOTIFY controlsChanged)
    Q_PROPERTY(bool lastEnabled READ lastEnabled NOTIFY controlsChanged)
    Q_PROPERTY(QString nextImage READ nextImage NOTIFY controlsChanged)
    Q_PROPERTY(bool nextEnabled READ nextEnabled NOTIFY controlsChanged)
    Q_PROPERTY(QString speedDownImage READ speedDownImage NOTIFY controlsChanged)
    Q_PROPERTY(bool speedDownEnabled READ speedDownEnabled NOTIFY controlsChanged)
    Q_PROPERTY(QString speedUpImage READ speedUpImage NOTIFY controlsChanged)
    Q_PROPERTY(bool speedUpEnabled READ speedUpEnabled NOTIFY controlsChanged)
    Q_PROPERTY(QString playModelImage READ playModelImage NOTIFY controlsChanged)

    // The speed badge: shown over the speed button last pressed ("speedUp" or "speedDown").
    Q_PROPERTY(bool speedRemindVisible READ speedRemindVisible NOTIFY speedRemindChanged)
    Q_PROPERTY(QString speedRemindText READ speedRemindText NOTIFY speedRemindChanged)
    Q_PROPERTY(QString speedRemindAnchor READ speedRemindAnchor NOTIFY speedRemindChanged)

public:
    enum PlayStatus { Finished = 0, Playing = 1, Stopped = 2, Paused = 3 };
    Q_ENUM(PlayStatus)
    enum PlayModel { Sequential = 0, RepeatOne = 1, RepeatAll = 2 };
    Q_ENUM(PlayModel)

    static constexpr float minRate = 0.2F;
    static constexpr float maxRate = 2.0F;

    explicit VoPlayerBox(QObject *parent = nullptr);
    /// A box that goes takes the sound it started with it.
    ~VoPlayerBox() override;
    VoPlayerBox(const VoPlayerBox &) = delete;
    VoPlayerBox &operator=(const VoPlayerBox &) = delete;

    /// The player every box shares; null before the first start or when the file could not be
    /// opened.
    [[nodiscard]] static AudioPlayer *audioPlayer();

    [[nodiscard]] float playRate() const { return m_playRate; }
    /// Not bounded: only the rate handed to the player is clamped.
    void setPlayRate(float rate);
    [[nodiscard]] int playStatus() const { return m_playStatus; }
    [[nodiscard]] int currItemIndex() const { return m_currItemIndex; }
    [[nodiscard]] int subtitleType() const { return m_subtitleType; }
    void setSubtitleType(int type);
    [[nodiscard]] int playModel() const { return m_playModel; }
    /// Handed to the player as its loop count when above 1: 2 sounds an item three times.
    [[nodiscard]] int numberOfItemLoops() const { return m_numberOfItemLoops; }
    void setNumberOfItemLoops(int loops);
    /// Whole seconds before each item starts.
    [[nodiscard]] int timeOfItemdelay() const { return m_timeOfItemdelay; }
    void setTimeOfItemdelay(int seconds);
    [[nodiscard]] const QStringList &audioFileList() const { return m_audioFileList; }
    [[nodiscard]] QVariant volumeSliderValue() const;
    void setVolumeSliderValue(const QVariant &value);
    [[nodiscard]] bool waitingToStart() const { return m_delayTimer.isActive(); }
    [[nodiscard]] float timerInterval() const { return m_timerInterval; }
    [[nodiscard]] bool isTimerRunning() const { return m_timer.isActive(); }
    [[nodiscard]] QString timeText() const { return m_timeText; }

    [[nodiscard]] QString playImage() const { return m_controls.playImage; }
    [[nodiscard]] QString stopImage() const { return m_controls.stopImage; }
    [[nodiscard]] bool stopEnabled() const { return m_controls.stopEnabled; }
    [[nodiscard]] QString lastImage() const { return m_controls.lastImage; }
    [[nodiscard]] bool lastEnabled() const { return m_controls.lastEnabled; }
    [[nodiscard]] QString nextImage() const { return m_controls.nextImage; }
    [[nodiscard]] bool nextEnabled() const { return m_controls.nextEnabled; }
    [[nodiscard]] QString speedDownImage() const { return m_controls.speedDownImage; }
    [[nodiscard]] bool speedDownEnabled() const { return m_controls.speedDownEnabled; }
    [[nodiscard]] QString speedUpImage() const { return m_controls.speedUpImage; }
    [[nodiscard]] bool speedUpEnabled() const { return m_controls.speedUpEnabled; }
    [[nodiscard]] QString playModelImage() const { return m_controls.playModelImage; }

    [[nodiscard]] bool speedRemindVisible() const { return m_speedRemindVisible; }
    [[nodiscard]] QString speedRemindText() const { return m_speedRemindText; }
    [[nodiscard]] QString speedRemindAnchor() const { return m_speedRemindAnchor; }

    /// The list to play from its first item; loops and delay keep their values.
    Q_INVOKABLE void setupPlayer(const QStringList &list);
    Q_INVOKABLE void setupPlayer(const QStringList &list, int loops, int delay);

    /// The play/pause button. `pressed` stands for a tap on the button, which brings the wrap
    /// rule: pressed on the last item of a sequence (even to resume) restarts the list.
    Q_INVOKABLE void play(bool pressed = false);
    Q_INVOKABLE void stop();
    Q_INVOKABLE void stopPlay() { stop(); }
    Q_INVOKABLE void playLastItem();
    Q_INVOKABLE void playNextItem();
    /// An index out of the list is ignored.
    Q_INVOKABLE void playItem(int index);
    Q_INVOKABLE void playAudioFile(const QString &path);
    /// Only while playing; otherwise nothing changes, not even playRate.
    Q_INVOKABLE void speedUp();
    Q_INVOKABLE void speedDown();
    /// Sequential -> repeat one -> repeat all -> sequential.
    Q_INVOKABLE void switchPlayModel();
    /// Brings the controls' images and enabled flags in step with the state; hides the badge.
    Q_INVOKABLE void resetBtnImage();
    /// Shows the box as finished, controls included, without touching the player: for a host
    /// that has taken its view back to the start.
    Q_INVOKABLE void showFinished();
    /// One beat of the progress timer (every timerInterval seconds while it runs).
    Q_INVOKABLE void tick();

Q_SIGNALS:
    /// An item has just started; the player is null when its file could not be opened.
    void played(AudioPlayer *player);
    /// The box stopped the player: a user stop, or a new item about to replace the current one.
    void stopped(AudioPlayer *player);
    /// An item ended by itself; sent before the next item of the mode is asked for.
    void didFinishPlaying(AudioPlayer *player, bool successfully);
    void periodicTimeObserver(AudioPlayer *player, float interval);

    void playRateChanged();
    void playStatusChanged();
    void currItemIndexChanged();
    void subtitleTypeChanged();
    void playModelChanged();
    void numberOfItemLoopsChanged();
    void timeOfItemdelayChanged();
    void audioFileListChanged();
    void volumeSliderValueChanged();
    void waitingToStartChanged();
    void timeTextChanged();
    void controlsChanged();
    void speedRemindChanged();

private:
    struct Controls {
        QString playImage{QStringLiteral("vo_play")};
        QString stopImage{QStringLiteral("vo_stop2")};
        bool stopEnabled{true};
        QString lastImage{QStringLiteral("last_item2")};
        bool lastEnabled{true};
        QString nextImage{QStringLiteral("next_item")};
        bool nextEnabled{true};
        QString speedDownImage{QStringLiteral("speeddown2")};
        bool speedDownEnabled{true};
        QString speedUpImage{QStringLiteral("speedup2")};
        bool speedUpEnabled{true};
        QString playModelImage{QStringLiteral("replay_seq")};
        bool operator==(const Controls &) const = default;
    };

    void audioPlayerDidFinishPlaying(bool successfully);
    /// playAudioFile, then `then` once the item has started (after the pause, if any).
    void playAudioFile(const QString &path, std::function<void()> then);
    /// Everything of a start that follows the pause.
    void startFile(const QString &path);
    void startPendingFile();
    void cancelPendingStart();
    void applyWrapRule();
    void changeSpeed(double step, const QString &anchor);
    void resizeRate(AudioPlayer *player, float rate);
    void setPlayStatus(int status);
    void setCurrItemIndex(int index);
    void setControls(const Controls &controls);
    void setSpeedRemind(bool visible);
    static void logProgress(const QString &text);

    float m_playRate{1.0F};
    int m_playStatus{Finished};
    float m_timerInterval{0.0F};
    int m_currItemIndex{-1};
    int m_subtitleType{0};
    int m_playModel{Sequential};
    int m_numberOfItemLoops{0};
    int m_timeOfItemdelay{0};
    QStringList m_audioFileList;
    std::optional<float> m_volumeSliderValue;
    QString m_timeText{QStringLiteral("00:00")};
    Controls m_controls;
    bool m_speedRemindVisible{false};
    QString m_speedRemindText;
    QString m_speedRemindAnchor;

    QTimer m_timer;
    QTimer m_delayTimer;
    QString m_pendingPath;
    std::function<void()> m_pendingThen;
};
