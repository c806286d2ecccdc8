#pragma once

#include "TestHost.h"

#include <UiCustomizations/QShortcutsList.h>
#include <UiCustomizations/ShortcutTransformation.h>

#include <list>
#include <map>
#include <unordered_map>
#include <vector>

using PlainMap = std::map<CUI::ActionIdentifier, QStringList>;

/// The conflict rule evaluated from scratch: it scans all entries, in the order of the identifiers,
/// for the holder of a hotkey.
class PlainStore
{
public:
    explicit PlainStore(const TestRegistry &registry) : m_registry(registry) { }

    void apply(const CUI::ShortcutTransformation &step)
    {
        if (step.kind() == CUI::ShortcutTransformation::Assign)
            assign(step.actionId(), step.shortcut());
        else
            unassign(step.actionId(), step.shortcut());
    }

    void assign(const CUI::ActionIdentifier &id, const QString &shortcut)
    {
        if (current.count(id) > 0 && current[id].size() >= 6)
            return;
        const CUI::VelAction *action = m_registry.getAction(id);
        if (action == nullptr)
            return;
        const CUI::ActionIdentifier holder = owner(shortcut, action->contextId());
        if (!holder.isEmpty() && holder != id)
            unassign(holder, shortcut);
        if (!current[id].contains(shortcut, Qt::CaseInsensitive))
            current[id] << shortcut;
    }

    /// As an editor does it: what other actions of the context hold is taken away in any spelling.
    void give(const CUI::ActionIdentifier &id, const QString &shortcut)
    {
        if (current.count(id) > 0 && current[id].size() >= 6)
            return;
        for (const auto &[other, list] : PlainMap(current)) {
            if (other == id || contextOf(other) != contextOf(id))
                continue;
            for (const QString &held : list) {
                if (held.compare(shortcut, Qt::CaseInsensitive) == 0)
                    unassign(other, held);
            }
        }
        assign(id, shortcut);
    }

    void unassign(const CUI::ActionIdentifier &id, const QString &shortcut)
    {
        if (current.count(id) == 0)
            return;
        current[id].removeOne(shortcut);
        if (current[id].isEmpty())
            current.erase(id);
    }

    CUI::ActionIdentifier owner(const QString &shortcut, unsigned long context) const
    {
        for (const auto &[id, list] : current) {
            const CUI::VelAction *action = m_registry.getAction(id);
            if (action != nullptr && action->contextId() == context
                && list.contains(shortcut, Qt::CaseInsensitive))
                return id;
        }
        return {};
    }

    PlainMap current;
    PlainMap base;

private:
    unsigned long contextOf(const CUI::ActionIdentifier &id) const
    {
        return m_registry.getAction(id)->contextId();
    }

    const TestRegistry &m_registry;
};

inline PlainMap plain(const std::unordered_map<CUI::ActionIdentifier, CUI::QShortcutsList> &map)
{
    return PlainMap(map.begin(), map.end());
}

/// The rule of cancelling in its plain form: take the first step, scan the rest for its opposite.
inline void collapsePlainly(std::vector<CUI::ShortcutTransformation> &steps, std::size_t start)
{
    std::list<CUI::ShortcutTransformation> rest(steps.begin() + std::ptrdiff_t(start), steps.end());
    steps.resize(start);
    while (!rest.empty()) {
        const CUI::ShortcutTransformation step = rest.front();
        rest.pop_front();
        bool cancelled = false;
        for (auto it = rest.begin(); it != rest.end() && !cancelled;) {
            if (it->actionId() != step.actionId() || it->shortcut() != step.shortcut()) {
                ++it;
                continue;
            }
            cancelled = it->kind() != step.kind();
            it = rest.erase(it);
        }
        if (!cancelled)
            steps.push_back(step);
    }
}
