#include "ActionListTreeItemDelegate.h"

#include "JoinedHotkeys.h"
#include "QvelActionItemModel.h"
#include "QvelShortcutManager.h"
#include "VelAction.h"

#include <QApplication>
#include <QPainter>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace CUI {

namespace {

constexpr int demiBold = QFont::DemiBold;

const VelAction *actionAt(const QModelIndex &index)
{
    const auto *proxy = qobject_cast<const QAbstractProxyModel *>(index.model());
    const QModelIndex source = proxy != nullptr ? proxy->mapToSource(index) : index;
    const auto *model = qobject_cast<const QvelActionItemModel *>(source.model());
    return model != nullptr ? model->velActionFromModelIdx(source) : nullptr;
}

QColor textColor(const QStyleOptionViewItem &option)
{
    QPalette::ColorGroup group = QPalette::Disabled;
    if ((option.state & QStyle::State_Enabled) != 0)
        group = (option.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    return option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

ActionListTreeItemDelegate::ActionListTreeItemDelegate(QTreeView *tree,
                                                       QvelShortcutManager *manager)
    : QStyledItemDelegate(tree), m_tree(tree), m_manager(manager)
{
}

void ActionListTreeItemDelegate::setUserModifiedColor(const QColor &color)
{
    m_userModifiedColor = color;
    m_tree->viewport()->update();
}

void ActionListTreeItemDelegate::setTransformColor(const QColor &color)
{
    m_transformColor = color;
    m_tree->viewport()->update();
}

QColor ActionListTreeItemDelegate::hotkeyColor(const ActionIdentifier &action,
                                               const QString &shortcut,
                                               const QStringList &baseShortcuts) const
{
    if (m_manager->isUserModifiedShortcut(action, shortcut))
        return m_userModifiedColor;
    return baseShortcuts.contains(shortcut) ? QColor() : m_transformColor;
}

void ActionListTreeItemDelegate::initStyleOption(QStyleOptionViewItem *option,
                                                 const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() != QvelActionItemModel::ActionColumn)
        return;
    const VelAction *action = actionAt(index);
    if (action != nullptr && action->momentary())
        option->font.setWeight(demiBold);
}

void ActionListTreeItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    const VelAction *action =
            index.column() == QvelActionItemModel::HotkeyColumn ? actionAt(index) : nullptr;
    if (action == nullptr) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem full = option;
    initStyleOption(&full, index);
    const QStyle *style = full.widget != nullptr ? full.widget->style() : QApplication::style();
    full.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &full, painter, full.widget);
    paintHotkeys(painter, full, *action);
}

void ActionListTreeItemDelegate::paintHotkeys(QPainter *painter, const QStyleOptionViewItem &option,
                                              const VelAction &action) const
{
    const ActionIdentifier id = action.identifier();
    const QString shortcuts = m_manager->getShortcutsFromActionId(id);
    if (shortcuts.isEmpty())
        return;
    const QStringList base = JoinedHotkeys::split(m_manager->getBaseShortcutsFromActionId(id));
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const QColor plain = textColor(option);
    const QStyle *style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    QRect rest = option.rect.adjusted(margin, 0, -margin, 0);

    painter->save();
    painter->setFont(option.font);
    painter->setClipRect(option.rect, Qt::IntersectClip);
    bool isFirst = true;
    for (const QString &shortcut : JoinedHotkeys::split(shortcuts)) {
        QString text = shortcut;
        if (!isFirst)
            text.prepend(JoinedHotkeys::separator);
        isFirst = false;
        // On the highlight, only its own colour is sure to be readable.
        const QColor color = isSelected ? QColor() : hotkeyColor(id, shortcut, base);
        painter->setPen(color.isValid() ? color : plain);
        const QString shown = option.fontMetrics.elidedText(text, Qt::ElideRight, rest.width());
        painter->drawText(rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        rest.setLeft(rest.left() + option.fontMetrics.horizontalAdvance(text));
        if (shown != text)
            break;
    }
    painter->restore();
}

} // namespace CUI
