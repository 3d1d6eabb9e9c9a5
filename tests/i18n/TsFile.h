#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One message of a Qt Linguist file, as far as the checks need it.
struct TsMessage {
    QString context;
    QString source;
    bool numerus{false};
    bool finished{true};
    QStringList translations; // one per plural form, or one
};

/// The messages of a .ts file; empty (with a test failure) when it cannot be read.
[[nodiscard]] QList<TsMessage> readTsFile(const QString &path);

/// The committed translation of a language code (i18n/tolvane_{code}.ts).
[[nodiscard]] QString tsFileOf(const QString &code);
