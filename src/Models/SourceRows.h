#pragma once

#include "ActionIdentifier.h"
#include "FoldedText.h"
#include "RankedTexts.h"

#include <QModelIndex>
#include <QObject>
#include <QString>

#include <cstddef>
#include <memory>
#include <vector>

class QAbstractItemModel;
class QStandardItem;
class QStandardItemModel;
class QVariant;

namespace CUI {

class VelAction;

/// What a search reads of one row. These are copies: the registry may drop the action before the
/// source model is loaded anew.
struct ActionRow {
    const QStandardItem *hotkeyItem = nullptr; ///< null when the row has none
    const VelAction *action = nullptr; ///< not looked into again; null when the row shows none
    ActionIdentifier identifier;
    unsigned long contextId = 0;
    QString name;
    FoldedText foldedName;
    QString category;

    /// @p text, that of the hotkey cell, with blanks between the hotkeys instead of separators.
    const FoldedText &foldedHotkeys(const QString &text);

private:
    QString m_hotkeys;
    FoldedText m_foldedHotkeys; // of these
};

/// The texts of one column. Its cells know them by number.
struct SourceColumn {
    RankedTexts texts;
    unsigned generation = 0; ///< counts how often the numbers have been given out anew
    bool isText = true; ///< false once a cell has held a value of another type
    std::vector<int> numbers; ///< of the rows; inside SourceRows only
};

/// The rows of a proxy's source model, each read when the model gets it and kept until the model
/// announces that another item is in its place.
///
/// Rows are kept for the top level of a QStandardItemModel. Cells of other models and levels are
/// read at every question; their texts get numbers all the same.
class SourceRows
{
public:
    /// Follows @p model from here on. The order of receivers is that of their connection, so this
    /// has to come before whoever asks questions in a slot of the model.
    void setModel(const QAbstractItemModel *model);
    const QAbstractItemModel *model() const { return m_model; }

    /// The item in the hotkey column, or null.
    const QStandardItem *hotkeyItem(int row, const QModelIndex &parent) const;
    /// The row whose hotkey item that is. The reference is valid until the next call.
    ActionRow &row(int number, const QModelIndex &parent, const QStandardItem *hotkeyItem);

    /// Column @p number, which is not negative. The reference stays valid.
    SourceColumn &column(int number)
    {
        const auto place = static_cast<std::size_t>(number);
        return place < m_columns.size() ? *m_columns[place] : addColumn(number);
    }

    /// The number of the cell's text among the texts of @p column.
    int textNumber(const QModelIndex &index, int column)
    {
        if (covers(index) && index.column() == column) {
            const std::vector<int> &numbers = this->column(column).numbers;
            const auto row = static_cast<std::size_t>(index.row());
            if (row < numbers.size() && numbers[row] >= 0)
                return numbers[row];
        }
        return readCell(index, column);
    }

    /// Gives all texts of the column their numbers.
    void readColumn(int number);

private:
    void connectTo(const QAbstractItemModel &model);
    void noteInsertion(int first, int last);
    void noteRemoval(int first, int last);
    void noteChange(const QModelIndex &topLeft, const QModelIndex &bottomRight);

    void readRows();
    void arrangeRows();
    void checkRow(int row);
    void noteRowCount();
    void forgetNumbers();
    void forgetNumbers(int row, int firstColumn, int lastColumn);
    bool covers(const QModelIndex &index) const
    {
        return index.row() < m_rowCount && index.internalPointer() == m_topLevel
               && index.model() == m_model;
    }
    SourceColumn &addColumn(int number);
    int readCell(const QModelIndex &index, int column);
    static int addText(SourceColumn &column, const QVariant &value);

    const QAbstractItemModel *m_model = nullptr;
    const QStandardItemModel *m_items = nullptr; // the same, or null when it is none of these
    std::unique_ptr<QObject> m_receiver;

    std::vector<ActionRow> m_rows;
    int m_rowCount = 0; // of these
    const void *m_topLevel = nullptr; // what tells indexes of the top level from those of others
    std::vector<std::unique_ptr<SourceColumn>> m_columns;
    ActionRow m_looseRow;
};

} // namespace CUI
