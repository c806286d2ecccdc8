#pragma once

#include <UiCustomizations/HotkeyKeyboard.h>

#include <QCommandLineOption>
#include <QList>

#include <optional>

class QCommandLineParser;

namespace HotkeyCtl {

class Session;

/// The options that say which keyboard is drawn: --layout and --shape.
QList<QCommandLineOption> keyboardOptions();

/// True when one of them is given.
bool hasKeyboardOptions(const QCommandLineParser &line);

/// The layout that they say. Nothing when one of them is wrong; @p fault then says what.
std::optional<CUI::KeyboardLayout> layoutOf(const QCommandLineParser &line, QString &fault);

/// A keyboard with the hotkeys in effect, those of all contexts. The session must be loaded.
CUI::HotkeyKeyboard keyboardOf(const CUI::KeyboardLayout &layout, Session &session);

} // namespace HotkeyCtl
