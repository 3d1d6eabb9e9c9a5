#pragma once

#include <QColor>
#include <QString>

/// @brief Locale, device and colour queries.
class Tools {
public:
    [[nodiscard]] static QString getCountryCode();
    [[nodiscard]] static QString getLanguageCode();
    /// The machine's hardware name ("x86_64", "aarch64"); empty when unknown.
    [[nodiscard]] static QString getDevicePlatform();
    /// 0xRRGGBB as an opaque colour.
    [[nodiscard]] static QColor getUIColorFromRGB(quint32 rgb);
};
