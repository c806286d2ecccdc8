#pragma once

#include "ActionFilter.h"
#include "SearchQuery.h"

namespace CUI {

class QvelShortcutManager;
class VelAction;

/// Decides which actions an ActionFilter accepts.
class ActionMatcher
{
public:
    /// @p store must outlive it.
    ActionMatcher(const ActionFilter &filter, QvelShortcutManager &store);

    bool matches(const VelAction &action) const;

    /// Whether one of the joined @p hotkeys is not among those of the base, letter case ignored; or
    /// whether there is none while the base has some.
    CUI_CORE_EXPORT static bool isCustomized(const QString &hotkeys, const QString &baseHotkeys);

private:
    bool matchesSearch(const VelAction &action) const;
    bool matchesState(const VelAction &action) const;

    const ActionFilter m_filter;
    QvelShortcutManager &m_store;
    const SearchQuery m_query;
};

} // namespace CUI
