#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

namespace lm {

/**
 * @brief The options of a tool step's argument vector: the program name, then "-name value"
 * pairs and bare switches in any order.
 */
class ToolArguments {
public:
    /// Logs and gives nothing on an empty vector, an unknown option or an option without value.
    [[nodiscard]] static std::optional<ToolArguments> parse(const QStringList &arguments,
                                                            const QStringList &valueOptions,
                                                            const QStringList &switches);

    /// Logs each missing option; true when all are there.
    [[nodiscard]] bool require(const QStringList &names) const;
    [[nodiscard]] bool has(const QString &name) const { return m_options.contains(name); }
    /// Empty for a switch or a missing option.
    [[nodiscard]] QString value(const QString &name) const { return m_options.value(name); }
    [[nodiscard]] const QString &program() const { return m_program; }

private:
    QString m_program;
    QHash<QString, QString> m_options;
};

} // namespace lm
