#pragma once

#include <QList>
#include <QRect>

class QSettings;
class QWindow;

/// Keeps the main window's size and position from one run to the next.
namespace WindowPlacement {

/// Where a window saved at `saved` goes on screens with these available areas: where it was
/// while it still overlaps one of them, else only its size (the window manager places it);
/// nothing (a null rect) when nothing was saved.
[[nodiscard]] QRect placement(const QRect &saved, const QList<QRect> &screens);

/// Puts the window where the settings say it was last time.
void restore(QWindow &window, const QSettings &settings);
/// Notes where the window is, for the next run.
void remember(const QWindow &window, QSettings &settings);

} // namespace WindowPlacement
