#pragma once

#include <QKeySequence>
#include <QString>

namespace CUI {

/// Conversions between hotkey texts and the accelerators of the Windows accelerator table. The
/// static members of QvelShortcutManager of the same names forward here and document them.
namespace KeyNames {

bool keySequenceToVirtualKey(const QString &shortcut, int &virtualKey, int &fVirt);
QString virtualKeyToStr(int virtualKey, int fVirt);
int keyToOEM(int key);
int oemToKey(int virtualKey);
QString getNumPadKeyName(QKeySequence::SequenceFormat format);

/// The key of a hotkey text in portable form; empty when there is no such key.
QKeySequence keyOf(const QString &hotkey);

} // namespace KeyNames
} // namespace CUI
