#include "SortKeys.h"

#include <QRegularExpression>
#include <QStandardItemModel>
#include <QVariant>

#include <algorithm>
#include <numeric>

namespace CUI {

HotkeySortKey::HotkeySortKey(const QStringList &partsInOrder)
    : parts(partsInOrder), key(parts.isEmpty() ? QString() : parts.last())
{
    static const QRegularExpression number(QStringLiteral("^\\d*$"));
    isNumber = number.match(key).hasMatch();
}

bool HotkeySortKey::isLess(const HotkeySortKey &other) const
{
    if (key != other.key)
        return isNumber == other.isNumber ? key.localeAwareCompare(other.key) < 0 : isNumber;
    if (parts.size() != other.parts.size())
        return parts.size() < other.parts.size();
    const auto [mine, others] = std::mismatch(parts.begin(), parts.end(), other.parts.begin());
    return mine != parts.end() && mine->localeAwareCompare(*others) < 0;
}

bool TextOrder::isLess(const SearchText &a, const SearchText &b) const
{
    return isLocaleAware ? a.text.localeAwareCompare(b.text) < 0
                         : SearchText::isLess(a, b, caseSensitivity);
}

void SortKeys::setModel(const QAbstractItemModel *model)
{
    m_model = qobject_cast<const QStandardItemModel *>(model);
    m_receiver = std::make_unique<QObject>();
    clear();
    if (m_model == nullptr)
        return;
    const auto forget = [this] { forgetRows(); };
    QObject *receiver = m_receiver.get();
    QObject::connect(model, &QAbstractItemModel::modelReset, receiver, [this] { clear(); });
    QObject::connect(model, &QAbstractItemModel::layoutChanged, receiver, forget);
    QObject::connect(model, &QAbstractItemModel::rowsInserted, receiver, forget);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, receiver, forget);
    QObject::connect(model, &QAbstractItemModel::rowsMoved, receiver, forget);
    QObject::connect(model, &QAbstractItemModel::columnsInserted, receiver, forget);
    QObject::connect(model, &QAbstractItemModel::columnsRemoved, receiver, forget);
    QObject::connect(model, &QAbstractItemModel::columnsMoved, receiver, forget);
    QObject::connect(model, &QAbstractItemModel::dataChanged, receiver,
                     [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                         forgetCells(topLeft, bottomRight);
                     });
    QObject::connect(model, &QObject::destroyed, receiver, [this] {
        m_model = nullptr;
        clear();
    });
}

bool SortKeys::isLess(int column, int a, int b, const TextOrder &order)
{
    if (!(order == m_order)) {
        m_order = order;
        forgetPlaces();
    }
    // To sort all texts for the sake of a few that came later would take more time than it saves.
    constexpr std::size_t fewInHowMany = 8;
    const Column &texts = this->column(column);
    if (texts.placeless > texts.keys.size() / fewInHowMany)
        findPlaces(column);
    const SortKey &left = key(column, a);
    const SortKey &right = key(column, b);
    return left.place >= 0 && right.place >= 0 ? left.place < right.place
                                               : order.isLess(left.text, right.text);
}

void SortKeys::forgetSearch()
{
    for (Column &column : m_columns) {
        for (SortKey &key : column.keys) {
            key.rank = -1;
            key.hotkey = nullptr;
        }
    }
}

int SortKeys::add(Column &column, const QVariant &value)
{
    const QString text = value.toString();
    column.isOfStrings =
            column.isOfStrings && (text.isEmpty() || value.userType() == QMetaType::QString);
    const auto known = column.numbers.constFind(text);
    if (known != column.numbers.constEnd())
        return *known;
    const int number = static_cast<int>(column.keys.size());
    column.numbers.insert(text, number);
    column.keys.emplace_back();
    column.keys.back().text = SearchText(text);
    ++column.placeless;
    if (text.isEmpty())
        column.empty = number;
    return number;
}

int SortKeys::read(const QModelIndex &index)
{
    const auto number = static_cast<std::size_t>(std::max(index.column(), 0));
    if (m_columns.size() <= number)
        m_columns.resize(number + 1);
    Column &column = m_columns[number];
    const int text = add(column, index.data());
    if (index.isValid() && isKept(index)) {
        std::vector<int> &rows = column.numbersOfRows;
        if (rows.empty())
            rows.assign(static_cast<std::size_t>(m_model->rowCount()), -1);
        const auto row = static_cast<std::size_t>(index.row());
        if (row < rows.size())
            rows[row] = text;
    }
    return text;
}

void SortKeys::findPlaces(int number)
{
    const int rowCount = m_model == nullptr ? 0 : m_model->rowCount();
    for (int row = 0; row < rowCount; ++row)
        this->number(m_model->index(row, number));
    std::vector<SortKey *> sorted;
    for (SortKey &key : column(number).keys)
        sorted.push_back(&key);
    std::sort(sorted.begin(), sorted.end(), [this](const SortKey *a, const SortKey *b) {
        return m_order.isLess(a->text, b->text);
    });
    int place = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        // Texts that the order does not tell apart share a place.
        if (i > 0 && m_order.isLess(sorted[i - 1]->text, sorted[i]->text))
            ++place;
        sorted[i]->place = place;
    }
    column(number).placeless = 0;
}

void SortKeys::forgetPlaces()
{
    for (Column &column : m_columns) {
        for (SortKey &key : column.keys)
            key.place = -1;
        column.placeless = column.keys.size();
    }
}

void SortKeys::forgetCells(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    if (!topLeft.isValid() || topLeft.parent().isValid())
        return;
    // The range may end below the last row.
    const int lastColumn = std::min(bottomRight.column(), static_cast<int>(m_columns.size()) - 1);
    for (int i = topLeft.column(); i <= lastColumn; ++i) {
        std::vector<int> &rows = column(i).numbersOfRows;
        const int lastRow = std::min(bottomRight.row(), static_cast<int>(rows.size()) - 1);
        for (int row = topLeft.row(); row <= lastRow; ++row)
            rows[static_cast<std::size_t>(row)] = -1;
        // Most texts are no longer shown.
        constexpr std::size_t allowance = 1024;
        if (column(i).keys.size() > 2 * rows.size() + allowance)
            column(i) = Column();
    }
}

void SortKeys::forgetRows()
{
    m_topLevel = m_model == nullptr ? nullptr : m_model->index(0, 0).internalPointer();
    for (Column &column : m_columns)
        column.numbersOfRows.clear();
}

void SortKeys::clear()
{
    m_columns.clear();
    forgetRows();
}

} // namespace CUI
