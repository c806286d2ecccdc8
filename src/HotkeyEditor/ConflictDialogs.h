#pragma once

#include "HotkeyDefaults.h"

#include <QStringList>

#include <optional>

class QWidget;

namespace CUI {

/// What is asked and reported when a hotkey cannot simply be assigned. The boxes are destroyed with
/// @p window when the host closes that while one is open.
namespace ConflictDialogs {

/// Reports that an action has as many hotkeys as it can have.
void reportFullList(QWidget *window);
/// True when the user wants the hotkey, in portable form, taken from the actions that have it.
bool confirmReassignment(QWidget *window, const QString &hotkey, const QStringList &actionNames);
/// What is to become of the default hotkeys of a reset that other actions hold; nothing when the
/// user cancels. @p holders has a line for each such hotkey.
std::optional<HotkeyDefaults::Held> askAboutHeldDefaults(QWidget *window,
                                                         const QStringList &holders);
/// Such a line, for a hotkey in portable form.
QString holderLine(const QString &hotkey, const QString &actionName);

} // namespace ConflictDialogs
} // namespace CUI
