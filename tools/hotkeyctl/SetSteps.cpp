#include "SetSteps.h"

#include "Session.h"
#include "TextOutput.h"

#include <UiCustomizations/ICuiActionManager.h>

namespace HotkeyCtl {

namespace {

using CUI::ICuiActionManager;

/// A registry without actions: a store then records every step of a set and applies none, so that
/// it drops no step for want of room.
class NoActions : public ICuiActionManager
{
public:
    void registerActions() override { }
    bool triggerAction(const CUI::ActionIdentifier &) override { return false; }
};

class InstalledNoActions
{
public:
    InstalledNoActions() { install(std::make_unique<NoActions>()); }
    ~InstalledNoActions() { install(nullptr); }
    InstalledNoActions(const InstalledNoActions &) = delete;
    InstalledNoActions &operator=(const InstalledNoActions &) = delete;

private:
    static void install(std::unique_ptr<ICuiActionManager> registry)
    {
        ICuiActionManager::set(registry);
    }
};

} // namespace

std::optional<std::vector<CUI::ShortcutTransformation>> readSteps(Session &session,
                                                                  const QString &path)
{
    const InstalledNoActions registry;
    CUI::QvelShortcutManager store;
    // It would warn about each action that is not there.
    session.log().dropAllButErrors(true);
    const bool isLoaded = store.loadShortcutTransforms(path);
    session.log().dropAllButErrors(false);
    if (!isLoaded)
        return {};
    return store.currentTransformations();
}

QString stepLine(const CUI::ShortcutTransformation &step, const QString &action)
{
    const QString description =
            step.description().trimmed().isEmpty() ? action : step.description();
    return printable(
            CUI::ShortcutTransformation(step.kind(), step.actionId(), step.shortcut(), description)
                    .toString());
}

} // namespace HotkeyCtl
