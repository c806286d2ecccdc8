#include "QvelActionItemModel.h"

#include "ActionRowIndex.h"
#include "ICuiActionManager.h"
#include "QvelActionItem.h"
#include "QvelShortcutManager.h"

#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>

namespace CUI {

namespace {

constexpr int columnsOfRow = QvelActionItemModel::CategoryColumn + 1;

/// The item as a cell that shows an action, or null.
QvelActionItem *actionCell(QStandardItem *item)
{
    auto *cell = dynamic_cast<QvelActionItem *>(item);
    return cell != nullptr && cell->velAction() != nullptr ? cell : nullptr;
}

bool lists(const QString &hotkeys, const QString &hotkey)
{
    return !hotkeys.isEmpty()
           && hotkeys.split(QLatin1String(", ")).contains(hotkey, Qt::CaseInsensitive);
}

} // namespace

class QvelActionItemModel::Private
{
public:
    Private(QvelActionItemModel &model, QvelShortcutManager *manager)
        : m_model(model), m_manager(manager)
    {
    }

    void followManager();
    void followRows();
    void load(const ICuiActionManager &registry);
    void updateHotkeys(int row);

    QString hotkeysOf(const ActionIdentifier &identifier) const
    {
        return m_manager.isNull() ? QString() : m_manager->getShortcutsFromActionId(identifier);
    }

    QvelActionItem *cellAt(int row, int column) const
    {
        return actionCell(m_model.item(row, column));
    }

    /// The first row whose cell in that column shows the action, or -1.
    int rowOf(int column, const ActionIdentifier &identifier) const;
    VelAction *holderOf(const QString &hotkey, unsigned long contextId) const;

    bool isLoading = false;
    bool isOwnReset = false; // the next modelReset() ends a load

private:
    void appendRow(VelAction *action, const QString &contextName);
    void noteReset();
    void noteChange(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void noteRow(int row, int firstColumn, int lastColumn);

    int searchRow(int column, const ActionIdentifier &identifier) const;
    VelAction *searchHolder(const QString &hotkey, unsigned long contextId) const;

    QvelActionItemModel &m_model;
    QPointer<QvelShortcutManager> m_manager;
    ActionRowIndex m_index;
    // The index is no guide to rows that somebody else has moved; a load makes it one again.
    bool m_isIndexTrue = false;
};

void QvelActionItemModel::Private::followManager()
{
    if (m_manager.isNull())
        return;
    const QvelShortcutManager *manager = m_manager;
    connect(manager, &QvelShortcutManager::shortcutAssigned, &m_model,
            &QvelActionItemModel::updateShortcut);
    connect(manager, &QvelShortcutManager::shortcutUnassigned, &m_model,
            &QvelActionItemModel::updateShortcut);
    connect(manager, &QvelShortcutManager::shortcutsCleared, &m_model,
            &QvelActionItemModel::updateShortcuts);
    connect(manager, &QvelShortcutManager::shortcutTransformsCleared, &m_model,
            &QvelActionItemModel::updateShortcuts);
    connect(manager, &QvelShortcutManager::shortcutConfigurationAboutToLoad, &m_model,
            &QvelActionItemModel::shortcutFileAboutToLoad);
    connect(manager, &QvelShortcutManager::shortcutConfigurationLoaded, &m_model,
            &QvelActionItemModel::shortcutFileLoaded);
}

void QvelActionItemModel::Private::followRows()
{
    const auto distrust = [this] { m_isIndexTrue = false; };
    connect(&m_model, &QAbstractItemModel::modelReset, &m_model, [this] { noteReset(); });
    connect(&m_model, &QAbstractItemModel::layoutChanged, &m_model, distrust);
    connect(&m_model, &QAbstractItemModel::rowsInserted, &m_model, distrust);
    connect(&m_model, &QAbstractItemModel::rowsRemoved, &m_model, distrust);
    connect(&m_model, &QAbstractItemModel::rowsMoved, &m_model, distrust);
    connect(&m_model, &QAbstractItemModel::columnsInserted, &m_model, distrust);
    connect(&m_model, &QAbstractItemModel::columnsRemoved, &m_model, distrust);
    connect(&m_model, &QAbstractItemModel::columnsMoved, &m_model, distrust);
    connect(&m_model, &QAbstractItemModel::dataChanged, &m_model,
            [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                noteChange(topLeft, bottomRight);
            });
}

void QvelActionItemModel::Private::load(const ICuiActionManager &registry)
{
    m_model.clear();
    m_model.setHorizontalHeaderLabels({tr("Action"), tr("Hotkey"), tr("Group"), tr("Category")});
    m_index.clear();
    for (const auto &entry : registry.actions()) {
        VelAction *action = entry.second.get();
        const VelActionContext *context = registry.getActionContext(action->contextId());
        if (context != nullptr)
            appendRow(action, context->name());
    }
    m_isIndexTrue = true;
}

void QvelActionItemModel::Private::appendRow(VelAction *action, const QString &contextName)
{
    const QString hotkeys = hotkeysOf(action->identifier());
    const QString category = action->category();
    m_model.appendRow({new QvelActionItem(action->name(), action),
                       new QvelActionItem(hotkeys, action), new QvelActionItem(contextName, action),
                       new QvelActionItem(category == contextName ? QString() : category, action)});
    m_index.append(action, hotkeys);
}

void QvelActionItemModel::Private::updateHotkeys(int row)
{
    QvelActionItem *cell = cellAt(row, HotkeyColumn);
    if (cell == nullptr)
        return;
    // The registry may have dropped the action since it was loaded.
    const bool isKnown = row < m_index.rowCount() && m_index.row(row).action == cell->velAction();
    cell->setText(
            hotkeysOf(isKnown ? m_index.row(row).identifier : cell->velAction()->identifier()));
}

int QvelActionItemModel::Private::rowOf(int column, const ActionIdentifier &identifier) const
{
    if (!m_isIndexTrue)
        return searchRow(column, identifier);
    const int row = m_index.rowOfAction(identifier);
    if (row < 0)
        return -1;
    const QvelActionItem *cell = cellAt(row, column);
    const bool isShown = cell != nullptr && cell->velAction() == m_index.row(row).action;
    return isShown ? row : searchRow(column, identifier);
}

int QvelActionItemModel::Private::searchRow(int column, const ActionIdentifier &identifier) const
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QvelActionItem *cell = cellAt(row, column);
        if (cell != nullptr && cell->velAction()->identifier() == identifier)
            return row;
    }
    return -1;
}

VelAction *QvelActionItemModel::Private::holderOf(const QString &hotkey,
                                                  unsigned long contextId) const
{
    if (!m_isIndexTrue)
        return searchHolder(hotkey, contextId);
    const int row = m_index.rowOfHotkey(hotkey, contextId);
    if (row < 0)
        return nullptr;
    const QvelActionItem *cell = cellAt(row, HotkeyColumn);
    const bool isHolder = cell != nullptr && cell->velAction() == m_index.row(row).action
                          && lists(cell->text(), hotkey);
    return isHolder ? cell->velAction() : searchHolder(hotkey, contextId);
}

VelAction *QvelActionItemModel::Private::searchHolder(const QString &hotkey,
                                                      unsigned long contextId) const
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QvelActionItem *cell = cellAt(row, HotkeyColumn);
        if (cell != nullptr && cell->velAction()->contextId() == contextId
            && lists(cell->text(), hotkey))
            return cell->velAction();
    }
    return nullptr;
}

void QvelActionItemModel::Private::noteReset()
{
    m_isIndexTrue = isOwnReset;
    isOwnReset = false;
}

void QvelActionItemModel::Private::noteChange(const QModelIndex &topLeft,
                                              const QModelIndex &bottomRight)
{
    if (!m_isIndexTrue || !topLeft.isValid() || topLeft.parent().isValid())
        return;
    // The range may end below the last row.
    const int last = std::min(bottomRight.row(), m_index.rowCount() - 1);
    for (int row = topLeft.row(); row <= last; ++row)
        noteRow(row, topLeft.column(), bottomRight.column());
}

void QvelActionItemModel::Private::noteRow(int row, int firstColumn, int lastColumn)
{
    for (int column = firstColumn; column <= std::min(lastColumn, columnsOfRow - 1); ++column) {
        const QvelActionItem *cell = cellAt(row, column);
        if (cell == nullptr || cell->velAction() != m_index.row(row).action)
            m_isIndexTrue = false;
        else if (column == HotkeyColumn)
            m_index.setHotkeys(row, cell->text());
    }
}

QvelActionItemModel::QvelActionItemModel(QvelShortcutManager *shortcutManager, QObject *parent)
    : QStandardItemModel(parent), d(std::make_unique<Private>(*this, shortcutManager))
{
    d->followRows();
    d->followManager();
    loadActionsToModel();
}

QvelActionItemModel::~QvelActionItemModel() = default;

void QvelActionItemModel::loadActionsToModel()
{
    ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return;
    const QSignalBlocker registryBlocker(registry);
    beginResetModel();
    {
        // Clearing is a reset of its own and every row an insertion: receivers see one reset.
        const QSignalBlocker blocker(this);
        d->load(*registry);
    }
    d->isOwnReset = true;
    endResetModel();
    d->isOwnReset = false;
}

void QvelActionItemModel::updateShortcut(const ActionIdentifier &identifier)
{
    if (d->isLoading)
        return;
    const int row = d->rowOf(HotkeyColumn, identifier);
    if (row < 0)
        return;
    d->updateHotkeys(row);
    Q_EMIT dataChanged(index(row, ActionColumn), index(row, CategoryColumn));
}

void QvelActionItemModel::updateShortcuts()
{
    if (d->isLoading)
        return;
    for (int row = 0; row < rowCount(); ++row)
        d->updateHotkeys(row);
}

void QvelActionItemModel::invalidateAllRows()
{
    // index() makes none for a row that is not there.
    Q_EMIT dataChanged(createIndex(0, ActionColumn, invisibleRootItem()),
                       createIndex(rowCount(), CategoryColumn, invisibleRootItem()));
}

QvelActionItem *QvelActionItemModel::itemFromVelAction(int column,
                                                       const ActionIdentifier &identifier) const
{
    const int row = d->rowOf(column, identifier);
    return row < 0 ? nullptr : d->cellAt(row, column);
}

VelAction *QvelActionItemModel::velActionFromModelIdx(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != this)
        return nullptr;
    // itemFromIndex() of the index itself would make an item where there is none.
    const QModelIndex parentIndex = index.parent();
    const QStandardItem *parentItem =
            parentIndex.isValid() ? itemFromIndex(parentIndex) : invisibleRootItem();
    const QvelActionItem *cell = actionCell(parentItem->child(index.row(), index.column()));
    return cell == nullptr ? nullptr : cell->velAction();
}

VelAction *QvelActionItemModel::velActionFromShortcut(const QString &hotkey,
                                                      unsigned long contextId) const
{
    return hotkey.isEmpty() ? nullptr : d->holderOf(hotkey, contextId);
}

QVariant QvelActionItemModel::data(const QModelIndex &index, int role) const
{
    return QStandardItemModel::data(index, role);
}

Qt::ItemFlags QvelActionItemModel::flags(const QModelIndex &index) const
{
    return QStandardItemModel::flags(index) & ~Qt::ItemIsEditable;
}

void QvelActionItemModel::shortcutFileAboutToLoad()
{
    d->isLoading = true;
}

void QvelActionItemModel::shortcutFileLoaded()
{
    d->isLoading = false;
    updateShortcuts();
}

} // namespace CUI
