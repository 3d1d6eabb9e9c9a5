#pragma once

#include <QDebug>
#include <QString>
#include <QVariant>
#include <ostream>

// Readable failure messages for Qt values; GoogleTest finds these through argument lookup.
inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << qUtf8Printable(text) << '"';
}

inline void PrintTo(const QVariant &value, std::ostream *os)
{
    QString text;
    QDebug(&text).nospace() << value;
    *os << qUtf8Printable(text);
}

inline void PrintTo(const QVariantMap &map, std::ostream *os)
{
    PrintTo(QVariant(map), os);
}
