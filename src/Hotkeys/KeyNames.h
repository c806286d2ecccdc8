#pragma once

#include "UiCustomizationsExport.h"

#include <QKeySequence>
#include <QString>
#include <QStringList>

namespace CUI {

/// Which keys can be hotkeys, and conversions between hotkey texts and the accelerators of the
/// Windows accelerator table. The static members of QvelShortcutManager of the same names forward
/// here and document them.
namespace KeyNames {

CUI_CORE_EXPORT bool keySequenceToVirtualKey(const QString &shortcut, int &virtualKey, int &fVirt);
CUI_CORE_EXPORT QString virtualKeyToStr(int virtualKey, int fVirt);
CUI_CORE_EXPORT int keyToOEM(int key);
CUI_CORE_EXPORT int oemToKey(int virtualKey);
CUI_CORE_EXPORT QString getNumPadKeyName(QKeySequence::SequenceFormat format);

/// The modifiers of a hotkey and its key, which is the last part, in @p outputFormat. No parts when
/// the text is no key combination. The keypad's qualifier and its key are one part.
CUI_CORE_EXPORT QStringList partsOf(const QString &hotkey, QKeySequence::SequenceFormat inputFormat,
                                    QKeySequence::SequenceFormat outputFormat);

/// The key of a hotkey text in portable form; empty when there is no such key.
CUI_CORE_EXPORT QKeySequence keyOf(const QString &hotkey);

/// True for what a key press can be recorded as: not for modifiers alone, Escape, F1 and the like.
CUI_CORE_EXPORT bool canBeHotkey(int combination);
/// True for Ctrl+Tab and Ctrl+Shift+Tab, which move the focus out of a field that records keys.
CUI_CORE_EXPORT bool movesFocus(int combination);

} // namespace KeyNames
} // namespace CUI
