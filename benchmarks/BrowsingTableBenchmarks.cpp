#include "BrowsingStage.h"
#include "Configuration.h"
#include "Host.h"
#include "QvelActionItem.h"
#include "Rows.h"
#include "VelAction.h"

#include <QStandardItemModel>

#include <array>
#include <iterator>
#include <vector>

namespace CUI::Bench {

namespace {

constexpr int usualSize = 10000;
constexpr int largeSize = 100000;

// Sorting

struct Sorting {
    int column;
    Qt::SortOrder order;
    double limit;
    const char *row;
};
constexpr Sorting sortings[] = {
        {QvelActionItemModel::ActionColumn, Qt::AscendingOrder, 1.0, "sort/by action, ascending"},
        {QvelActionItemModel::ActionColumn, Qt::DescendingOrder, 1.0, "sort/by action, descending"},
        {QvelActionItemModel::HotkeyColumn, Qt::AscendingOrder, 2.0, "sort/by hotkey, ascending"},
        {QvelActionItemModel::HotkeyColumn, Qt::DescendingOrder, 2.0, "sort/by hotkey, descending"},
        {QvelActionItemModel::GroupColumn, Qt::AscendingOrder, 1.0, "sort/by group, ascending"},
        {QvelActionItemModel::GroupColumn, Qt::DescendingOrder, 1.0, "sort/by group, descending"},
        {QvelActionItemModel::CategoryColumn, Qt::AscendingOrder, 1.0,
         "sort/by category, ascending"},
        {QvelActionItemModel::CategoryColumn, Qt::DescendingOrder, 1.0,
         "sort/by category, descending"},
};
constexpr Sorting largeSortings[] = {
        {QvelActionItemModel::ActionColumn, Qt::AscendingOrder, 14.0,
         "sort/by action, 100k actions"},
        {QvelActionItemModel::HotkeyColumn, Qt::AscendingOrder, 14.0,
         "sort/by hotkey, 100k actions"},
        {QvelActionItemModel::GroupColumn, Qt::AscendingOrder, 14.0, "sort/by group, 100k actions"},
        {QvelActionItemModel::CategoryColumn, Qt::AscendingOrder, 14.0,
         "sort/by category, 100k actions"},
};

/// Negative, zero or positive as the first hotkey of the one cell comes before that of the other:
/// by its key, digits first.
int compareKeys(const QString &a, const QString &b)
{
    const auto keyOf = [](const QString &hotkeys) {
        return hotkeys.section(QLatin1String(", "), 0, 0).section(QLatin1Char('+'), -1);
    };
    const bool isDigitA = keyOf(a).at(0).isDigit();
    if (isDigitA != keyOf(b).at(0).isDigit())
        return isDigitA ? -1 : 1;
    return keyOf(a).localeAwareCompare(keyOf(b));
}

/// What is wrong with the order of a sorted column, texts that are empty being last.
QString faultOfOrder(const Screen &screen, const Sorting &sorting)
{
    const bool isHotkey = sorting.column == QvelActionItemModel::HotkeyColumn;
    for (int row = 1; row < screen.rowCount(); ++row) {
        const QString above = screen.text(row - 1, sorting.column);
        const QString below = screen.text(row, sorting.column);
        if (below.isEmpty())
            continue;
        const int order = above.isEmpty() ? 0
                          : isHotkey      ? compareKeys(above, below)
                                          : above.compare(below, Qt::CaseInsensitive);
        if (above.isEmpty() || (sorting.order == Qt::AscendingOrder ? order > 0 : order < 0))
            return QStringLiteral("'%1' stands above '%2'").arg(above, below);
    }
    return {};
}

/// Sorts by the column of rows that are sorted by another.
double secondsOfSort(Screen &screen, const Sorting &sorting)
{
    const bool isName = sorting.column == QvelActionItemModel::ActionColumn;
    screen.sort(isName ? QvelActionItemModel::GroupColumn : QvelActionItemModel::ActionColumn,
                Qt::AscendingOrder);
    return busySecondsOf([&] { screen.sort(sorting.column, sorting.order); });
}

/// A screen without a search, so that names are not ranked.
std::unique_ptr<SearchScreen> makeSortedScreen(Stage &stage, const Sorting &sorting, QString &fault)
{
    auto screen = std::make_unique<SearchScreen>(stage);
    screen->search().setActionSearchSorting(false);
    screen->sort(sorting.column, sorting.order);
    fault += faultOfOrder(*screen, sorting);
    return screen;
}

void compareSort(benchmark::State &state, Stages &stages, const Sorting &sorting)
{
    Stage &stage = stages.ofSize(usualSize);
    QString fault;
    const auto screen = makeSortedScreen(stage, sorting, fault);
    BareScreen rival(stage);
    if (isWrong(state, fault))
        return;
    compare(
            state, sorting.limit, [&] { return secondsOfSort(*screen, sorting); },
            [&] { return secondsOfSort(rival, sorting); });
}

void compareSizesOfSort(benchmark::State &state, Stages &stages, const Sorting &sorting)
{
    QString fault;
    const auto large = makeSortedScreen(stages.ofSize(largeSize), sorting, fault);
    const auto usual = makeSortedScreen(stages.ofSize(usualSize), sorting, fault);
    if (isWrong(state, fault))
        return;
    compare(
            state, sorting.limit, [&] { return secondsOfSort(*large, sorting); },
            [&] { return secondsOfSort(*usual, sorting); });
}

// An assignment

/// Assigns a hotkey to an action that is on the screen.
class Assignments
{
public:
    Assignments(Stages &stages, int size) : m_stages(stages), m_size(size), m_screen(stage())
    {
        const QModelIndex index = m_screen.proxy().index(3, QvelActionItemModel::HotkeyColumn);
        m_cell = m_screen.proxy().mapToSource(index);
        m_action = stage().model().velActionFromModelIdx(m_cell)->identifier();
    }

    QString fault()
    {
        const QString before = m_cell.data().toString();
        assign();
        const QString with = m_cell.data().toString();
        unassign();
        const bool isRight = with == QStringList{before, m_hotkey}.join(QLatin1String(", "))
                             || (before.isEmpty() && with == m_hotkey);
        return isRight && m_cell.data().toString() == before
                       ? QString()
                       : QStringLiteral("The cell shows ") + with;
    }

    double seconds()
    {
        constexpr int repetitions = 20;
        double all = 0;
        stage();
        for (int i = 0; i < repetitions; ++i) {
            all += secondsOf([this] { assign(); });
            unassign();
        }
        return all / repetitions;
    }

private:
    Stage &stage() { return m_stages.ofSize(m_size); }

    void assign()
    {
        m_store->assignShortcut(m_action, m_hotkey, {});
        m_screen.untilPainted();
    }

    void unassign()
    {
        m_store->unassignShortcut(m_action, m_hotkey, {});
        m_screen.untilPainted();
    }

    Stages &m_stages;
    int m_size;
    SearchScreen m_screen;
    QvelShortcutManager *m_store = &stage().store();
    QPersistentModelIndex m_cell;
    ActionIdentifier m_action;
    QString m_hotkey = unusedHotkey(0);
};

void compareSizesOfAssignment(benchmark::State &state, Stages &stages)
{
    const Silence silence;
    Assignments large(stages, largeSize);
    Assignments small(stages, 1000);
    stages.ofSize(largeSize);
    QString fault = large.fault();
    stages.ofSize(1000);
    fault += small.fault();
    if (isWrong(state, fault))
        return;
    compare(
            state, 2.0, [&] { return large.seconds(); }, [&] { return small.seconds(); });
}

// Loading

using Texts = std::vector<std::array<QString, 4>>;

Texts textsOf(Stage &stage)
{
    Texts texts(static_cast<std::size_t>(stage.size()));
    for (int row = 0; row < stage.size(); ++row) {
        for (int column = 0; column < 4; ++column)
            texts[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] =
                    stage.text(row, column);
    }
    return texts;
}

double secondsOfInsertion(const Texts &texts)
{
    QStandardItemModel model;
    return busySecondsOf([&] {
        for (const auto &row : texts)
            model.appendRow({new QStandardItem(row[0]), new QStandardItem(row[1]),
                             new QStandardItem(row[2]), new QStandardItem(row[3])});
    });
}

/// Loads into a model without rows.
double secondsOfLoad(Stage &stage)
{
    stage.select();
    std::unique_ptr<QvelActionItemModel> model;
    return busySecondsOf([&] { model = std::make_unique<QvelActionItemModel>(&stage.store()); });
}

QString faultOfLoad(Stage &stage)
{
    QvelActionItemModel model(&stage.store());
    bool isRight = model.rowCount() == stage.size();
    for (int i = 0; i < stage.size() && isRight; ++i) {
        const auto *name = model.itemFromVelAction(QvelActionItemModel::ActionColumn, actionAt(i));
        const auto *hotkeys =
                model.itemFromVelAction(QvelActionItemModel::HotkeyColumn, actionAt(i));
        isRight = name != nullptr && name->text() == nameOf(i)
                  && hotkeys->text() == hotkeysOf(i).join(QLatin1String(", "));
    }
    return isRight ? QString() : QStringLiteral("A row is wrong");
}

void compareLoad(benchmark::State &state, Stages &stages)
{
    Stage &stage = stages.ofSize(usualSize);
    if (isWrong(state, faultOfLoad(stage)))
        return;
    const Texts texts = textsOf(stage);
    compare(
            state, 1.5, [&] { return secondsOfLoad(stage); },
            [&] { return secondsOfInsertion(texts); });
}

void compareSizesOfLoad(benchmark::State &state, Stages &stages)
{
    Stage &large = stages.ofSize(largeSize);
    if (isWrong(state, faultOfLoad(large)))
        return;
    Stage &usual = stages.ofSize(usualSize);
    compare(
            state, 14.0, [&] { return secondsOfLoad(large); },
            [&] { return secondsOfLoad(usual); });
}

} // namespace

void addTableRows(Stages &stages)
{
    for (const Sorting &sorting : sortings) {
        addRow(sorting.row, "the toolkit's proxy", 12,
               [&](benchmark::State &state) { compareSort(state, stages, sorting); });
    }
    addRow("load/model of 10k actions", "inserting 40k items", 20,
           [&](benchmark::State &state) { compareLoad(state, stages); });
    addRow("assign/to a painted row, 100k actions", "1k actions", 30,
           [&](benchmark::State &state) { compareSizesOfAssignment(state, stages); });
    for (const Sorting &sorting : largeSortings) {
        addRow(sorting.row, "10k actions", 5,
               [&](benchmark::State &state) { compareSizesOfSort(state, stages, sorting); });
    }
    addRow("load/model of 100k actions", "10k actions", 5,
           [&](benchmark::State &state) { compareSizesOfLoad(state, stages); });
}

} // namespace CUI::Bench
