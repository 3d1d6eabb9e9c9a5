#include "CommandHelp.h"
#include "CommandLine.h"
#include "content/VoLog.h"

#include <QGuiApplication>
#include <map>
#include <memory>

int CommandLine::usageError(const QString &message) const
{
    err << "tolvane-cli: " << message << Qt::endl;
    return ExitStatus::WrongUsage;
}

int CommandLine::fail(const QString &message) const
{
    err << "tolvane-cli: " << message << Qt::endl;
    return ExitStatus::BadInput;
}

int CommandLine::machineFailure(const QString &message) const
{
    err << "tolvane-cli: " << message << Qt::endl;
    return ExitStatus::MachineFailure;
}

ParsedArguments ParsedArguments::parse(const QStringList &arguments,
                                       const QStringList &valueOptions,
                                       const QStringList &flagOptions)
{
    ParsedArguments parsed;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (argument == QLatin1String("--")) {
            parsed.positional += arguments.mid(i + 1);
            break;
        }
        if (!argument.startsWith(QLatin1String("--")) || argument.size() == 2) {
            parsed.positional.append(argument);
        } else if (flagOptions.contains(argument)) {
            parsed.flags.insert(argument);
        } else if (!valueOptions.contains(argument)) {
            parsed.error = QStringLiteral("unknown option %1").arg(argument);
            break;
        } else if (i + 1 == arguments.size()) {
            parsed.error = QStringLiteral("%1 needs a value").arg(argument);
            break;
        } else {
            parsed.values.insert(argument, arguments[++i]);
        }
    }
    return parsed;
}

int main(int argc, char *argv[])
{
    // The CLI never shows a window, but drawing the course's pictures needs a GUI application;
    // the other commands stay clear of the windowing system.
    const bool draws =
        argc > 2 && qstrcmp(argv[1], "content") == 0 && qstrcmp(argv[2], "build") == 0;
    if (draws && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::unique_ptr<QCoreApplication> app =
        draws ? std::make_unique<QGuiApplication>(argc, argv)
              : std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Tolvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Tolvane"));

    // A damaged course or record is bad input here: one line and the bad-input status.
    setFatalAction([] { std::_Exit(ExitStatus::BadInput); });
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &message) {
        QTextStream(stderr) << "tolvane-cli: " << message << Qt::endl;
    });

    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty() || arguments.first() == QLatin1String("--help")) {
        (arguments.isEmpty() ? err : out) << CommandHelp::overview();
        return arguments.isEmpty() ? ExitStatus::WrongUsage : ExitStatus::Done;
    }
    if (arguments.first() == QLatin1String("help")) {
        if (arguments.size() == 1) {
            out << CommandHelp::overview();
            return ExitStatus::Done;
        }
        const QString help = CommandHelp::details(arguments.at(1));
        if (help.isEmpty() || arguments.size() > 2) {
            err << "tolvane-cli: help: no command \"" << arguments.mid(1).join(u' ') << "\"\n"
                << CommandHelp::overview();
            return ExitStatus::WrongUsage;
        }
        out << help;
        return ExitStatus::Done;
    }

    const std::map<QString, int (*)(const CommandLine &)> commands{
        {QStringLiteral("content"), runContentCommand},
        {QStringLiteral("crypt"), runCryptCommand},
        {QStringLiteral("words"), runWordsCommand},
        {QStringLiteral("record"), runRecordCommand},
        {QStringLiteral("acoustic"), runAcousticCommand},
        {QStringLiteral("lm"), runLmCommand},
        {QStringLiteral("assess"), runAssessCommand},
        {QStringLiteral("spectrum"), runSpectrumCommand},
        {QStringLiteral("score"), runScoreCommand},
    };
    const QString name = arguments.takeFirst();
    const auto command = commands.find(name);
    if (command == commands.end()) {
        err << "tolvane-cli: unknown command \"" << name << "\"\n" << CommandHelp::overview();
        return ExitStatus::WrongUsage;
    }
    return command->second(CommandLine{arguments, out, err});
}
