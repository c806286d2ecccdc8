#include "ActionMatcher.h"

#include "JoinedHotkeys.h"
#include "KeyNames.h"
#include "QvelShortcutManager.h"
#include "VelAction.h"

#include <algorithm>

namespace CUI {

namespace {

SearchQuery queryOf(const ActionFilter &filter)
{
    const QString search = filter.search.trimmed();
    if (search.isEmpty())
        return SearchQuery();
    if (filter.searchIn == ActionFilter::SearchIn::Actions)
        return SearchQuery::ofWords(search);
    return SearchQuery::ofHotkey(search, KeyNames::partsOf(search, QKeySequence::PortableText,
                                                           QKeySequence::PortableText));
}

} // namespace

ActionMatcher::ActionMatcher(const ActionFilter &filter, QvelShortcutManager &store)
    : m_filter(filter), m_store(store), m_query(queryOf(filter))
{
}

bool ActionMatcher::matches(const VelAction &action) const
{
    const auto &contexts = m_filter.contexts;
    const bool hasContext =
            contexts.empty()
            || std::find(contexts.begin(), contexts.end(), action.contextId()) != contexts.end();
    const bool hasCategory =
            m_filter.categories.isEmpty() || m_filter.categories.contains(action.category());
    return hasContext && hasCategory && matchesSearch(action) && matchesState(action);
}

bool ActionMatcher::matchesSearch(const VelAction &action) const
{
    if (!m_query.isActive())
        return true;
    if (m_filter.searchIn == ActionFilter::SearchIn::Actions)
        return m_query.matches(SearchText(action.name()));
    const QString hotkeys = m_store.getShortcutsFromActionId(action.identifier());
    return m_query.matches(SearchText(SearchQuery::withoutSeparators(hotkeys)));
}

bool ActionMatcher::matchesState(const VelAction &action) const
{
    switch (m_filter.state) {
    case ActionFilter::State::All:
        break;
    case ActionFilter::State::Assigned:
        return !m_store.getShortcutsFromActionId(action.identifier()).isEmpty();
    case ActionFilter::State::Customized:
        return isCustomized(m_store.getShortcutsFromActionId(action.identifier()),
                            m_store.getBaseShortcutsFromActionId(action.identifier()));
    case ActionFilter::State::Unsaved:
        return m_store.isUserModifiedAction(action.identifier());
    }
    return true;
}

bool ActionMatcher::isCustomized(const QString &hotkeys, const QString &baseHotkeys)
{
    // An empty text has one hotkey here, which is empty and not among others.
    const QStringList base = baseHotkeys.split(JoinedHotkeys::separator);
    const QStringList current = hotkeys.split(JoinedHotkeys::separator);
    return std::any_of(current.begin(), current.end(), [&base](const QString &hotkey) {
        return !base.contains(hotkey, Qt::CaseInsensitive);
    });
}

} // namespace CUI
