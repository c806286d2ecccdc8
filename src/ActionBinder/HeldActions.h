#pragma once

#include "ActionIdentifier.h"

#include <QtGlobal>

#include <vector>

class QKeyEvent;

namespace CUI {

/// The momentary actions that are active because their keys are held.
class HeldActions
{
public:
    /// The key of the action was pressed. True when the action was not active before.
    bool press(const QKeyEvent &event, const ActionIdentifier &action);
    /// A key was released. Returns the action that is no longer active; the empty identifier when
    /// there is none.
    ActionIdentifier release(const QKeyEvent &event);
    /// The action is not active any more, whatever keys are held. False when it was not.
    bool remove(const ActionIdentifier &action);
    /// The first action that is active; the empty identifier when none is.
    ActionIdentifier first() const;

private:
    // A modifier can change the key code between press and release, but not the scan code, which
    // not every platform reports.
    struct Held {
        int key;
        quint32 scanCode;
        ActionIdentifier action;
    };

    bool isHeld(const ActionIdentifier &action) const;

    std::vector<Held> m_held;
};

} // namespace CUI
