#include "BrowsingStage.h"

#include "Configuration.h"

#include <QCoreApplication>
#include <QEvent>

namespace CUI::Bench {

QStringList hotkeysOf(int action)
{
    const int place = (slotOf(action) + action) % 10;
    if (place >= 4)
        return {};
    return place > 0 ? QStringList{firstHotkeyOf(action)}
                     : QStringList{firstHotkeyOf(action), secondHotkeyOf(action)};
}

Stage::Stage(Workload &workload, int actionCount) : m_workload(workload), m_size(actionCount)
{
    const Silence silence;
    select();
    for (int i = 0; i < actionCount; ++i) {
        for (const QString &hotkey : hotkeysOf(i))
            m_store.assignShortcut(actionAt(i), hotkey, {});
    }
    m_store.applyTransforms();
    m_model = std::make_unique<QvelActionItemModel>(&m_store);
}

void Stage::select()
{
    m_workload.select(m_size);
}

Stage &Stages::ofSize(int actionCount)
{
    std::unique_ptr<Stage> &stage = m_stages[actionCount];
    if (stage == nullptr)
        stage = std::make_unique<Stage>(m_workload, actionCount);
    stage->select();
    return *stage;
}

PaintWatch::PaintWatch(QAbstractScrollArea &area)
{
    area.viewport()->installEventFilter(this);
}

void PaintWatch::wait()
{
    while (!m_isPainted)
        QCoreApplication::processEvents();
    m_isPainted = false;
}

bool PaintWatch::eventFilter(QObject *, QEvent *event)
{
    m_isPainted = m_isPainted || event->type() == QEvent::Paint;
    return false;
}

Screen::Screen(Stage &stage, std::unique_ptr<QSortFilterProxyModel> proxy)
    : m_proxy(std::move(proxy)), m_watch(m_tree)
{
    m_proxy->setDynamicSortFilter(false);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setFilterKeyColumn(QvelActionItemModel::ActionColumn);
    m_proxy->setSourceModel(&stage.model());
    m_tree.setModel(m_proxy.get());
    m_tree.setAlternatingRowColors(true);
    m_tree.setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tree.setSortingEnabled(true);
    const int character = m_tree.fontMetrics().averageCharWidth();
    m_tree.setColumnWidth(QvelActionItemModel::ActionColumn, 35 * character);
    m_tree.setColumnWidth(QvelActionItemModel::HotkeyColumn, 25 * character);
    m_tree.setColumnWidth(QvelActionItemModel::GroupColumn, 20 * character);
    m_tree.resize(800, 600);
    m_tree.show();
    sort(QvelActionItemModel::ActionColumn, Qt::AscendingOrder);
}

void Screen::sort(int column, Qt::SortOrder order)
{
    m_tree.sortByColumn(column, order);
    untilPainted();
}

SearchScreen::SearchScreen(Stage &stage)
    : Screen(stage, std::make_unique<QvelSortFilterProxyModel>(&stage.store()))
{
    search().setActionSearchSorting(true);
}

void SearchScreen::searchHotkeys()
{
    search().setActionSearchSorting(false);
    search().setFilterKeyColumn(QvelActionItemModel::HotkeyColumn);
    sort(QvelActionItemModel::HotkeyColumn, Qt::AscendingOrder);
}

void SearchScreen::type(const QString &text)
{
    search().updateFilterString(text);
    untilPainted();
}

BareScreen::BareScreen(Stage &stage) : Screen(stage, std::make_unique<QSortFilterProxyModel>()) { }

void BareScreen::type(const QString &text)
{
    proxy().setFilterFixedString(text);
    proxy().invalidate();
    untilPainted();
}

} // namespace CUI::Bench
