#include "WordOrder.h"

#include <QCollator>

int compareWords(const QString &a, const QString &b)
{
    thread_local const QCollator collator = [] {
        QCollator c{QLocale(QLocale::English, QLocale::UnitedStates)};
        c.setCaseSensitivity(Qt::CaseInsensitive);
        c.setNumericMode(false);
        return c;
    }();
    return collator.compare(a, b);
}
