#include "QvelSortFilterProxyModel.h"

#include "ActionNameRank.h"
#include "HotkeyMatcher.h"
#include "HotkeyOrder.h"
#include "HotkeyParts.h"
#include "LanguageWatch.h"
#include "QvelShortcutManager.h"
#include "SearchPattern.h"
#include "SourceRows.h"

#include <QPointer>
#include <QRegularExpression>
#include <QStandardItem>

#include <algorithm>

namespace CUI {

namespace {

using Columns = QList<QvelActionItemModel::ActionTreeColumns>;

const QString noCategory = QStringLiteral("All Subgroups/Categories");

QStringList hotkeysOf(const QString &text)
{
    return text.split(QLatin1String(", "));
}

/// What the regular expression of a search asks for.
enum class Expression { None, OfWords, OfHotkey };

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

    /// Replaces the search by one without an expression.
    void setSearch(const QString &text);
    void searchWords();
    void searchHotkey();
    void refilter();
    bool passesSearch(ActionRow &row) const;
    bool passesHotkeyFilter(const ActionRow &row);

    /// \name The order of two cells of a column, given by the numbers of their texts
    /// @{
    bool isBaseLess(const QModelIndex &left, const QModelIndex &right, int a, int b);
    int rankOfName(int number);
    int hotkeyOfText(int number);
    /// @}

    ActionNameRank search; // its text is the filter string
    bool isRanking = false;
    HotkeyFilter hotkeyFilter = AllActions;
    bool hasContextFilter = false;
    unsigned long selectedContext = 0;
    QString selectedCategory = noCategory;
    QPointer<QvelShortcutManager> manager;
    QRegularExpression expression{QString(), QRegularExpression::CaseInsensitiveOption};
    Expression expressionKind = Expression::None;
    HotkeyMatcher hotkeyMatcher;

    SourceRows rows;
    HotkeyOrder hotkeys;

private:
    void forgetKeyNames();

    /// What a hotkey cell is sorted by, during one search.
    struct SortedHotkey {
        int number = 0;
        unsigned search = 0; // 0 is before the first
    };

    bool isCustomized(const ActionRow &row) const;

    QvelSortFilterProxyModel &m_proxy;

    // Both by the number of a text, for the numbers of one generation.
    std::vector<signed char> m_ranks; // negative where it is not known yet
    std::vector<FoldedText> m_foldedNames;
    unsigned m_generationOfNames = 0;
    std::vector<SortedHotkey> m_sortedHotkeys;
    unsigned m_generationOfHotkeys = 0;
    LanguageWatch m_languageWatch{[this] { forgetKeyNames(); }};

    unsigned m_searchCount = 1;
    bool m_wasHotkeySearch = false;
};

void QvelSortFilterProxyModel::Private::setSearch(const QString &text)
{
    search = ActionNameRank(text);
    expression.setPattern(QString());
    expressionKind = Expression::None;
    m_ranks.clear();
    ++m_searchCount;
}

void QvelSortFilterProxyModel::Private::searchWords()
{
    expression.setPattern(SearchPattern::ofWords(search.search()));
    expressionKind = Expression::OfWords;
}

void QvelSortFilterProxyModel::Private::searchHotkey()
{
    const QStringList parts = m_proxy.getModifierAndKey(search.search(), QKeySequence::PortableText,
                                                        QKeySequence::PortableText);
    expression.setPattern(SearchPattern::ofHotkey(parts));
    hotkeyMatcher = HotkeyMatcher(parts);
    expressionKind = Expression::OfHotkey;
}

void QvelSortFilterProxyModel::Private::refilter()
{
    m_proxy.invalidate();
    Q_EMIT m_proxy.filterInvalidated();
}

bool QvelSortFilterProxyModel::Private::passesSearch(ActionRow &row) const
{
    if (expressionKind == Expression::None)
        return true;
    if (m_proxy.filterKeyColumn() == QvelActionItemModel::ActionColumn) {
        const bool isSimple = expressionKind == Expression::OfWords && search.isSimple()
                              && row.foldedName.isSimple;
        return isSimple ? search.holdsEveryWord(row.foldedName)
                        : m_proxy.getRegularExpressionResult(row.name);
    }
    const QString text = row.hotkeyItem->text();
    if (expressionKind == Expression::OfHotkey && isHotkeySearch() && hotkeyMatcher.isSimple()
        && !text.isEmpty() && row.foldedHotkeys(text).isSimple)
        return hotkeyMatcher.matches(row.foldedHotkeys(text));
    return m_proxy.getRegularExpressionResult(text);
}

bool QvelSortFilterProxyModel::Private::passesHotkeyFilter(const ActionRow &row)
{
    switch (hotkeyFilter) {
    case AllActions:
        break;
    case AssignedHotkeysOnly:
        return !row.hotkeyItem->text().isEmpty();
    case CustomizedHotkeysOnly:
        return isCustomized(row);
    case UnsavedHotkeysOnly:
        return !manager.isNull() && manager->isUserModifiedAction(row.identifier);
    }
    return true;
}

bool QvelSortFilterProxyModel::Private::isCustomized(const ActionRow &row) const
{
    const QStringList base = hotkeysOf(
            manager.isNull() ? QString() : manager->getBaseShortcutsFromActionId(row.identifier));
    const QStringList current = hotkeysOf(row.hotkeyItem->text());
    return std::any_of(current.begin(), current.end(), [&base](const QString &hotkey) {
        return !base.contains(hotkey, Qt::CaseInsensitive);
    });
}

bool QvelSortFilterProxyModel::Private::isBaseLess(const QModelIndex &left,
                                                   const QModelIndex &right, int a, int b)
{
    SourceColumn &column = rows.column(left.column());
    if (!column.isText || m_proxy.sortRole() != Qt::DisplayRole)
        return m_proxy.QSortFilterProxyModel::lessThan(left, right);
    const TextOrder order{m_proxy.sortCaseSensitivity(), m_proxy.isSortLocaleAware()};
    if (!column.texts.isRanked(a, b, order) && column.texts.isRankingDue())
        rows.readColumn(left.column());
    return column.texts.less(a, b, order);
}

int QvelSortFilterProxyModel::Private::rankOfName(int number)
{
    const SourceColumn &names = rows.column(QvelActionItemModel::ActionColumn);
    if (names.generation != m_generationOfNames) {
        m_ranks.clear();
        m_foldedNames.clear();
        m_generationOfNames = names.generation;
    }
    const auto place = static_cast<std::size_t>(number);
    if (place >= m_ranks.size())
        m_ranks.resize(static_cast<std::size_t>(names.texts.size()), -1);
    signed char &rank = m_ranks[place];
    if (rank < 0) {
        while (m_foldedNames.size() <= place)
            m_foldedNames.emplace_back(names.texts.text(static_cast<int>(m_foldedNames.size())));
        const FoldedText &folded = m_foldedNames[place];
        rank = static_cast<signed char>(search.isSimple() && folded.isSimple
                                                ? search.rank(folded)
                                                : search.rank(names.texts.text(number)));
    }
    return rank;
}

int QvelSortFilterProxyModel::Private::hotkeyOfText(int number)
{
    if (isHotkeySearch() != m_wasHotkeySearch) {
        m_wasHotkeySearch = !m_wasHotkeySearch;
        ++m_searchCount;
    }
    const SourceColumn &cells = rows.column(QvelActionItemModel::HotkeyColumn);
    if (cells.generation != m_generationOfHotkeys) {
        m_sortedHotkeys.clear();
        m_generationOfHotkeys = cells.generation;
    }
    if (number >= static_cast<int>(m_sortedHotkeys.size()))
        m_sortedHotkeys.resize(static_cast<std::size_t>(cells.texts.size()));
    SortedHotkey &sorted = m_sortedHotkeys[static_cast<std::size_t>(number)];
    if (sorted.search != m_searchCount) {
        const QStringList list = hotkeysOf(cells.texts.text(number));
        sorted = {hotkeys.add(m_proxy.getSearchedHotkey(list)), m_searchCount};
    }
    return sorted.number;
}

void QvelSortFilterProxyModel::Private::forgetKeyNames()
{
    hotkeys = HotkeyOrder();
    m_sortedHotkeys.clear();
}

QvelSortFilterProxyModel::QvelSortFilterProxyModel(QvelShortcutManager *shortcutManager,
                                                   QObject *parent)
    : QSortFilterProxyModel(parent), d(std::make_unique<Private>(*this, shortcutManager))
{
    // Emitted before the base class connects itself to the new model.
    connect(this, &QAbstractProxyModel::sourceModelChanged, this,
            [this] { d->rows.setModel(sourceModel()); });
}

QvelSortFilterProxyModel::~QvelSortFilterProxyModel() = default;

bool QvelSortFilterProxyModel::updateFilterString(const QString &text)
{
    const QString search = text.trimmed();
    d->setSearch(search.isEmpty() ? QString() : search);
    if (!search.isEmpty() && d->isHotkeySearch()) {
        d->searchHotkey();
        invalidate();
        return true;
    }
    const bool isActive =
            !search.isEmpty() && filterKeyColumn() == QvelActionItemModel::ActionColumn;
    if (isActive)
        d->searchWords();
    d->refilter();
    return isActive;
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
    if (d->rows.model() != sourceModel())
        d->rows.setModel(sourceModel()); // it was set while this object's signals were blocked
    const QStandardItem *item = d->rows.hotkeyItem(sourceRow, sourceParent);
    ActionRow &row = d->rows.row(sourceRow, sourceParent, item);
    if (row.action == nullptr)
        return false;
    if (d->hasContextFilter && row.contextId != d->selectedContext)
        return false;
    if (d->selectedCategory != noCategory && row.category != d->selectedCategory)
        return false;
    return d->passesSearch(row) && d->passesHotkeyFilter(row);
}

bool QvelSortFilterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    using Model = QvelActionItemModel;
    if (!left.isValid() || !right.isValid())
        return QSortFilterProxyModel::lessThan(left, right);

    QModelIndex l = left;
    QModelIndex r = right;
    int a = d->rows.textNumber(l, l.column());
    int b = d->rows.textNumber(r, l.column());
    if (a == b) {
        switchIndexOnEqualString(l, r, tieBreakers(l.column()));
        a = d->rows.textNumber(l, l.column());
        b = d->rows.textNumber(r, l.column());
    }

    const RankedTexts &texts = d->rows.column(l.column()).texts;
    const bool isLeftEmpty = texts.isEmpty(a);
    const bool isRightEmpty = texts.isEmpty(b);
    if (isLeftEmpty || isRightEmpty)
        return isLeftEmpty != isRightEmpty && isLeftEmpty == (sortOrder() == Qt::DescendingOrder);

    if (l.column() == Model::ActionColumn && d->isRanking) {
        const int leftRank = d->rankOfName(a);
        const int rightRank = d->rankOfName(b);
        if (leftRank != rightRank)
            return leftRank < rightRank;
    } else if (l.column() == Model::HotkeyColumn) {
        const int leftHotkey = d->hotkeyOfText(a);
        const HotkeyOrder::Result result = d->hotkeys.compare(leftHotkey, d->hotkeyOfText(b));
        if (result != HotkeyOrder::Result::SameParts)
            return result == HotkeyOrder::Result::Less;
        return lessThan(l.sibling(l.row(), Model::ActionColumn),
                        r.sibling(r.row(), Model::ActionColumn));
    }
    return d->isBaseLess(l, r, a, b);
}

QvelSortFilterProxyModel::ActionSearchingSortOrder QvelSortFilterProxyModel::evaluateStringSearch(
        const QString &name) const
{
    return d->search.rank(name);
}

QStringList QvelSortFilterProxyModel::getModifierAndKey(
        const QString &hotkey, QKeySequence::SequenceFormat inputFormat,
        QKeySequence::SequenceFormat outputFormat) const
{
    return HotkeyParts::split(hotkey, inputFormat, outputFormat,
                              QvelShortcutManager::getNumPadKeyName(outputFormat));
}

bool QvelSortFilterProxyModel::getRegularExpressionResult(const QString &text) const
{
    if (d->expressionKind == Expression::None || text.isEmpty())
        return false;
    const QString searched = d->isHotkeySearch() ? SearchPattern::withoutSeparators(text) : text;
    return d->expression.match(searched).hasMatch();
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
        if (d->rows.textNumber(left, column) != d->rows.textNumber(right, column))
            return;
    }
}

} // namespace CUI
