#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The base phones (AA, AE, ... SIL, and fillers such as +NSN+) of an acoustic model, read from
/// its binary model definition file "mdef". Nothing, with the reason in error, when the file is
/// missing or not a binary model definition.
[[nodiscard]] std::optional<QStringList> readModelPhones(const QString &mdefPath, QString &error);
