#pragma once

#include "UiCustomizationsExport.h"
#include "VelAction.h"

#include <QStandardItem>
#include <QString>

#include <memory>

namespace CUI {

/// A cell of QvelActionItemModel: a standard item that knows the action its row shows.
///
/// All four items of a row carry the same action. The registry owns it: after the registry has
/// renamed, removed or replaced actions the pointer is stale until the model is loaded again. Text
/// and all roles are the standard item's, and so is the type of a clone.
class CUI_EXPORT QvelActionItem : public QStandardItem
{
public:
    /// A cell that shows @p text. @p action may be null; the cell then counts as one of no action.
    QvelActionItem(const QString &text, VelAction *action)
        : QStandardItem(text),
          m_action(action),
          m_record(action == nullptr ? nullptr : std::make_shared<const VelAction>(*action))
    {
    }
    /// Another cell of the row of @p other, whose action it shows.
    QvelActionItem(const QString &text, const QvelActionItem &other)
        : QStandardItem(text), m_action(other.m_action), m_record(other.m_record)
    {
    }
    ~QvelActionItem() override = default;

    /// The action that the row shows, or null.
    VelAction *velAction() const { return m_action; }

    /// The action as it was when its row was made, or null without an action. Stays valid when the
    /// registry drops the action.
    const VelAction *record() const { return m_record.get(); }

private:
    VelAction *m_action;
    std::shared_ptr<const VelAction> m_record;
};

} // namespace CUI
