#include "SourceRows.h"

#include "QvelActionItem.h"
#include "QvelActionItemModel.h"
#include "SearchPattern.h"
#include "VelAction.h"

#include <QStandardItemModel>

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace CUI {

namespace {

constexpr int unread = -1;

// A cell that may have changed remembers its old number, for most often the text is the same.
constexpr int stale(int number)
{
    return -2 - number;
}

const VelAction *actionOf(const QStandardItem *item)
{
    const auto *cell = dynamic_cast<const QvelActionItem *>(item);
    return cell == nullptr ? nullptr : cell->velAction();
}

ActionRow read(const QStandardItem *hotkeyItem)
{
    ActionRow row;
    row.hotkeyItem = hotkeyItem;
    row.action = actionOf(hotkeyItem);
    if (row.action != nullptr) {
        row.identifier = row.action->identifier();
        row.contextId = row.action->contextId();
        row.name = row.action->name();
        row.foldedName = FoldedText(row.name);
        row.category = row.action->category();
    }
    return row;
}

/// Texts that no row shows any longer are dropped when there are too many of them.
void dropUnused(SourceColumn &column)
{
    constexpr int allowance = 1024;
    if (column.texts.size() <= 2 * static_cast<int>(column.numbers.size()) + allowance)
        return;
    column.texts.clear();
    std::fill(column.numbers.begin(), column.numbers.end(), unread);
    ++column.generation;
}

} // namespace

const FoldedText &ActionRow::foldedHotkeys(const QString &text)
{
    if (m_hotkeys != text) {
        m_hotkeys = text;
        m_foldedHotkeys = FoldedText(SearchPattern::withoutSeparators(text));
    }
    return m_foldedHotkeys;
}

void SourceRows::setModel(const QAbstractItemModel *model)
{
    m_model = model;
    m_items = qobject_cast<const QStandardItemModel *>(model);
    m_receiver = std::make_unique<QObject>();
    for (const auto &column : m_columns)
        column->isText = true;
    readRows();
    if (m_items != nullptr)
        connectTo(*model);
}

void SourceRows::connectTo(const QAbstractItemModel &model)
{
    const auto arrange = [this] { arrangeRows(); };
    QObject *receiver = m_receiver.get();
    QObject::connect(&model, &QAbstractItemModel::modelReset, receiver, [this] { readRows(); });
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, receiver,
                     [this](const QModelIndex &parent, int first, int last) {
                         if (!parent.isValid())
                             noteInsertion(first, last);
                     });
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, receiver,
                     [this](const QModelIndex &parent, int first, int last) {
                         if (!parent.isValid())
                             noteRemoval(first, last);
                     });
    QObject::connect(&model, &QAbstractItemModel::rowsMoved, receiver, arrange);
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, receiver, arrange);
    QObject::connect(&model, &QAbstractItemModel::columnsInserted, receiver, arrange);
    QObject::connect(&model, &QAbstractItemModel::columnsRemoved, receiver, arrange);
    QObject::connect(&model, &QAbstractItemModel::columnsMoved, receiver, arrange);
    QObject::connect(&model, &QAbstractItemModel::dataChanged, receiver,
                     [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                         noteChange(topLeft, bottomRight);
                     });
    QObject::connect(&model, &QObject::destroyed, receiver, [this] {
        m_model = nullptr;
        m_items = nullptr;
        readRows();
    });
}

void SourceRows::noteChange(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    if (!topLeft.isValid() || topLeft.parent().isValid())
        return;
    const int hotkeys = QvelActionItemModel::HotkeyColumn;
    const bool isOfHotkeys = topLeft.column() <= hotkeys && hotkeys <= bottomRight.column();
    // The range may end below the last row.
    const int last = std::min(bottomRight.row(), m_rowCount - 1);
    for (int row = topLeft.row(); row <= last; ++row) {
        if (isOfHotkeys)
            checkRow(row);
        forgetNumbers(row, topLeft.column(), bottomRight.column());
    }
    for (const auto &column : m_columns)
        dropUnused(*column);
}

const QStandardItem *SourceRows::hotkeyItem(int row, const QModelIndex &parent) const
{
    if (m_items == nullptr)
        return nullptr;
    const QStandardItem *parentItem =
            parent.isValid() ? m_items->itemFromIndex(parent) : m_items->invisibleRootItem();
    return parentItem == nullptr ? nullptr
                                 : parentItem->child(row, QvelActionItemModel::HotkeyColumn);
}

ActionRow &SourceRows::row(int number, const QModelIndex &parent, const QStandardItem *hotkeyItem)
{
    const bool isKept = !parent.isValid() && number < m_rowCount;
    ActionRow &row = isKept ? m_rows[static_cast<std::size_t>(number)] : m_looseRow;
    if (!isKept || hotkeyItem == nullptr || row.hotkeyItem != hotkeyItem)
        row = read(hotkeyItem);
    return row;
}

SourceColumn &SourceRows::addColumn(int number)
{
    while (static_cast<int>(m_columns.size()) <= number)
        m_columns.push_back(std::make_unique<SourceColumn>());
    return *m_columns.back();
}

int SourceRows::readCell(const QModelIndex &index, int column)
{
    SourceColumn &texts = this->column(column);
    const QVariant value = index.data();
    if (!covers(index) || index.column() != column)
        return addText(texts, value);
    if (texts.numbers.empty())
        texts.numbers.assign(m_rows.size(), unread);
    int &number = texts.numbers[static_cast<std::size_t>(index.row())];
    const bool isSame = number < unread && value.userType() == QMetaType::QString
                        && value.toString() == texts.texts.text(stale(number));
    number = isSame ? stale(number) : addText(texts, value);
    return number;
}

void SourceRows::readColumn(int number)
{
    for (int row = 0; row < m_rowCount; ++row)
        textNumber(m_model->index(row, number), number);
}

int SourceRows::addText(SourceColumn &column, const QVariant &value)
{
    const QString text = value.toString();
    column.isText = column.isText && (text.isEmpty() || value.userType() == QMetaType::QString);
    return column.texts.add(text);
}

// The rows. The registry may have dropped the action of any row that was read before.

void SourceRows::readRows()
{
    m_rows.clear();
    arrangeRows();
}

void SourceRows::noteInsertion(int first, int last)
{
    const int count = last - first + 1;
    if (m_rowCount + count != m_items->rowCount()) {
        arrangeRows(); // a receiver of the same signal has changed the model again
        return;
    }
    forgetNumbers();
    m_rows.insert(m_rows.begin() + first, static_cast<std::size_t>(count), ActionRow());
    noteRowCount();
    for (int row = first; row <= last; ++row)
        checkRow(row);
}

void SourceRows::noteRemoval(int first, int last)
{
    if (m_rowCount - (last - first + 1) != m_items->rowCount()) {
        arrangeRows();
        return;
    }
    forgetNumbers();
    m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
    noteRowCount();
}

/// The rows stand in another order, or other items are in the hotkey column.
void SourceRows::arrangeRows()
{
    forgetNumbers();
    std::unordered_map<const QStandardItem *, ActionRow> known;
    for (ActionRow &row : m_rows)
        known.emplace(row.hotkeyItem, std::move(row));
    const int count = m_items == nullptr ? 0 : m_items->rowCount();
    m_rows.assign(static_cast<std::size_t>(count), ActionRow());
    noteRowCount();
    for (int row = 0; row < m_rowCount; ++row) {
        const auto found = known.find(hotkeyItem(row, QModelIndex()));
        if (found != known.end())
            m_rows[static_cast<std::size_t>(row)] = std::move(found->second);
        checkRow(row);
    }
}

void SourceRows::checkRow(int row)
{
    ActionRow &known = m_rows[static_cast<std::size_t>(row)];
    const QStandardItem *item = hotkeyItem(row, QModelIndex());
    if (item != known.hotkeyItem || actionOf(item) != known.action)
        known = read(item);
}

void SourceRows::noteRowCount()
{
    m_rowCount = static_cast<int>(m_rows.size());
    m_topLevel = m_rowCount == 0 ? nullptr : m_items->index(0, 0).internalPointer();
}

// The numbers of the texts

void SourceRows::forgetNumbers()
{
    for (const auto &column : m_columns) {
        dropUnused(*column);
        column->numbers.clear();
    }
}

void SourceRows::forgetNumbers(int row, int firstColumn, int lastColumn)
{
    const int last = std::min(lastColumn, static_cast<int>(m_columns.size()) - 1);
    for (int column = firstColumn; column <= last; ++column) {
        std::vector<int> &numbers = m_columns[static_cast<std::size_t>(column)]->numbers;
        if (numbers.empty())
            continue;
        int &number = numbers[static_cast<std::size_t>(row)];
        if (number >= 0)
            number = stale(number);
    }
}

} // namespace CUI
