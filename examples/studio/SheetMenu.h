#pragma once

#include <QMenu>

namespace CUI {
class HotkeySheet;
class QvelShortcutManager;
class QvelShortcutsWidget;
} // namespace CUI

namespace Studio {

/// Prints and exports the actions that the table of the editor lists.
class SheetMenu : public QMenu
{
    Q_OBJECT

public:
    /// @p manager and @p editor must outlive it.
    SheetMenu(CUI::QvelShortcutManager *manager, CUI::QvelShortcutsWidget *editor,
              QWidget *parent = nullptr);

    void showPrintPreview();
    void exportSheet();

private:
    CUI::HotkeySheet sheet() const;

    CUI::QvelShortcutManager *m_manager;
    CUI::QvelShortcutsWidget *m_editor;
};

} // namespace Studio
