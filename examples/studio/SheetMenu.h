#pragma once

#include <QMenu>

namespace CUI {
class HotkeySheet;
class QvelKeyboardWidget;
class QvelShortcutManager;
class QvelShortcutsWidget;
} // namespace CUI

namespace Studio {

/// Prints and exports the actions that the table of the editor lists, if the user wants it with
/// pictures of the keyboard.
class SheetMenu : public QMenu
{
    Q_OBJECT

public:
    /// All but @p parent must outlive it.
    SheetMenu(CUI::QvelShortcutManager *manager, CUI::QvelShortcutsWidget *editor,
              CUI::QvelKeyboardWidget *keyboard, QWidget *parent = nullptr);

    void setWithKeyboard(bool isWith);
    void showPrintPreview();
    void exportSheet();

private:
    CUI::HotkeySheet sheet() const;

    CUI::QvelShortcutManager *m_manager;
    CUI::QvelShortcutsWidget *m_editor;
    CUI::QvelKeyboardWidget *m_keyboard;
    QAction *m_withKeyboard;
};

} // namespace Studio
