#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

class QIODevice;

/// @brief Whole-buffer reads and writes of the toolkit's files; each failure is logged.
namespace lm {

/// `what` names the data in the log line ("word frequencies").
bool writeAll(QIODevice &device, const QByteArray &bytes, const QString &what);
/// Creates or truncates the file.
bool writeFile(const QString &path, const QByteArray &bytes, const QString &what);
[[nodiscard]] std::optional<QByteArray> readFile(const QString &path, const QString &what);

} // namespace lm
