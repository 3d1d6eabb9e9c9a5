#include "CommandLine.h"
#include "content/VoLog.h"

#include <QGuiApplication>
#include <map>
#include <memory>

namespace {

const char *const usage =
    "usage: tolvane-cli COMMAND ...\n"
    "  content list [--resources DIR] [--lang CODE] [--category ID]\n"
    "  content build SRC OUT\n"
    "  crypt encipher-plist IN [OUT] [--key KEY]\n"
    "  crypt decipher-file IN [--key KEY]\n"
    "  crypt encipher-data IN OUT [--key KEY]\n"
    "  crypt decipher-data IN OUT [--key KEY]\n"
    "  words [--upper] TEXT...\n"
    "  record show [--record FILE]\n"
    "  acoustic build --course DIR --model DIR --dict FILE --phones TABLE OUT\n"
    "  lm --name NAME --out DIR WORD... [--hmm DIR]\n"
    "  assess --text PHRASE RECORDING [--json] [--verbose] [--hmm DIR]\n"
    "  score --text PHRASE --words FILE.json [--json]\n"
    "  spectrum RECORDING --png OUT [--hmm DIR]\n"
    "exit status: 0 done, 1 wrong usage, 2 bad input, 3 failure of the machine (disk, device)\n";

} // namespace

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
        (arguments.isEmpty() ? err : out) << usage;
        return arguments.isEmpty() ? ExitStatus::WrongUsage : ExitStatus::Done;
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
        err << "tolvane-cli: unknown command \"" << name << "\"\n" << usage;
        return ExitStatus::WrongUsage;
    }
    return command->second(CommandLine{arguments, out, err});
}
