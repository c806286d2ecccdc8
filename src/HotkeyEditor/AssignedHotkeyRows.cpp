#include "AssignedHotkeyRows.h"

#include "ActionListTreeItemDelegate.h"
#include "FocusWithin.h"
#include "JoinedHotkeys.h"
#include "QvelAssignedShortcutListItem.h"
#include "QvelAssignedShortcutsScrollArea.h"
#include "QvelShortcutManager.h"

#include <QFrame>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>

namespace CUI {

namespace {

const QLatin1String separatorName("line");

// The widget may be the one whose signal is being delivered, so it cannot be deleted at once.
void discard(QWidget *widget)
{
    widget->hide();
    widget->setParent(nullptr);
    widget->deleteLater();
}

QFrame *separatorOf(const QWidget *list)
{
    return list->findChild<QFrame *>(separatorName, Qt::FindDirectChildrenOnly);
}

} // namespace

AssignedHotkeyRows::AssignedHotkeyRows(QvelAssignedShortcutsScrollArea *scrollArea,
                                       QvelShortcutManager *manager,
                                       const ActionListTreeItemDelegate *colors, QObject *parent)
    : QObject(parent), m_scrollArea(scrollArea), m_manager(manager), m_colors(colors)
{
}

void AssignedHotkeyRows::show(const ActionIdentifier &action)
{
    clear();
    for (const QString &hotkey : JoinedHotkeys::split(m_manager->getShortcutsFromActionId(action)))
        addAssigned(action, hotkey);
}

void AssignedHotkeyRows::clear()
{
    QWidget *list = m_scrollArea->widget();
    takeFocusFrom(list);
    delete list->layout();
    for (QWidget *child : list->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        discard(child);
    auto *layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void AssignedHotkeyRows::addAssigned(const ActionIdentifier &action, const QString &hotkey)
{
    if (layout() == nullptr)
        return;
    remove(hotkey);
    removeSeparatorWithoutRows();
    auto *row = new QvelAssignedShortcutListItem(hotkey, true, m_scrollArea->widget());
    const QStringList base = JoinedHotkeys::split(m_manager->getBaseShortcutsFromActionId(action));
    const QColor color = m_colors->hotkeyColor(action, hotkey, base);
    if (color.isValid())
        row->setTextColor(color);
    insert(0, row, &AssignedHotkeyRows::removeClicked);
    m_scrollArea->updateGeometry();
}

void AssignedHotkeyRows::addRemoved(const QString &hotkey)
{
    remove(hotkey);
    addSeparator();
    auto *row = new QvelAssignedShortcutListItem(hotkey, false, m_scrollArea->widget());
    insert(layout()->count() - 1, row, &AssignedHotkeyRows::undoClicked);
}

void AssignedHotkeyRows::insert(int index, QvelAssignedShortcutListItem *row, Signal clicked)
{
    const QString hotkey = row->shortcut();
    connect(row->button(), &QPushButton::clicked, this,
            [this, hotkey, clicked] { emitKeepingFocus(hotkey, clicked); });
    layout()->insertWidget(index, row);
    row->show();
    chainTabOrder();
}

// A slot may destroy the editor.
void AssignedHotkeyRows::emitKeepingFocus(const QString &hotkey, Signal signal)
{
    const QPointer<AssignedHotkeyRows> self(this);
    const QvelAssignedShortcutListItem *clicked = rowOf(hotkey);
    const bool hadFocus = clicked != nullptr && hasFocusWithin(clicked);
    Q_EMIT(this->*signal)(hotkey);
    if (self.isNull() || !hadFocus)
        return;
    if (const QvelAssignedShortcutListItem *replacement = rowOf(hotkey))
        replacement->button()->setFocus(Qt::OtherFocusReason);
}

void AssignedHotkeyRows::remove(const QString &hotkey)
{
    for (QvelAssignedShortcutListItem *row : rows()) {
        if (row->shortcut() == hotkey) {
            takeFocusFrom(row);
            layout()->removeWidget(row);
            discard(row);
        }
    }
}

void AssignedHotkeyRows::addSeparator()
{
    QWidget *list = m_scrollArea->widget();
    if (separatorOf(list) != nullptr)
        return;
    auto *line = new QFrame(list);
    line->setObjectName(separatorName);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout()->insertWidget(layout()->count() - 1, line);
}

void AssignedHotkeyRows::removeSeparatorWithoutRows()
{
    QFrame *line = separatorOf(m_scrollArea->widget());
    if (line != nullptr && layout()->indexOf(line) == layout()->count() - 2) {
        layout()->removeWidget(line);
        discard(line);
    }
}

// A new widget is the last of its window in the tab order.
void AssignedHotkeyRows::chainTabOrder()
{
    QWidget *previous = m_scrollArea;
    for (int i = 0; i < layout()->count(); ++i) {
        const auto *row =
                qobject_cast<QvelAssignedShortcutListItem *>(layout()->itemAt(i)->widget());
        if (row != nullptr) {
            QWidget::setTabOrder(previous, row->button());
            previous = row->button();
        }
    }
}

// The toolkit would move the focus to the next widget, where the next key could remove another
// hotkey or choose another set.
void AssignedHotkeyRows::takeFocusFrom(const QWidget *widget)
{
    if (hasFocusWithin(widget))
        m_scrollArea->setFocus(Qt::OtherFocusReason);
}

bool AssignedHotkeyRows::isEmpty() const
{
    return layout()->count() < 2; // the spacer at the end
}

bool AssignedHotkeyRows::agreeWithStore(const ActionIdentifier &action) const
{
    QSet<QString> shown;
    for (const QvelAssignedShortcutListItem *row : rows()) {
        if (row->isAssigned())
            shown << row->shortcut();
    }
    const QStringList held = JoinedHotkeys::split(m_manager->getShortcutsFromActionId(action));
    return shown == QSet<QString>(held.begin(), held.end());
}

QVBoxLayout *AssignedHotkeyRows::layout() const
{
    return qobject_cast<QVBoxLayout *>(m_scrollArea->widget()->layout());
}

QList<QvelAssignedShortcutListItem *> AssignedHotkeyRows::rows() const
{
    return m_scrollArea->widget()->findChildren<QvelAssignedShortcutListItem *>(
            QString(), Qt::FindDirectChildrenOnly);
}

QvelAssignedShortcutListItem *AssignedHotkeyRows::rowOf(const QString &hotkey) const
{
    const auto all = rows();
    const auto found = std::find_if(all.begin(), all.end(), [&hotkey](const auto *row) {
        return row->shortcut() == hotkey;
    });
    return found != all.end() ? *found : nullptr;
}

} // namespace CUI
