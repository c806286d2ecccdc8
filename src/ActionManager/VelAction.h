#pragma once

#include "ActionIdentifier.h"

#include <QString>

namespace CUI {

/// The registry's record of one command of the host. It never changes once it is registered.
class VelAction
{
public:
    /// The arguments are what the functions of their names answer.
    VelAction(const ActionIdentifier &identifier, const QString &name, unsigned long contextId,
              const QString &category, bool momentary)
        : m_identifier(identifier),
          m_name(name),
          m_contextId(contextId),
          m_category(category),
          m_momentary(momentary)
    {
    }

    /// The action's key; equal to the key it is registered under.
    ActionIdentifier identifier() const { return m_identifier; }
    /// The display text.
    QString name() const { return m_name; }
    /// The id of the context the action belongs to; the context need not be registered.
    unsigned long contextId() const { return m_contextId; }
    /// The category's display text.
    QString category() const { return m_category; }
    /// True when the action is active only while its hotkey is held.
    bool momentary() const { return m_momentary; }

private:
    ActionIdentifier m_identifier;
    QString m_name;
    unsigned long m_contextId;
    QString m_category;
    bool m_momentary;
};

} // namespace CUI
