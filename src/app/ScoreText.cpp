#include "ScoreText.h"

#include <QCoreApplication>
#include <QLocale>

namespace ScoreText {

QColor color(int points, int outOf)
{
    // Whole-number comparisons: 8 of 10 is exactly four fifths, and must stay green.
    if (outOf > 0 && points * 5 >= outOf * 4)
        return QColor::fromRgb(46, 139, 87);
    if (outOf > 0 && points * 2 >= outOf)
        return QColor::fromRgb(199, 97, 20);
    return QColor::fromRgb(176, 23, 31);
}

QString styled(const QString &label, int points, int outOf, bool boldPoints)
{
    // In the learner's digits: the default locale follows the screens' language.
    const QString pointsText = QLocale().toString(points);
    const QString digits = boldPoints ? QStringLiteral("<b>%1</b>").arg(pointsText) : pointsText;
    return labelled(label.toHtmlEscaped(),
                    QStringLiteral("<font color=\"%1\">%2</font>/%3")
                        .arg(color(points, outOf).name(), digits, QLocale().toString(outOf)));
}

QString labelled(const QString &label, const QString &value)
{
    return QCoreApplication::translate("ScoreText", "%1: %2").arg(label, value);
}

} // namespace ScoreText
