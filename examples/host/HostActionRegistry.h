#pragma once

#include "HostCatalogue.h"

#include <UiCustomizations/ICuiActionManager.h>

namespace Host {

/// The registry of an application whose actions come from a catalogue.
class HostActionRegistry : public CUI::ICuiActionManager
{
    Q_OBJECT

public:
    /// Empty until registerActions().
    explicit HostActionRegistry(const HostCatalogue &catalogue, QObject *parent = nullptr);

    void registerActions() override;
    /// Emits triggered(); false for an action that is not registered.
    bool triggerAction(const CUI::ActionIdentifier &identifier) override;
    /// The catalogue's accelerators, in its order.
    void getDefaultAccelerators(
            CUI::QvelShortcutManager *shortcutManager,
            std::vector<std::pair<CUI::ActionIdentifier, QString>> &accelerators) override;

Q_SIGNALS:
    /// The user wants the action performed.
    void triggered(const CUI::ActionIdentifier &identifier);

private:
    HostCatalogue m_catalogue;
};

} // namespace Host
