#pragma once

#include <QCoreApplication>
#include <QString>

namespace CUI {

/// A text of the hotkey editor in the user's language. Mark the source text with
/// QT_TRANSLATE_NOOP("QvelShortcutsWidget", ...).
inline QString editorText(const char *sourceText)
{
    return QCoreApplication::translate("QvelShortcutsWidget", sourceText);
}

} // namespace CUI
