#include <UiCustomizations/HotkeySheet.h>
#include <UiCustomizations/QvelShortcutManager.h>

void printHotkeys(CUI::QvelShortcutManager &hotkeys, unsigned long mesh,
                  QPagedPaintDevice &printer);

void printHotkeys(CUI::QvelShortcutManager &hotkeys, unsigned long mesh, QPagedPaintDevice &printer)
{
    CUI::ActionFilter filter;
    filter.contexts = {mesh};
    filter.state = CUI::ActionFilter::State::Assigned;
    CUI::HotkeySheet sheet(hotkeys, filter);
    sheet.setTitle(QStringLiteral("Mesh"));
    CUI::HotkeyKeyboard keyboard;
    keyboard.readHotkeys(hotkeys);
    sheet.setKeyboard(keyboard);
    if (!sheet.save(QStringLiteral("mesh.pdf")))
        return; // the log says why
    sheet.print(printer);
}
