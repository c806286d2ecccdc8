#include <UiCustomizations/HotkeyAudit.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <iostream>

QStringList auditHotkeys(CUI::QvelShortcutManager &hotkeys, unsigned long menus);

QStringList auditHotkeys(CUI::QvelShortcutManager &hotkeys, unsigned long menus)
{
    CUI::HotkeyAudit::Options options;
    options.everywhere = {menus}; // the context whose hotkeys count wherever the focus is
    const CUI::HotkeyAudit audit(hotkeys, options);
    for (const CUI::HotkeyFinding &finding : audit.findings()) {
        std::cout << CUI::HotkeyFinding::keyOf(finding.severity) << ' '
                  << qPrintable(finding.hotkey) << ": " << qPrintable(finding.text) << '\n';
    }
    const QStringList free = audit.nearestFree(QStringLiteral("Ctrl+S"), menus, 3);
    return free;
}
