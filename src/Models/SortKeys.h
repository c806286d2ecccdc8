#pragma once

#include "SearchText.h"

#include <QHash>
#include <QModelIndex>
#include <QObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <vector>

class QAbstractItemModel;
class QVariant;

namespace CUI {

/// What a hotkey is sorted by: its modifiers, then its key, as they are named in the user's
/// language. No parts when the text is no key combination.
struct HotkeySortKey {
    explicit HotkeySortKey(const QStringList &partsInOrder);

    /// By key, digits first, then by the number of modifiers, then by these.
    bool isLess(const HotkeySortKey &other) const;

    QStringList parts;
    QString key;
    bool isNumber;
};

/// How the base class of the proxy compares two texts.
struct TextOrder {
    Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive;
    bool isLocaleAware = false;

    bool isLess(const SearchText &a, const SearchText &b) const;

    friend bool operator==(const TextOrder &a, const TextOrder &b)
    {
        return a.caseSensitivity == b.caseSensitivity && a.isLocaleAware == b.isLocaleAware;
    }
};

/// What cells with the same text in the same column are sorted by.
struct SortKey {
    SearchText text;
    int place = -1; ///< in the order of the column's texts; negative for a text that came later
    /// \name Of the current search, for whoever searches to fill in
    /// @{
    int rank = -1; ///< negative while it is not known
    const HotkeySortKey *hotkey = nullptr; ///< null while it is not known
    /// @}
};

/// The sort keys of a model's cells. The different texts of a column are numbered, so that most
/// comparisons are those of two integers.
///
/// Cells of the top level of a QStandardItemModel are read at the first question and again after
/// the model has reported a change, other cells at every question.
class SortKeys
{
public:
    /// Follows @p model from here on. Receivers of a signal are called in the order of their
    /// connection, so call this before anything connects that compares cells in its slots.
    void setModel(const QAbstractItemModel *model);

    /// The number of the text of a cell: in one column, equal numbers mean equal texts.
    int number(const QModelIndex &index)
    {
        const auto column = static_cast<std::size_t>(index.column());
        const auto row = static_cast<std::size_t>(index.row());
        if (isKept(index) && column < m_columns.size()) {
            const std::vector<int> &rows = m_columns[column].numbersOfRows;
            if (row < rows.size() && rows[row] >= 0)
                return rows[row];
        }
        return read(index);
    }

    /// The key of a number that a cell of that column has. Valid until the next call of number().
    SortKey &key(int column, int number)
    {
        return this->column(column).keys[static_cast<std::size_t>(number)];
    }
    bool isEmpty(int column, int number) { return number == this->column(column).empty; }
    /// False when a cell of the column has held a value that is no text; the order of isLess() is
    /// then not that of the values.
    bool isOfStrings(int column) { return this->column(column).isOfStrings; }
    bool isLess(int column, int a, int b, const TextOrder &order);

    /// Forgets what belongs to a search in all keys.
    void forgetSearch();

private:
    struct Column {
        std::vector<SortKey> keys; // by number
        QHash<QString, int> numbers;
        std::vector<int> numbersOfRows; // negative where the cell is to be read
        int empty = -1; // the number of the empty text
        std::size_t placeless = 0; // how many keys have no place
        bool isOfStrings = true;
    };

    bool isKept(const QModelIndex &index) const
    {
        return index.model() == m_model && index.internalPointer() == m_topLevel;
    }
    Column &column(int number) { return m_columns[static_cast<std::size_t>(number)]; }
    static int add(Column &column, const QVariant &value);
    int read(const QModelIndex &index);
    void findPlaces(int number);
    void forgetPlaces();
    void forgetCells(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void forgetRows();
    void clear();

    const QAbstractItemModel *m_model = nullptr; // null when its cells are not kept
    const void *m_topLevel = nullptr; // the internal pointer of the indexes of the top level
    std::unique_ptr<QObject> m_receiver;
    std::vector<Column> m_columns;
    TextOrder m_order; // of the places
};

} // namespace CUI
