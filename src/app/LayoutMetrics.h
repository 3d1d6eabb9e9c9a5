#pragma once

#include <QObject>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/**
 * @brief Screen metrics every view sizes itself from.
 *
 * Lengths are designed for a 320 x 568 screen; a view multiplies them by scaleX or scaleY.
 * The app window stands for the phone's screen, so the metrics follow its size.
 */
class LayoutMetrics : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(double screenWidth READ screenWidth NOTIFY screenSizeChanged)
    Q_PROPERTY(double screenHeight READ screenHeight NOTIFY screenSizeChanged)
    Q_PROPERTY(double scaleX READ scaleX NOTIFY screenSizeChanged)
    Q_PROPERTY(double scaleY READ scaleY NOTIFY screenSizeChanged)
    Q_PROPERTY(double topMargin READ topMargin CONSTANT)
    Q_PROPERTY(double usableHeight READ usableHeight NOTIFY screenSizeChanged)
    Q_PROPERTY(float systemVersion READ systemVersion CONSTANT)

public:
    static constexpr double designWidth = 320;
    static constexpr double designHeight = 568;

    // No default argument: Qt 6.4 builds a QML singleton with the default constructor when there
    // is one, and QML would read a second object that never hears of the window's size.
    explicit LayoutMetrics(QObject *parent);
    static LayoutMetrics &instance();
    static LayoutMetrics *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] double screenWidth() const;
    [[nodiscard]] double screenHeight() const;
    [[nodiscard]] double scaleX() const { return screenWidth() / designWidth; }
    [[nodiscard]] double scaleY() const { return screenHeight() / designHeight; }
    /// A desktop window has no safe area, so the phone's status-bar margin of 20 applies.
    [[nodiscard]] double topMargin() const { return 20; }
    /// No bottom safe area on the desktop either.
    [[nodiscard]] double usableHeight() const { return screenHeight(); }
    [[nodiscard]] float systemVersion() const;

    Q_INVOKABLE void setScreenSize(double width, double height);

Q_SIGNALS:
    void screenSizeChanged();
};
