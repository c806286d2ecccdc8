#include "QvelActionItemModel.h"

#include "HotkeyDrag.h"
#include "ICuiActionManager.h"
#include "QvelActionItem.h"
#include "QvelShortcutManager.h"

#include <QPointer>
#include <QSignalBlocker>

namespace CUI {

namespace {

/// The item as a cell that shows an action, or null.
QvelActionItem *actionCell(QStandardItem *item)
{
    auto *cell = dynamic_cast<QvelActionItem *>(item);
    return cell != nullptr && cell->velAction() != nullptr ? cell : nullptr;
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
    void load(const ICuiActionManager &registry);
    void updateHotkeys(QvelActionItem &cell)
    {
        cell.setText(hotkeysOf(cell.record()->identifier()));
    }

    /// The cell of the first row that fulfils @p condition in that column, or null.
    template <typename Condition>
    QvelActionItem *findCell(int column, Condition condition) const
    {
        for (int row = 0; row < m_model.rowCount(); ++row) {
            QvelActionItem *cell = actionCell(m_model.item(row, column));
            if (cell != nullptr && condition(*cell))
                return cell;
        }
        return nullptr;
    }

    bool isLoading = false;

private:
    QString hotkeysOf(const ActionIdentifier &identifier) const
    {
        return m_manager.isNull() ? QString() : m_manager->getShortcutsFromActionId(identifier);
    }

    QvelActionItemModel &m_model;
    QPointer<QvelShortcutManager> m_manager;
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

void QvelActionItemModel::Private::load(const ICuiActionManager &registry)
{
    m_model.clear();
    m_model.setHorizontalHeaderLabels({tr("Action"), tr("Hotkey"), tr("Group"), tr("Category")});
    m_model.setRowCount(static_cast<int>(registry.actions().size()));
    int row = 0;
    for (const auto &[identifier, owner] : registry.actions()) {
        VelAction *action = owner.get();
        const VelActionContext *context = registry.getActionContext(action->contextId());
        if (context == nullptr)
            continue;
        const QString group = context->name();
        const QString category = action->category() == group ? QString() : action->category();
        auto *cell = new QvelActionItem(action->name(), action);
        m_model.setItem(row, ActionColumn, cell);
        m_model.setItem(row, HotkeyColumn, new QvelActionItem(hotkeysOf(identifier), *cell));
        m_model.setItem(row, GroupColumn, new QvelActionItem(group, *cell));
        m_model.setItem(row, CategoryColumn, new QvelActionItem(category, *cell));
        ++row;
    }
    m_model.setRowCount(row);
}

QvelActionItemModel::QvelActionItemModel(QvelShortcutManager *shortcutManager, QObject *parent)
    : QStandardItemModel(parent), d(std::make_unique<Private>(*this, shortcutManager))
{
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
    endResetModel();
}

void QvelActionItemModel::updateShortcut(const ActionIdentifier &identifier)
{
    if (d->isLoading)
        return;
    QvelActionItem *cell = itemFromVelAction(HotkeyColumn, identifier);
    if (cell == nullptr)
        return;
    const int row = cell->row();
    d->updateHotkeys(*cell);
    Q_EMIT dataChanged(index(row, ActionColumn), index(row, CategoryColumn));
}

void QvelActionItemModel::updateShortcuts()
{
    if (d->isLoading)
        return;
    for (int row = 0; row < rowCount(); ++row) {
        QvelActionItem *cell = actionCell(item(row, HotkeyColumn));
        if (cell != nullptr)
            d->updateHotkeys(*cell);
    }
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
    return d->findCell(column, [&identifier](const QvelActionItem &cell) {
        return cell.record()->identifier() == identifier;
    });
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
    if (hotkey.isEmpty())
        return nullptr;
    const QvelActionItem *cell = d->findCell(HotkeyColumn, [&](const QvelActionItem &candidate) {
        return candidate.record()->contextId() == contextId && !candidate.text().isEmpty()
               && candidate.text().split(QLatin1String(", ")).contains(hotkey, Qt::CaseInsensitive);
    });
    return cell == nullptr ? nullptr : cell->velAction();
}

QVariant QvelActionItemModel::data(const QModelIndex &index, int role) const
{
    return QStandardItemModel::data(index, role);
}

Qt::ItemFlags QvelActionItemModel::flags(const QModelIndex &index) const
{
    return QStandardItemModel::flags(index) & ~Qt::ItemIsEditable;
}

QStringList QvelActionItemModel::mimeTypes() const
{
    return {HotkeyDrag::actionType()};
}

QMimeData *QvelActionItemModel::mimeData(const QModelIndexList &indexes) const
{
    const VelAction *action = velActionFromModelIdx(indexes.value(0));
    return action != nullptr ? HotkeyDrag::ofAction(action->identifier()) : nullptr;
}

Qt::DropActions QvelActionItemModel::supportedDragActions() const
{
    return Qt::CopyAction; // a view removes what it has moved away
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
