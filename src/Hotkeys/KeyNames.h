#pragma once

#include "UiCustomizationsExport.h"

#include <QKeySequence>
#include <QString>

namespace CUI {

/// Conversions between hotkey texts and the accelerators of the Windows accelerator table. The
/// static members of QvelShortcutManager of the same names forward here and document them.
namespace KeyNames {

CUI_CORE_EXPORT bool keySequenceToVirtualKey(const QString &shortcut, int &virtualKey, int &fVirt);
CUI_CORE_EXPORT QString virtualKeyToStr(int virtualKey, int fVirt);
CUI_CORE_EXPORT int keyToOEM(int key);
CUI_CORE_EXPORT int oemToKey(int virtualKey);
CUI_CORE_EXPORT QString getNumPadKeyName(QKeySequence::SequenceFormat format);

/// The key of a hotkey text in portable form; empty when there is no such key.
CUI_CORE_EXPORT QKeySequence keyOf(const QString &hotkey);

} // namespace KeyNames
} // namespace CUI
