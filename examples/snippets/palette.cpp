#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelCommandPalette.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAction>

void addPalette(CUI::QvelActionItemModel &model, CUI::QvelShortcutManager &hotkeys,
                CUI::QvelActionBinder &binder, QWidget &window, QAction *findCommand);

void addPalette(CUI::QvelActionItemModel &model, CUI::QvelShortcutManager &hotkeys,
                CUI::QvelActionBinder &binder, QWidget &window, QAction *findCommand)
{
    auto *palette = new CUI::QvelCommandPalette(&model, &hotkeys, &binder, &window);
    QObject::connect(findCommand, &QAction::triggered, palette, &CUI::QvelCommandPalette::open);
    QObject::connect(palette, &CUI::QvelCommandPalette::triggered, // those without a QAction
                     [](const CUI::ActionIdentifier &action) {
                         CUI::ICuiActionManager::get()->triggerAction(action);
                     });
}
