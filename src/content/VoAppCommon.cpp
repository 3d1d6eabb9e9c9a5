#include "VoAppCommon.h"

#include "TextHelpers.h"

#include <QRegularExpression>

namespace {
QSizeF &currentScreenSize()
{
    static QSizeF size(375, 667);
    return size;
}
} // namespace

QStringList VoAppCommon::getAllWordFromText(const QString &text, bool uppercased)
{
    static const QRegularExpression word(
        QStringLiteral("([^\\s.,!?\u3001\u3002]+)[\\s?!.,\u3001\u3002]"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return TextHelpers::wordsMatching(word, text, uppercased);
}

void VoAppCommon::setScreenSize(QSizeF size)
{
    currentScreenSize() = size;
}

QSizeF VoAppCommon::screenSize()
{
    return currentScreenSize();
}

double VoAppCommon::getRelativeWidthBy320(double value)
{
    return value * currentScreenSize().width() / 320.0;
}

double VoAppCommon::getRelativeHeightBy568(double value)
{
    return value * currentScreenSize().height() / 568.0;
}

QColor VoAppCommon::getToolBarBgColor()
{
    return QColor::fromRgb(41, 36, 33);
}

QColor VoAppCommon::getBodyBgColor()
{
    return QColor::fromRgbF(0.9F, 0.9F, 0.9F);
}
