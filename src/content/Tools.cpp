#include "Tools.h"

#include <QLocale>
#include <QSysInfo>

QString Tools::getCountryCode()
{
    return QLocale::territoryToCode(QLocale::system().territory());
}

QString Tools::getLanguageCode()
{
    return QLocale::languageToCode(QLocale::system().language());
}

QString Tools::getDevicePlatform()
{
    return QSysInfo::currentCpuArchitecture();
}

QColor Tools::getUIColorFromRGB(quint32 rgb)
{
    return QColor::fromRgb(static_cast<int>((rgb >> 16) & 0xFF),
                           static_cast<int>((rgb >> 8) & 0xFF), static_cast<int>(rgb & 0xFF));
}
