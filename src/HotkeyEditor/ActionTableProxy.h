#pragma once

#include "QvelSortFilterProxyModel.h"

namespace CUI {

/// The rows of the editor's table: those of a changed action name its base hotkeys in their tool
/// tip and accessible description.
class ActionTableProxy : public QvelSortFilterProxyModel
{
public:
    /// Shows the rows of @p model. Both arguments must outlive the proxy.
    ActionTableProxy(QvelActionItemModel *model, QvelShortcutManager *manager, QObject *parent);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QString baseHotkeysText(const QModelIndex &index) const;

    const QvelActionItemModel *m_model;
    const QvelShortcutManager *m_manager;
};

} // namespace CUI
