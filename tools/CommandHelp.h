#pragma once

#include <QString>
#include <QStringList>

/// What `tolvane-cli --help` and `tolvane-cli help COMMAND` print, from one table of commands.
namespace CommandHelp {

/// Every command's usage lines and the exit statuses: the overview.
[[nodiscard]] QString overview();
/// The command's usage, what it does and each option; empty for a command that does not exist.
[[nodiscard]] QString details(const QString &command);
/// The commands the table describes, in its order.
[[nodiscard]] QStringList commands();

} // namespace CommandHelp
