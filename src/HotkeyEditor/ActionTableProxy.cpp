#include "ActionTableProxy.h"

#include "EditorText.h"
#include "JoinedHotkeys.h"
#include "QvelShortcutManager.h"
#include "VelAction.h"

#include <algorithm>

namespace CUI {

ActionTableProxy::ActionTableProxy(QvelActionItemModel *model, QvelShortcutManager *manager,
                                   QObject *parent)
    : QvelSortFilterProxyModel(manager, parent), m_model(model), m_manager(manager)
{
    setSourceModel(model);
}

QVariant ActionTableProxy::data(const QModelIndex &index, int role) const
{
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole)
        return baseHotkeysText(index);
    return QvelSortFilterProxyModel::data(index, role);
}

QString ActionTableProxy::baseHotkeysText(const QModelIndex &index) const
{
    const VelAction *action = m_model->velActionFromModelIdx(mapToSource(index));
    if (action == nullptr)
        return QString();
    const QString hotkeys = m_manager->getShortcutsFromActionId(action->identifier());
    const QString base = m_manager->getBaseShortcutsFromActionId(action->identifier());
    const QStringList held = JoinedHotkeys::split(hotkeys);
    const QStringList defaults = JoinedHotkeys::split(base);
    if (std::is_permutation(held.begin(), held.end(), defaults.begin(), defaults.end()))
        return QString();
    return base.isEmpty()
                   ? editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Default: none"))
                   : editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Default: %1")).arg(base);
}

} // namespace CUI
