#include "ShownNames.h"

#include "ICuiActionManager.h"
#include "KeyNames.h"

namespace CUI::ShownNames {

QString ofHotkey(const QString &hotkey)
{
    const QKeySequence key = KeyNames::keyOf(hotkey);
    return key.isEmpty() ? hotkey : key.toString(QKeySequence::NativeText);
}

QString ofAction(const ActionIdentifier &action)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *known = registry != nullptr ? registry->getAction(action) : nullptr;
    return known != nullptr ? known->name() : action.toString();
}

QString ofContext(unsigned long contextId)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelActionContext *known =
            registry != nullptr ? registry->getActionContext(contextId) : nullptr;
    return known != nullptr ? known->name() : QString::number(contextId);
}

QString ofActionIn(const ActionIdentifier &action, unsigned long contextId)
{
    return QStringLiteral("%1 (%2)").arg(ofAction(action), ofContext(contextId));
}

} // namespace CUI::ShownNames
