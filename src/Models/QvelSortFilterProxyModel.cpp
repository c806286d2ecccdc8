#include "QvelSortFilterProxyModel.h"

#include "ActionMatcher.h"
#include "KeyNames.h"
#include "LanguageWatch.h"
#include "QvelActionItem.h"
#include "QvelShortcutManager.h"
#include "SearchQuery.h"
#include "SortKeys.h"

#include <QPointer>
#include <QStandardItemModel>

#include <algorithm>
#include <unordered_map>

namespace CUI {

namespace {

using Columns = QList<QvelActionItemModel::ActionTreeColumns>;

const QString noCategory = QStringLiteral("All Subgroups/Categories");

QStringList hotkeysOf(const QString &text)
{
    return text.split(QLatin1String(", "));
}

/// The columns that decide when the texts of @p column are equal.
const Columns &tieBreakers(int column)
{
    using Model = QvelActionItemModel;
    static const Columns ofActions{Model::GroupColumn, Model::CategoryColumn};
    static const Columns ofHotkeys{Model::ActionColumn, Model::GroupColumn, Model::CategoryColumn};
    static const Columns ofGroups{Model::CategoryColumn};
    static const Columns ofCategories{Model::GroupColumn};
    static const Columns none;
    switch (column) {
    case Model::ActionColumn:
        return ofActions;
    case Model::HotkeyColumn:
        return ofHotkeys;
    case Model::GroupColumn:
        return ofGroups;
    case Model::CategoryColumn:
        return ofCategories;
    default:
        return none;
    }
}

} // namespace

class QvelSortFilterProxyModel::Private
{
public:
    Private(QvelSortFilterProxyModel &proxy, QvelShortcutManager *shortcutManager)
        : manager(shortcutManager), m_proxy(proxy)
    {
    }

    bool isHotkeySearch() const
    {
        return m_proxy.filterKeyColumn() == QvelActionItemModel::HotkeyColumn;
    }

    /// The cell in the hotkey column of a row that shows an action, or null.
    const QvelActionItem *hotkeyCell(int row, const QModelIndex &parent) const;
    bool passesSearch(int row, const QModelIndex &parent, const QvelActionItem &cell);
    bool passesHotkeyFilter(const QvelActionItem &cell) const;

    void setQuery(const SearchQuery &newQuery);
    void refilter();

    /// \name The order of two cells of a column, given by the numbers of their texts
    /// @{
    bool isBaseLess(const QModelIndex &left, const QModelIndex &right, int a, int b);
    int rankOfName(int number);
    const HotkeySortKey &hotkeyOfCell(int number);
    /// @}

    SearchQuery query; // its text is the filter string
    bool isRanking = false;
    HotkeyFilter hotkeyFilter = AllActions;
    bool hasContextFilter = false;
    unsigned long selectedContext = 0;
    QString selectedCategory = noCategory;
    QPointer<QvelShortcutManager> manager;
    SortKeys keys;

private:
    const SearchText &shownText(int row, int column, const QModelIndex &parent)
    {
        const QModelIndex index = m_proxy.sourceModel()->index(row, column, parent);
        return keys.key(column, keys.number(index)).text;
    }
    void forgetKeyNames();

    QvelSortFilterProxyModel &m_proxy;
    std::unordered_map<QString, HotkeySortKey> m_hotkeys; // by their portable texts
    bool m_wasHotkeySearch = false; // when the keys of hotkey cells were last asked for
    LanguageWatch m_languageWatch{[this] { forgetKeyNames(); }};
};

const QvelActionItem *QvelSortFilterProxyModel::Private::hotkeyCell(int row,
                                                                    const QModelIndex &parent) const
{
    const auto *model = qobject_cast<const QStandardItemModel *>(m_proxy.sourceModel());
    if (model == nullptr)
        return nullptr;
    const QStandardItem *parentItem =
            parent.isValid() ? model->itemFromIndex(parent) : model->invisibleRootItem();
    if (parentItem == nullptr)
        return nullptr;
    const auto *cell = dynamic_cast<const QvelActionItem *>(
            parentItem->child(row, QvelActionItemModel::HotkeyColumn));
    return cell != nullptr && cell->velAction() != nullptr ? cell : nullptr;
}

bool QvelSortFilterProxyModel::Private::passesSearch(int row, const QModelIndex &parent,
                                                     const QvelActionItem &cell)
{
    if (!query.isActive())
        return true;
    if (m_proxy.filterKeyColumn() == QvelActionItemModel::ActionColumn) {
        const SearchText &shown = shownText(row, QvelActionItemModel::ActionColumn, parent);
        const QString name = cell.record()->name();
        return query.matches(shown.text == name ? shown : SearchText(name));
    }
    const SearchText &hotkeys = shownText(row, QvelActionItemModel::HotkeyColumn, parent);
    const bool isList = isHotkeySearch() && hotkeys.text.contains(QLatin1Char(','));
    return query.matches(isList ? SearchText(SearchQuery::withoutSeparators(hotkeys.text))
                                : hotkeys);
}

bool QvelSortFilterProxyModel::Private::passesHotkeyFilter(const QvelActionItem &cell) const
{
    switch (hotkeyFilter) {
    case AllActions:
        break;
    case AssignedHotkeysOnly:
        return !cell.text().isEmpty();
    case CustomizedHotkeysOnly:
        return ActionMatcher::isCustomized(cell.text(),
                                           manager.isNull() ? QString()
                                                            : manager->getBaseShortcutsFromActionId(
                                                                    cell.record()->identifier()));
    case UnsavedHotkeysOnly:
        return !manager.isNull() && manager->isUserModifiedAction(cell.record()->identifier());
    }
    return true;
}

void QvelSortFilterProxyModel::Private::setQuery(const SearchQuery &newQuery)
{
    query = newQuery;
    keys.forgetSearch();
}

void QvelSortFilterProxyModel::Private::refilter()
{
    m_proxy.invalidate();
    Q_EMIT m_proxy.filterInvalidated();
}

bool QvelSortFilterProxyModel::Private::isBaseLess(const QModelIndex &left,
                                                   const QModelIndex &right, int a, int b)
{
    if (!keys.isOfStrings(left.column()) || m_proxy.sortRole() != Qt::DisplayRole)
        return m_proxy.QSortFilterProxyModel::lessThan(left, right);
    return keys.isLess(left.column(), a, b,
                       {m_proxy.sortCaseSensitivity(), m_proxy.isSortLocaleAware()});
}

int QvelSortFilterProxyModel::Private::rankOfName(int number)
{
    SortKey &name = keys.key(QvelActionItemModel::ActionColumn, number);
    if (name.rank < 0)
        name.rank = query.rank(name.text);
    return name.rank;
}

const HotkeySortKey &QvelSortFilterProxyModel::Private::hotkeyOfCell(int number)
{
    if (isHotkeySearch() != m_wasHotkeySearch) {
        m_wasHotkeySearch = !m_wasHotkeySearch;
        keys.forgetSearch();
    }
    SortKey &cell = keys.key(QvelActionItemModel::HotkeyColumn, number);
    if (cell.hotkey == nullptr) {
        const QString hotkey = m_proxy.getSearchedHotkey(hotkeysOf(cell.text.text));
        auto known = m_hotkeys.find(hotkey);
        if (known == m_hotkeys.end()) {
            const HotkeySortKey key(m_proxy.getModifierAndKey(hotkey, QKeySequence::PortableText,
                                                              QKeySequence::NativeText));
            known = m_hotkeys.emplace(hotkey, key).first;
        }
        cell.hotkey = &known->second;
    }
    return *cell.hotkey;
}

void QvelSortFilterProxyModel::Private::forgetKeyNames()
{
    keys.forgetSearch();
    m_hotkeys.clear();
}

QvelSortFilterProxyModel::QvelSortFilterProxyModel(QvelShortcutManager *shortcutManager,
                                                   QObject *parent)
    : QSortFilterProxyModel(parent), d(std::make_unique<Private>(*this, shortcutManager))
{
    // Emitted before the base class connects itself to the new model.
    connect(this, &QAbstractProxyModel::sourceModelChanged, this,
            [this] { d->keys.setModel(sourceModel()); });
}

QvelSortFilterProxyModel::~QvelSortFilterProxyModel() = default;

bool QvelSortFilterProxyModel::updateFilterString(const QString &text)
{
    const QString search = text.trimmed();
    if (search.isEmpty()) {
        d->setQuery(SearchQuery());
        d->refilter();
    } else if (d->isHotkeySearch()) {
        d->setQuery(
                SearchQuery::ofHotkey(search, getModifierAndKey(search, QKeySequence::PortableText,
                                                                QKeySequence::PortableText)));
        invalidate();
    } else {
        const bool isByName = filterKeyColumn() == QvelActionItemModel::ActionColumn;
        d->setQuery(isByName ? SearchQuery::ofWords(search) : SearchQuery(search));
        d->refilter();
    }
    return d->query.isActive();
}

void QvelSortFilterProxyModel::setActionSearchSorting(bool enabled)
{
    d->isRanking = enabled;
}

void QvelSortFilterProxyModel::setFilterSelectedCategory(const QString &category)
{
    d->selectedCategory = category;
    d->refilter();
}

void QvelSortFilterProxyModel::setFilterSelectedContext(unsigned long contextId)
{
    d->hasContextFilter = true;
    d->selectedContext = contextId;
    d->refilter();
}

void QvelSortFilterProxyModel::disableContextFilter()
{
    d->hasContextFilter = false;
    d->refilter();
}

void QvelSortFilterProxyModel::setSelectedHotkeyFilter(HotkeyFilter filter)
{
    if (filter > UnsavedHotkeysOnly)
        return;
    d->hotkeyFilter = filter;
    d->refilter();
}

bool QvelSortFilterProxyModel::filterAcceptsRow(int sourceRow,
                                                const QModelIndex &sourceParent) const
{
    const QvelActionItem *cell = d->hotkeyCell(sourceRow, sourceParent);
    if (cell == nullptr)
        return false;
    if (d->hasContextFilter && cell->record()->contextId() != d->selectedContext)
        return false;
    if (d->selectedCategory != noCategory && cell->record()->category() != d->selectedCategory)
        return false;
    return d->passesSearch(sourceRow, sourceParent, *cell) && d->passesHotkeyFilter(*cell);
}

bool QvelSortFilterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    using Model = QvelActionItemModel;
    if (!left.isValid() || !right.isValid())
        return QSortFilterProxyModel::lessThan(left, right);

    QModelIndex l = left;
    QModelIndex r = right;
    int a = d->keys.number(l);
    int b = d->keys.number(r);
    if (a == b) {
        switchIndexOnEqualString(l, r, tieBreakers(l.column()));
        a = d->keys.number(l);
        b = d->keys.number(r);
    }
    const bool isLeftEmpty = d->keys.isEmpty(l.column(), a);
    const bool isRightEmpty = d->keys.isEmpty(l.column(), b);
    if (isLeftEmpty || isRightEmpty)
        return isLeftEmpty != isRightEmpty && isLeftEmpty == (sortOrder() == Qt::DescendingOrder);

    if (l.column() == Model::ActionColumn && d->isRanking) {
        const int leftRank = d->rankOfName(a);
        const int rightRank = d->rankOfName(b);
        if (leftRank != rightRank)
            return leftRank < rightRank;
    } else if (l.column() == Model::HotkeyColumn) {
        const HotkeySortKey &leftHotkey = d->hotkeyOfCell(a);
        const HotkeySortKey &rightHotkey = d->hotkeyOfCell(b);
        if (leftHotkey.parts != rightHotkey.parts)
            return leftHotkey.isLess(rightHotkey);
        return lessThan(l.sibling(l.row(), Model::ActionColumn),
                        r.sibling(r.row(), Model::ActionColumn));
    }
    return d->isBaseLess(l, r, a, b);
}

QvelSortFilterProxyModel::ActionSearchingSortOrder QvelSortFilterProxyModel::evaluateStringSearch(
        const QString &name) const
{
    static_assert(static_cast<int>(SearchQuery::NoMatch) == NoMatch);
    return static_cast<ActionSearchingSortOrder>(d->query.rank(SearchText(name)));
}

QStringList QvelSortFilterProxyModel::getModifierAndKey(
        const QString &hotkey, QKeySequence::SequenceFormat inputFormat,
        QKeySequence::SequenceFormat outputFormat) const
{
    return KeyNames::partsOf(hotkey, inputFormat, outputFormat);
}

bool QvelSortFilterProxyModel::getRegularExpressionResult(const QString &text) const
{
    return d->query.matches(
            SearchText(d->isHotkeySearch() ? SearchQuery::withoutSeparators(text) : text));
}

QString QvelSortFilterProxyModel::getSearchedHotkey(const QStringList &hotkeys) const
{
    if (hotkeys.isEmpty())
        return QString();
    if (hotkeys.size() == 1 || !d->isHotkeySearch())
        return hotkeys.first();
    const auto found = std::find_if(hotkeys.begin(), hotkeys.end(), [this](const QString &hotkey) {
        return getRegularExpressionResult(hotkey);
    });
    return found == hotkeys.end() ? hotkeys.first() : *found;
}

void QvelSortFilterProxyModel::switchIndexOnEqualString(
        QModelIndex &left, QModelIndex &right,
        const QList<QvelActionItemModel::ActionTreeColumns> &columns) const
{
    for (const QvelActionItemModel::ActionTreeColumns column : columns) {
        const QModelIndex nextLeft = left.sibling(left.row(), column);
        const QModelIndex nextRight = right.sibling(right.row(), column);
        if (!nextLeft.isValid() || !nextRight.isValid())
            return;
        left = nextLeft;
        right = nextRight;
        if (d->keys.number(left) != d->keys.number(right))
            return;
    }
}

} // namespace CUI
