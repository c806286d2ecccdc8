#include "QvelActionItemModel.h"

#include "ActionRowIndex.h"
#include "ICuiActionManager.h"
#include "QvelActionItem.h"
#include "QvelShortcutManager.h"

#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <vector>

namespace CUI {

namespace {

constexpr int columnsOfRow = QvelActionItemModel::CategoryColumn + 1;

/// The item as a cell that shows an action, or null.
QvelActionItem *actionCell(QStandardItem *item)
{
    auto *cell = dynamic_cast<QvelActionItem *>(item);
    return cell != nullptr && cell->velAction() != nullptr ? cell : nullptr;
}

/// The texts that many cells of a load have, each with the first of its cells: the others share its
/// memory.
class SharedTexts
{
public:
    struct Text {
        QString text;
        const QvelActionItem *cell = nullptr;
    };

    Text &empty() { return m_empty; }
    Text &ofGroup(const VelActionContext *context)
    {
        Text &text = m_groups[context];
        if (text.cell == nullptr)
            text.text = context->name();
        return text;
    }
    Text &ofCategory(const QString &category, const Text &group)
    {
        if (category.isEmpty() || category == group.text)
            return m_empty;
        Text &text = m_categories[category];
        if (text.cell == nullptr)
            text.text = category;
        return text;
    }

    static QvelActionItem *makeCell(Text &text, VelAction *action)
    {
        if (text.cell != nullptr)
            return new QvelActionItem(*text.cell, action);
        auto *cell = new QvelActionItem(text.text, action);
        text.cell = cell;
        return cell;
    }

private:
    Text m_empty;
    std::unordered_map<const VelActionContext *, Text> m_groups;
    std::unordered_map<QString, Text> m_categories;
};

/// What a row shows besides its name and hotkeys.
struct RowTexts {
    SharedTexts::Text *group;
    SharedTexts::Text *category;
};

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
    void readHotkeys();
    void makeCells(SharedTexts &texts, const std::vector<RowTexts> &rows);
    void noteReset();
    void noteChange(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void noteRow(int row, int firstColumn, int lastColumn);

    int indexRowOf(int row, const QvelActionItem &cell) const;
    bool shows(int row, const QvelActionItem &cell, const ActionIdentifier &identifier) const;
    unsigned long contextOf(int row, const QvelActionItem &cell) const;
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
    const auto &actions = registry.actions();
    m_model.clear();
    m_model.setHorizontalHeaderLabels({tr("Action"), tr("Hotkey"), tr("Group"), tr("Category")});
    m_model.setRowCount(static_cast<int>(actions.size()));
    m_index.clear();
    m_index.reserve(actions.size());
    SharedTexts texts;
    std::vector<RowTexts> rows;
    rows.reserve(actions.size());
    for (const auto &entry : actions) {
        VelAction *action = entry.second.get();
        const VelActionContext *context = registry.getActionContext(action->contextId());
        if (context == nullptr)
            continue;
        m_model.setItem(m_index.rowCount(), ActionColumn,
                        new QvelActionItem(action->name(), action));
        m_index.append(action);
        SharedTexts::Text &group = texts.ofGroup(context);
        rows.push_back({&group, &texts.ofCategory(action->category(), group)});
    }
    m_model.setRowCount(m_index.rowCount());
    readHotkeys();
    makeCells(texts, rows);
    m_isIndexTrue = true;
}

/// Makes the cells of the other columns, one column after the other. Views and sorts walk along one
/// column: cells that lie side by side in memory make such a walk twice as fast.
void QvelActionItemModel::Private::makeCells(SharedTexts &texts, const std::vector<RowTexts> &rows)
{
    const int count = m_index.rowCount();
    for (int i = 0; i < count; ++i) {
        const ActionRowIndex::Row &row = m_index.row(i);
        m_model.setItem(i, HotkeyColumn,
                        row.hotkeys.isEmpty() ? SharedTexts::makeCell(texts.empty(), row.action)
                                              : new QvelActionItem(row.hotkeys, row.action));
    }
    const auto shown = [&rows](int row) { return rows[static_cast<std::size_t>(row)]; };
    for (int i = 0; i < count; ++i)
        m_model.setItem(i, GroupColumn,
                        SharedTexts::makeCell(*shown(i).group, m_index.row(i).action));
    for (int i = 0; i < count; ++i)
        m_model.setItem(i, CategoryColumn,
                        SharedTexts::makeCell(*shown(i).category, m_index.row(i).action));
}

void QvelActionItemModel::Private::readHotkeys()
{
    if (m_manager.isNull())
        return;
    // From the store's side: fewer actions have hotkeys than not.
    const auto &shortcuts = m_manager->getShortcuts();
    std::vector<const ActionIdentifier *> identifiers;
    std::vector<const QShortcutsList *> lists;
    identifiers.reserve(shortcuts.size());
    lists.reserve(shortcuts.size());
    for (const auto &[identifier, list] : shortcuts) {
        identifiers.push_back(&identifier);
        lists.push_back(&list);
    }
    const std::vector<int> rows = m_index.rowsOfActions(identifiers);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] >= 0) // most lists hold one hotkey
            m_index.setHotkeys(rows[i], lists[i]->size() == 1 ? lists[i]->first()
                                                              : hotkeysOf(*identifiers[i]));
    }
}

void QvelActionItemModel::Private::updateHotkeys(int row)
{
    QvelActionItem *cell = cellAt(row, HotkeyColumn);
    if (cell == nullptr)
        return;
    const int known = indexRowOf(row, *cell);
    const QString hotkeys =
            hotkeysOf(known < 0 ? cell->velAction()->identifier() : m_index.row(known).identifier);
    if (known >= 0 && m_isIndexTrue)
        m_index.setHotkeys(known, hotkeys); // the signals that tell it may be blocked
    cell->setText(hotkeys);
}

/// The row of the index that knows the action of a cell, or -1. The registry may have dropped the
/// action since it was loaded; then the index is all that can tell. @p row is that of the cell.
int QvelActionItemModel::Private::indexRowOf(int row, const QvelActionItem &cell) const
{
    const bool isInPlace = row < m_index.rowCount() && m_index.row(row).action == cell.velAction();
    return isInPlace ? row : m_index.rowOfRecord(cell.velAction());
}

bool QvelActionItemModel::Private::shows(int row, const QvelActionItem &cell,
                                         const ActionIdentifier &identifier) const
{
    const int known = indexRowOf(row, cell);
    return known < 0 ? cell.velAction()->identifier() == identifier
                     : m_index.row(known).identifier == identifier;
}

unsigned long QvelActionItemModel::Private::contextOf(int row, const QvelActionItem &cell) const
{
    const int known = indexRowOf(row, cell);
    return known < 0 ? cell.velAction()->contextId() : m_index.row(known).contextId;
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
        if (cell != nullptr && shows(row, *cell, identifier))
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
        if (cell != nullptr && contextOf(row, *cell) == contextId && lists(cell->text(), hotkey))
            return cell->velAction();
    }
    return nullptr;
}

void QvelActionItemModel::Private::noteReset()
{
    m_isIndexTrue = isOwnReset;
    if (!isOwnReset)
        m_index.clear(); // nothing that was loaded is left
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
