#include "LayoutMetrics.h"

#include "content/VoAppCommon.h"

#include <QQmlEngine>
#include <QSysInfo>
#include <QVersionNumber>

LayoutMetrics::LayoutMetrics(QObject *parent)
    : QObject(parent)
{}

LayoutMetrics &LayoutMetrics::instance()
{
    static LayoutMetrics metrics(nullptr);
    return metrics;
}

LayoutMetrics *LayoutMetrics::create(QQmlEngine *, QJSEngine *)
{
    QQmlEngine::setObjectOwnership(&instance(), QQmlEngine::CppOwnership);
    return &instance();
}

double LayoutMetrics::screenWidth() const
{
    return VoAppCommon::screenSize().width();
}

double LayoutMetrics::screenHeight() const
{
    return VoAppCommon::screenSize().height();
}

float LayoutMetrics::systemVersion() const
{
    const QVersionNumber version = QVersionNumber::fromString(QSysInfo::productVersion());
    return static_cast<float>(version.majorVersion()) +
           static_cast<float>(version.minorVersion()) / 10.0F;
}

void LayoutMetrics::setScreenSize(double width, double height)
{
    const QSizeF size(width, height);
    if (size == VoAppCommon::screenSize() || size.isEmpty())
        return;
    VoAppCommon::setScreenSize(size);
    Q_EMIT screenSizeChanged();
}
