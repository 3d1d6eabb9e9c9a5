#pragma once

#include "VoSpectrumPanel.h"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/**
 * @brief Paints a panel's spectrum picture over the item's background colour, bin 0 at the
 * bottom, one column per frame stretched to the item's size.
 *
 * The picture is rebuilt at every repaint, which the panel asks for as its progress moves; the
 * part already played lets the background through.
 */
class VoAudioSpectrumView : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(VoSpectrumPanel *panel READ panel WRITE setPanel NOTIFY panelChanged)

public:
    explicit VoAudioSpectrumView(QQuickItem *parent = nullptr);

    [[nodiscard]] VoSpectrumPanel *panel() const { return m_panel; }
    void setPanel(VoSpectrumPanel *panel);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void panelChanged();

private:
    QPointer<VoSpectrumPanel> m_panel;
    QMetaObject::Connection m_progressConnection;
    QMetaObject::Connection m_spectrumConnection;
};
