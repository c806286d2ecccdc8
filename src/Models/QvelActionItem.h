#pragma once

#include "UiCustomizationsExport.h"

#include <QStandardItem>
#include <QString>

namespace CUI {

class VelAction;

/// A cell of QvelActionItemModel: a standard item that knows the action its row shows.
///
/// All four items of a row carry the same action. The registry owns it: after the registry has
/// renamed, removed or replaced actions the pointer is stale until the model is loaded anew. Text
/// and all roles are the standard item's, and so is the type of a clone.
class CUI_EXPORT QvelActionItem : public QStandardItem
{
public:
    /// A cell that shows @p text. @p action may be null; the cell then counts as one of no action.
    QvelActionItem(const QString &text, VelAction *action) : QStandardItem(text), m_action(action)
    {
    }
    /// A cell with the data of @p other. The two share its memory until one of them changes.
    QvelActionItem(const QvelActionItem &other, VelAction *action)
        : QStandardItem(other), m_action(action)
    {
    }
    ~QvelActionItem() override = default;

    /// The action that the row shows, or null.
    VelAction *velAction() const { return m_action; }

private:
    VelAction *m_action;
};

} // namespace CUI
