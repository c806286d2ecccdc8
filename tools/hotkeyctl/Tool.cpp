#include "Tool.h"

#include "Commands.h"
#include "Help.h"
#include "SampleHost.h"
#include "Session.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

namespace HotkeyCtl {

namespace {

const QString host = QStringLiteral("host");
const QString user = QStringLiteral("user");
const QString setOption = QStringLiteral("set");
const QString logLevel = QStringLiteral("log-level");
const QString version = QStringLiteral("version");

QList<QCommandLineOption> programOptions()
{
    return {
            helpOption(),
            {{QStringLiteral("v"), version}, QStringLiteral("Show the version.")},
            {host,
             QStringLiteral("The host directory; if not given, the one shipped with the program."),
             QStringLiteral("DIR")},
            {user,
             QStringLiteral(
                     "The directory of the user's sets and of the record of the current one.\n"
                     "If not given, the data location of the application."),
             QStringLiteral("DIR")},
            {setOption,
             QStringLiteral(
                     "The hotkey set on top of the base instead of the current one, by path or by\n"
                     "name. An empty text means none."),
             QStringLiteral("SET")},
            {logLevel,
             QStringLiteral(
                     "The least severe line of the log on standard error: 1 error, 2 warning\n"
                     "(if not given), 3 information, 4 debug; 0 for no line at all."),
             QStringLiteral("LEVEL"), QStringLiteral("2")},
    };
}

ExitCode wrongUsage(const QString &text, QTextStream &err)
{
    err << "hotkeyctl: " << printable(text) << "\nTry 'hotkeyctl --help'.\n";
    return ExitCode::WrongUsage;
}

/// The schemas that the library looks for beside the executable and that are not there. It would
/// call every file invalid, and not say why.
QStringList missingSchemas()
{
    QStringList missing;
    for (const QString &name : {QStringLiteral("HotkeyMappingSchema.xsd"),
                                QStringLiteral("HotkeyTransformationSchema.xsd"),
                                QStringLiteral("LegacyKbdxSchema.xsd")}) {
        const QString path = QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
        if (!QFileInfo(path).isFile())
            missing << path;
    }
    return missing;
}

/// Reads the options before the command; the error, if there is one.
QString readOptions(const QCommandLineParser &line, SessionOptions &options)
{
    bool isNumber = false;
    options.logLevel = line.value(logLevel).toInt(&isNumber);
    if (!isNumber || options.logLevel < 0 || options.logLevel > 4)
        return QStringLiteral("--log-level takes a number from 0 to 4, not '%1'")
                .arg(line.value(logLevel));
    options.hostDirectory = optionValue(line, host).value_or(Host::SampleHost::shippedDirectory());
    if (options.hostDirectory.isEmpty())
        return QStringLiteral("--host needs a directory");
    const std::optional<QString> userDirectory = optionValue(line, user);
    if (userDirectory && userDirectory->isEmpty())
        return QStringLiteral("--user needs a directory");
    options.userDirectory =
            userDirectory ? *userDirectory : Host::SampleHost::defaultUserDirectory();
    options.set = optionValue(line, setOption);
    return {};
}

ExitCode runCommand(const Command &command, const QStringList &arguments,
                    const SessionOptions &options, QTextStream &out, QTextStream &err)
{
    QCommandLineParser line;
    line.addOption(helpOption());
    line.addOptions(command.options);
    const bool parsed = line.parse(arguments);
    Session session(options, out, err);
    if (!parsed)
        return session.wrongUsage(line.errorText());
    if (line.isSet(QStringLiteral("help"))) {
        out << commandHelp(command);
        return ExitCode::Done;
    }
    const int count = line.positionalArguments().size();
    if (count < command.minimumArguments || count > command.maximumArguments) {
        const QString wanted =
                command.synopsis.isEmpty() ? QStringLiteral("no argument") : command.synopsis;
        return session.wrongUsage(QStringLiteral("%1 takes %2").arg(command.name, wanted));
    }
    const QStringList missing = missingSchemas();
    if (!missing.isEmpty()) {
        return session.problem(
                QStringLiteral("a schema is missing: %1").arg(missing.join(QLatin1String(", "))));
    }
    return command.run(line, session);
}

ExitCode runProgram(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QCommandLineParser line;
    line.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    line.addOptions(programOptions());
    if (!line.parse(arguments))
        return wrongUsage(line.errorText(), err);
    if (line.isSet(QStringLiteral("help"))) {
        out << programHelp(programOptions());
        return ExitCode::Done;
    }
    if (line.isSet(version)) {
        out << "hotkeyctl " HOTKEYCTL_VERSION "\n";
        return ExitCode::Done;
    }
    SessionOptions options;
    const QString error = readOptions(line, options);
    if (!error.isEmpty())
        return wrongUsage(error, err);
    const QStringList rest = line.positionalArguments();
    if (rest.isEmpty())
        return wrongUsage(QStringLiteral("a command is missing"), err);
    options.command = rest.constFirst();
    const auto &all = commands();
    const auto command = std::find_if(all.begin(), all.end(), [&options](const Command &c) {
        return c.name == options.command;
    });
    if (command == all.end()) {
        return wrongUsage(QStringLiteral("there is no command '%1'").arg(options.command), err);
    }
    return runCommand(*command, rest, options, out, err);
}

} // namespace

ExitCode run(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    ExitCode result = runProgram(arguments, out, err);
    out.flush();
    if (result == ExitCode::Done && out.status() != QTextStream::Ok) {
        err << "hotkeyctl: the output cannot be written\n";
        result = ExitCode::Problem;
    }
    err.flush();
    return result;
}

} // namespace HotkeyCtl
