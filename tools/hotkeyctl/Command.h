#pragma once

#include "ExitCode.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>

#include <optional>

class QCommandLineParser;

namespace HotkeyCtl {

class Session;

/// One command of the program: what its help says, what it takes, and what it does.
struct Command {
    QString name;
    /// The arguments as the usage line shows them.
    QString synopsis;
    /// One line for the list of commands.
    QString summary;
    /// Paragraphs for the command's own help, with an example.
    QString description;
    /// The options, without --help, which every command has.
    QList<QCommandLineOption> options;
    int minimumArguments = 0;
    int maximumArguments = 0;
    /// Called with the parsed command line when the number of arguments is right.
    ExitCode (*run)(const QCommandLineParser &line, Session &session) = nullptr;
};

/// The value of an option, if it is there.
std::optional<QString> optionValue(const QCommandLineParser &line, const QString &option);

} // namespace HotkeyCtl
