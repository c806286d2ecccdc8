#pragma once

#include "UiCustomizationsExport.h"

#include <QString>

class QComboBox;

namespace CUI {

/// Fills the combo boxes by which a table of actions is filtered, and shows files to the user.
///
/// The first four clear the combo box, which must not be null, and leave entry 0 selected; the
/// combo box emits its own signals on the way, as it does for any change of its entries. They read
/// the installed ICuiActionManager; without one, or with an empty one, the entry that stands for
/// "all" is the only one. They keep no connection: call them again when the registry has changed
/// or the language. The time they take grows with the number of actions. User-interface thread
/// only.
namespace QvelCustomizeDialogHelper {

/// Lists the action contexts behind the translated "All Groups", by name, letter case ignored.
///
/// The item data (Qt::UserRole) of a context is its id as an unsigned number of 64 bits, that of
/// "All Groups" is an invalid variant. Of contexts whose names differ in letter case only, one is
/// listed.
CUI_EXPORT void initializeContextList(QComboBox *comboBox);

/// Lists the categories of all actions behind "All Subgroups/Categories", each once (letter case
/// counts), sorted with letter case ignored.
///
/// Actions of a context that is not registered do not count. The first entry is not translated: its
/// very text is what stands for "no category chosen". Actions that have an empty category bring an
/// empty entry. The entries carry no item data.
CUI_EXPORT void initializeCategoryList(QComboBox *comboBox);

/// The same with the categories of the actions of one context. An id that is not registered lists
/// none.
CUI_EXPORT void updateCategoryList(QComboBox *comboBox, unsigned long contextId);

/// Lists the translated names of the hotkey filters; the index of an entry is the value of its
/// filter: all actions, those with hotkeys, those with other hotkeys than the base, those with
/// unsaved ones. The entries carry no item data.
CUI_EXPORT void initializeHotkeyFilterList(QComboBox *comboBox);

/// Opens the folder of a file in the desktop's file browser, with the file selected where the
/// desktop can do that.
///
/// Does nothing when @p filePath does not exist. Returns at once and reports nothing: what is shown
/// later, if anything, is up to the desktop. Needs a QGuiApplication and its event loop.
CUI_EXPORT void showFileInFolder(const QString &filePath);

} // namespace QvelCustomizeDialogHelper
} // namespace CUI
