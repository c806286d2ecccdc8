#pragma once

#include "ActionIdentifier.h"
#include "UiCustomizationsExport.h"

#include <QMetaType>
#include <QString>

#include <cstdint>

namespace CUI {

/// One recorded edit: a hotkey given to an action, or taken from it.
class CUI_CORE_EXPORT ShortcutTransformation
{
public:
    /// What was done with the hotkey.
    enum Kind : std::int32_t {
        Assign = 0, ///< it was given to the action
        Unassign = 1, ///< it was taken from the action
    };

    /// An assignment of nothing to no action; there so that the class can travel in a QVariant.
    ShortcutTransformation() = default;
    /// @p description is the action's display text at the time of the edit; it may be empty.
    ShortcutTransformation(Kind kind, const ActionIdentifier &actionId, const QString &shortcut,
                           const QString &description)
        : m_kind(kind), m_actionId(actionId), m_shortcut(shortcut), m_description(description)
    {
    }

    /// What was done.
    Kind kind() const { return m_kind; }
    /// The action that it was done to.
    const ActionIdentifier &actionId() const { return m_actionId; }
    /// One hotkey in portable text form.
    const QString &shortcut() const { return m_shortcut; }
    /// The action's display text at the time; may be empty.
    const QString &description() const { return m_description; }

    /// The step in words, the four words of it translated: Add 'Ctrl+E' to Export.
    QString toString() const;

private:
    Kind m_kind = Assign;
    ActionIdentifier m_actionId;
    QString m_shortcut;
    QString m_description;
};

} // namespace CUI

Q_DECLARE_METATYPE(CUI::ShortcutTransformation)
