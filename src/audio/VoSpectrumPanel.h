#pragma once

#include "AudioPowerSpectrumInfo.h"
#include "VoPlayerBox.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

class AudioPlayer;

/**
 * @brief One recording's spectrum with a compact player bar under it: while the recording plays,
 * the part already heard is dimmed and the strip scrolls page by page to keep the play position
 * in sight.
 *
 * The panel holds the state a view binds to (the picture, the scroll offset, the progress) and
 * the player engine of its bar. Several panels can sit side by side; their owner lets only one
 * of them follow its player at a time through needRun and the playPreHandle signal.
 */
class VoSpectrumPanel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(VoPlayerBox *playerBox READ playerBox CONSTANT)
    Q_PROPERTY(int tag READ tag WRITE setTag NOTIFY tagChanged)
    Q_PROPERTY(bool needRun READ needRun WRITE setNeedRun NOTIFY needRunChanged)
    Q_PROPERTY(QString audioFilePath READ audioFilePath NOTIFY spectrumChanged)
    /// Columns of the spectrum (one per decoder frame); 0 without a spectrum.
    Q_PROPERTY(int spectrumWidth READ spectrumWidth NOTIFY spectrumChanged)
    /// Rows of the spectrum (its bins).
    Q_PROPERTY(int spectrumHeight READ spectrumHeight NOTIFY spectrumChanged)
    Q_PROPERTY(float playProgress READ playProgress NOTIFY playProgressChanged)
    /// The visible width of the strip, set by the view.
    Q_PROPERTY(qreal containerWidth READ containerWidth WRITE setContainerWidth NOTIFY
                   containerWidthChanged)
    /// How far the strip is scrolled, in the strip's own units.
    Q_PROPERTY(qreal contentX READ contentX NOTIFY contentXChanged)

public:
    explicit VoSpectrumPanel(QObject *parent = nullptr);
    ~VoSpectrumPanel() override;

    /// Shows the recording's spectrum and sets the player bar up with that one recording.
    void setSpectrum(const QString &audioFilePath, const AudioPowerSpectrumInfo &info);
    /// Back to the start: no progress, scrolled home, the bar showing a finished player.
    Q_INVOKABLE void initPlay();
    /// Stops the bar's player.
    Q_INVOKABLE void stopPlay();

    /// The spectrum as drawn now, the heard part dimmed; null without a spectrum.
    [[nodiscard]] QImage image() const;

    [[nodiscard]] VoPlayerBox *playerBox() { return &m_playerBox; }
    [[nodiscard]] int tag() const { return m_tag; }
    void setTag(int tag);
    [[nodiscard]] bool needRun() const { return m_needRun; }
    void setNeedRun(bool needRun);
    [[nodiscard]] const QString &audioFilePath() const { return m_audioFilePath; }
    [[nodiscard]] int spectrumWidth() const { return m_picture.width(); }
    [[nodiscard]] int spectrumHeight() const { return m_picture.height(); }
    [[nodiscard]] float playProgress() const { return m_playProgress; }
    [[nodiscard]] qreal containerWidth() const { return m_containerWidth; }
    void setContainerWidth(qreal width);
    [[nodiscard]] qreal contentX() const { return m_contentX; }

Q_SIGNALS:
    /// The panel's player has just started; the owner decides which panel follows its player.
    void playPreHandle(AudioPlayer *player, VoSpectrumPanel *panel);
    void tagChanged();
    void needRunChanged();
    void spectrumChanged();
    void playProgressChanged();
    void containerWidthChanged();
    void contentXChanged();

private:
    /// A beat of the bar's progress timer: moves the cursor and turns the page when needed.
    void followPlayer(AudioPlayer *player);
    void setPlayProgress(float progress);
    void setContentX(qreal x);

    VoPlayerBox m_playerBox;
    int m_tag{0};
    bool m_needRun{true};
    QString m_audioFilePath;
    /// The spectrum as drawn, nothing played yet; null without a spectrum.
    QImage m_picture;
    float m_playProgress{0.0F};
    qreal m_containerWidth{0.0};
    qreal m_contentX{0.0};
    /// Takes the cursor home a moment after the recording has played to its end.
    QTimer m_initPlayTimer;
};
