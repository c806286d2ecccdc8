#pragma once

#include "HotkeyChange.h"
#include "QvelShortcutManager.h"
#include "RecordedSteps.h"

#include <QPointer>

#include <unordered_map>
#include <vector>

namespace CUI {

struct HotkeyChange::Data {
    struct Hotkeys {
        ActionIdentifier action;
        QShortcutsList before;
        QShortcutsList after;
    };

    Kind kind = Kind::Upkeep;
    QString text;
    std::vector<Hotkeys> hotkeys; ///< of the actions whose hotkeys changed
    RecordedSteps::Difference steps;
    bool isModifiedBefore = false;
    bool isModifiedAfter = false;
};

/// What the store remembers from the begin to the end of a change.
struct QvelShortcutManager::ChangeRecord {
    int depth = 0;
    HotkeyChange::Kind kind = HotkeyChange::Kind::Upkeep;
    bool isWanted = false; ///< somebody listens
    bool hasRecorded = false; ///< a step, whether or not it was cancelled
    QString groupText;
    QString stepText;
    RecordedSteps steps;
    bool isModified = false;
    std::unordered_map<ActionIdentifier, QShortcutsList> hotkeys;
};

/// All that the store does while it lives is one change.
class QvelShortcutManager::ChangeScope
{
    Q_DISABLE_COPY(ChangeScope)

public:
    ChangeScope(QvelShortcutManager *store, HotkeyChange::Kind kind) : m_store(store)
    {
        store->beginChange(kind);
    }
    ~ChangeScope()
    {
        if (!m_store.isNull()) // a slot can have destroyed it
            m_store->endChange();
    }

private:
    QPointer<QvelShortcutManager> m_store;
};

} // namespace CUI
