#pragma once

#include <UiCustomizations/ActionIdentifier.h>

#include <QHash>

#include <functional>
#include <vector>

namespace Studio {

/// What the application can do, by action.
class ActionTable
{
public:
    using Perform = std::function<void()>;
    using Hold = std::function<void(bool)>;
    enum class Repeat { No, Yes };

    /// @p id is the text of an identifier. With Repeat::Yes a held key performs it again and again.
    void add(const char *id, Perform perform, Repeat repeat = Repeat::No)
    {
        m_entries.insert(QString::fromLatin1(id), {std::move(perform), nullptr, repeat});
    }
    /// One that is active while its key is held.
    void addHeld(const char *id, Hold hold)
    {
        m_entries.insert(QString::fromLatin1(id), {nullptr, std::move(hold), Repeat::No});
    }

    /// False when the application cannot do it.
    bool perform(const CUI::ActionIdentifier &action) const
    {
        const Entry entry = m_entries.value(action.toString());
        if (entry.perform)
            entry.perform();
        return static_cast<bool>(entry.perform);
    }
    bool hold(const CUI::ActionIdentifier &action, bool held) const
    {
        const Entry entry = m_entries.value(action.toString());
        if (entry.hold)
            entry.hold(held);
        return static_cast<bool>(entry.hold);
    }
    /// The actions that a held key performs again and again.
    std::vector<CUI::ActionIdentifier> repeating() const
    {
        std::vector<CUI::ActionIdentifier> actions;
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
            if (entry->repeat == Repeat::Yes)
                actions.push_back(CUI::ActionIdentifier::fromString(entry.key()));
        }
        return actions;
    }
    int size() const { return m_entries.size(); }

private:
    struct Entry {
        Perform perform;
        Hold hold;
        Repeat repeat = Repeat::No;
    };

    QHash<QString, Entry> m_entries;
};

} // namespace Studio
