#include "HotkeyCommand.h"

#include "HotkeyEditGroup.h"
#include "HotkeyEdits.h"
#include "QvelShortcutManager.h"

namespace CUI {

void HotkeyCommand::apply(QvelShortcutManager &manager) const
{
    const HotkeyEditGroup group(&manager, text);
    for (const ShortcutTransformation &step : steps) {
        if (step.kind() == ShortcutTransformation::Assign)
            HotkeyEdits::give(manager, step.actionId(), step.shortcut(), step.description());
        else
            HotkeyEdits::take(manager, step.actionId(), step.shortcut(), step.description());
    }
}

} // namespace CUI
