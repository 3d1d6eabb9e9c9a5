#include "WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWindow>

namespace {
const QString geometryKey = QStringLiteral("window/geometry");
} // namespace

namespace WindowPlacement {

QRect placement(const QRect &saved, const QList<QRect> &screens)
{
    if (!saved.isValid())
        return {};
    for (const QRect &screen : screens)
        if (screen.intersects(saved))
            return saved;
    // A screen unplugged since: keep the size, let the window manager choose the place.
    return QRect(QPoint(), saved.size());
}

void restore(QWindow &window, const QSettings &settings)
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    const QRect target = placement(settings.value(geometryKey).toRect(), screens);
    if (target.isNull())
        return;
    if (target.topLeft().isNull())
        window.resize(target.size());
    else
        window.setGeometry(target);
}

void remember(const QWindow &window, QSettings &settings)
{
    settings.setValue(geometryKey, window.geometry());
}

} // namespace WindowPlacement
