#pragma once

#include <QCommandLineOption>

#include <optional>

class QCommandLineParser;

namespace HotkeyCtl {

class Session;

/// What a command prints with --format.
enum class Format { Text, Json };

/// The option --format of a command whose JSON is an array of objects.
QCommandLineOption formatOption();

/// What the option says; nothing, after telling so, when it is neither.
std::optional<Format> formatOf(const QCommandLineParser &line, const Session &session);

} // namespace HotkeyCtl
