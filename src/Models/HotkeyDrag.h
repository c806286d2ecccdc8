#pragma once

#include "ActionIdentifier.h"

#include <QString>

#include <memory>

class QMimeData;

namespace CUI {

/// What is dragged between the views of hotkeys. Only this application reads it.
namespace HotkeyDrag {

QMimeData *ofAction(const ActionIdentifier &action);
QMimeData *ofHotkey(const QString &hotkey);

/// The action that is dragged; the empty identifier for other data.
ActionIdentifier actionIn(const QMimeData *data);
/// The hotkey that is dragged; empty for other data.
QString hotkeyIn(const QMimeData *data);

/// The MIME type of an action.
QString actionType();

} // namespace HotkeyDrag
} // namespace CUI
