#pragma once

#include <QStringList>

class QWidget;

namespace CUI {

/// What is asked and reported when a hotkey cannot simply be assigned. The boxes are destroyed with
/// @p window when the host closes that while one is open.
namespace ConflictDialogs {

/// Reports that an action has as many hotkeys as it can have.
void reportFullList(QWidget *window);
/// True when the user wants the hotkey, in portable form, taken from the actions that have it.
bool confirmReassignment(QWidget *window, const QString &hotkey, const QStringList &actionNames);

} // namespace ConflictDialogs
} // namespace CUI
