#pragma once

#include <QColor>
#include <QSizeF>
#include <QStringList>

/**
 * @brief The word splitter every quiz shares, the 320 x 568 layout scaling and the body and
 * tool-bar colours.
 */
class VoAppCommon {
public:
    /// Words end at white space or . , ! ? 、 。 and keep every other character, so "geht's"
    /// is one word and "z. B." two. Upper-casing is full Unicode: "Straße" gives "STRASSE".
    [[nodiscard]] static QStringList getAllWordFromText(const QString &text, bool uppercased);

    /// The size that stands for the phone's screen: the app window's.
    static void setScreenSize(QSizeF size);
    [[nodiscard]] static QSizeF screenSize();
    /// value x screen width / 320, the design width
    [[nodiscard]] static double getRelativeWidthBy320(double value);
    /// value x screen height / 568, the design height
    [[nodiscard]] static double getRelativeHeightBy568(double value);

    [[nodiscard]] static QColor getToolBarBgColor();
    [[nodiscard]] static QColor getBodyBgColor();
};
