#include <UiCustomizations/QvelConflictsWidget.h>
#include <UiCustomizations/QvelShortcutsWidget.h>

CUI::QvelConflictsWidget *listConflicts(CUI::QvelShortcutManager &hotkeys,
                                        CUI::QvelShortcutsWidget *editor, unsigned long menus);

CUI::QvelConflictsWidget *listConflicts(CUI::QvelShortcutManager &hotkeys,
                                        CUI::QvelShortcutsWidget *editor, unsigned long menus)
{
    auto *conflicts = new CUI::QvelConflictsWidget(&hotkeys);
    CUI::HotkeyAudit::Options options = conflicts->auditOptions();
    options.everywhere = {menus};
    conflicts->setAuditOptions(options);
    QObject::connect(conflicts, &CUI::QvelConflictsWidget::actionSelected, editor,
                     [editor](const CUI::ActionIdentifier &action) {
                         editor->setCurrentAction(action, false);
                     });
    return conflicts;
}
