#include "VoAudioSpectrumView.h"

#include "VoSpectrumPanel.h"

#include <QPainter>

VoAudioSpectrumView::VoAudioSpectrumView(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    // Blue until a picture covers it, and through the played part afterwards.
    setFillColor(Qt::blue);
}

void VoAudioSpectrumView::setPanel(VoSpectrumPanel *panel)
{
    if (m_panel == panel)
        return;
    disconnect(m_progressConnection);
    disconnect(m_spectrumConnection);
    m_panel = panel;
    if (panel) {
        const auto repaint = [this] {
            update();
        };
        m_progressConnection = connect(panel, &VoSpectrumPanel::playProgressChanged, this, repaint);
        m_spectrumConnection = connect(panel, &VoSpectrumPanel::spectrumChanged, this, repaint);
    }
    update();
    Q_EMIT panelChanged();
}

void VoAudioSpectrumView::paint(QPainter *painter)
{
    if (!m_panel)
        return;
    const QImage image = m_panel->image();
    if (image.isNull())
        return;
    painter->drawImage(boundingRect(), image);
}
