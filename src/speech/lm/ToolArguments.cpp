#include "ToolArguments.h"

#include "LmLog.h"

namespace lm {

std::optional<ToolArguments> ToolArguments::parse(const QStringList &arguments,
                                                  const QStringList &valueOptions,
                                                  const QStringList &switches)
{
    if (arguments.isEmpty()) {
        logError(QStringLiteral("A toolkit step was called without a program name"));
        return std::nullopt;
    }
    ToolArguments parsed;
    parsed.m_program = arguments.first();
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &name = arguments.at(i);
        if (switches.contains(name)) {
            parsed.m_options.insert(name, QString());
        } else if (!valueOptions.contains(name)) {
            logError(QStringLiteral("%1: unknown option \"%2\"").arg(parsed.m_program, name));
            return std::nullopt;
        } else if (i + 1 == arguments.size()) {
            logError(QStringLiteral("%1: option %2 needs a value").arg(parsed.m_program, name));
            return std::nullopt;
        } else {
            parsed.m_options.insert(name, arguments.at(++i));
        }
    }
    return parsed;
}

bool ToolArguments::require(const QStringList &names) const
{
    bool complete = true;
    for (const QString &name : names) {
        if (!has(name)) {
            logError(QStringLiteral("%1: option %2 is missing").arg(m_program, name));
            complete = false;
        }
    }
    return complete;
}

} // namespace lm
