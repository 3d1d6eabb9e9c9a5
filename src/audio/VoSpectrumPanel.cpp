#include "VoSpectrumPanel.h"

#include "SpectrumImage.h"

namespace {
/// The cursor rests at the end for a moment before it returns to the start.
constexpr std::chrono::seconds restAtEnd{1};
} // namespace

VoSpectrumPanel::VoSpectrumPanel(QObject *parent)
    : QObject(parent)
{
    m_initPlayTimer.setSingleShot(true);
    m_initPlayTimer.setInterval(restAtEnd);
    connect(&m_initPlayTimer, &QTimer::timeout, this, &VoSpectrumPanel::initPlay);
    connect(&m_playerBox, &VoPlayerBox::played, this, [this](AudioPlayer *player) {
        m_initPlayTimer.stop();
        Q_EMIT playPreHandle(player, this);
    });
    connect(&m_playerBox, &VoPlayerBox::stopped, this, &VoSpectrumPanel::initPlay);
    connect(&m_playerBox, &VoPlayerBox::didFinishPlaying, this,
            [this] { m_initPlayTimer.start(); });
    connect(&m_playerBox, &VoPlayerBox::periodicTimeObserver, this, &VoSpectrumPanel::followPlayer);
}

VoSpectrumPanel::~VoSpectrumPanel() = default;

void VoSpectrumPanel::setSpectrum(const QString &audioFilePath, const AudioPowerSpectrumInfo &info)
{
    m_audioFilePath = audioFilePath;
    // Drawn once here: the view dims a copy of it on every beat of the player.
    m_picture = info.frameCount == 0 ? QImage() : genereateRGBAData(info, 0.0F);
    Q_EMIT spectrumChanged();
    m_playerBox.setupPlayer({audioFilePath});
}

void VoSpectrumPanel::initPlay()
{
    m_initPlayTimer.stop();
    setContentX(0.0);
    setPlayProgress(0.0F);
    m_playerBox.showFinished();
}

void VoSpectrumPanel::stopPlay()
{
    m_initPlayTimer.stop();
    m_playerBox.stopPlay();
}

QImage VoSpectrumPanel::image() const
{
    return dimPlayedColumns(m_picture, m_playProgress);
}

void VoSpectrumPanel::setTag(int tag)
{
    if (m_tag == tag)
        return;
    m_tag = tag;
    Q_EMIT tagChanged();
}

void VoSpectrumPanel::setNeedRun(bool needRun)
{
    if (m_needRun == needRun)
        return;
    m_needRun = needRun;
    Q_EMIT needRunChanged();
}

void VoSpectrumPanel::setContainerWidth(qreal width)
{
    if (qFuzzyCompare(m_containerWidth, width))
        return;
    m_containerWidth = width;
    Q_EMIT containerWidthChanged();
}

void VoSpectrumPanel::followPlayer(AudioPlayer *player)
{
    if (!m_needRun || !player || !(player->rate() > 0.0F) || !(player->duration() > 0.0))
        return;
    setPlayProgress(static_cast<float>(player->currentTime() / player->duration()));
    // The play position jumps to the left edge whenever it leaves the visible part, so the strip
    // moves a page at a time instead of sliding under the learner's eyes.
    const qreal x = spectrumWidth() * static_cast<qreal>(m_playProgress);
    if (x > m_contentX + m_containerWidth || x < m_contentX)
        setContentX(x);
}

void VoSpectrumPanel::setPlayProgress(float progress)
{
    if (m_playProgress == progress)
        return;
    m_playProgress = progress;
    Q_EMIT playProgressChanged();
}

void VoSpectrumPanel::setContentX(qreal x)
{
    if (m_contentX == x)
        return;
    m_contentX = x;
    Q_EMIT contentXChanged();
}
