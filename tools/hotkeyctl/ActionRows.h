#pragma once

#include "HostCatalogue.h"

#include <vector>

namespace HotkeyCtl {

class Session;

/// An action as the tables show it.
struct ActionRow {
    unsigned long contextId = 0;
    QString context;
    QString category;
    QString action;
    CUI::ActionIdentifier id;
};

/// The actions of the contexts in the order of context, action and id. Needs an open host.
std::vector<ActionRow> actionRows(const Session &session,
                                  const std::vector<Host::HostCatalogue::Context> &contexts);

/// The members of a JSON object that tell about the action, without the braces.
QString jsonMembers(const ActionRow &row);

/// True when the two lists hold other hotkeys: their order does not matter, letter case does.
bool differ(QStringList a, QStringList b);

/// The hotkeys in one cell of a table.
QString joined(const QStringList &hotkeys);

} // namespace HotkeyCtl
