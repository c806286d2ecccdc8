#include "SourceRows.h"

#include "QvelActionItem.h"
#include "QvelActionItemModel.h"
#include "SearchPattern.h"
#include "VelAction.h"

#include <QStandardItemModel>

#include <algorithm>

namespace CUI {

namespace {

constexpr int unread = -1;

// A cell that may have changed remembers its old number, for most often the text is the same.
constexpr int stale(int number)
{
    return -2 - number;
}

ActionRow read(const QStandardItem *hotkeyItem)
{
    ActionRow row;
    row.hotkeyItem = hotkeyItem;
    const auto *cell = dynamic_cast<const QvelActionItem *>(hotkeyItem);
    if (cell != nullptr && cell->velAction() != nullptr) {
        row.action = cell->velAction();
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
    forgetRows();
    m_model = model;
    m_items = qobject_cast<const QStandardItemModel *>(model);
    m_receiver = std::make_unique<QObject>();
    for (const auto &column : m_columns)
        column->isText = true;
    if (m_items != nullptr)
        connectTo(*model);
}

void SourceRows::connectTo(const QAbstractItemModel &model)
{
    const auto forget = [this] { forgetRows(); };
    QObject *receiver = m_receiver.get();
    QObject::connect(&model, &QAbstractItemModel::modelReset, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::rowsMoved, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::columnsInserted, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::columnsRemoved, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::columnsMoved, receiver, forget);
    QObject::connect(&model, &QAbstractItemModel::dataChanged, receiver,
                     [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                         forgetCells(topLeft, bottomRight);
                     });
    QObject::connect(&model, &QObject::destroyed, receiver, [this] {
        forgetRows();
        m_model = nullptr;
        m_items = nullptr;
    });
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
    if (m_rowCount < 0)
        prepareRows();
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
    if (m_rowCount < 0)
        prepareRows();
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

void SourceRows::prepareRows()
{
    m_rowCount = m_items == nullptr ? 0 : m_items->rowCount();
    m_topLevel = m_rowCount == 0 ? nullptr : m_items->index(0, 0).internalPointer();
    m_rows.assign(static_cast<std::size_t>(m_rowCount), ActionRow());
}

void SourceRows::forgetRows()
{
    m_rowCount = -1;
    m_rows.clear();
    for (const auto &column : m_columns) {
        dropUnused(*column);
        column->numbers.clear();
    }
}

void SourceRows::forgetCells(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    if (!topLeft.isValid() || topLeft.parent().isValid())
        return;
    // The range may end below the last row.
    const int last = std::min(bottomRight.row(), m_rowCount - 1);
    for (int row = topLeft.row(); row <= last; ++row)
        forgetRow(row, topLeft.column(), bottomRight.column());
    for (const auto &column : m_columns)
        dropUnused(*column);
}

void SourceRows::forgetRow(int row, int firstColumn, int lastColumn)
{
    m_rows[static_cast<std::size_t>(row)].hotkeyItem = nullptr;
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
