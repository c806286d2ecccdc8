#include "BrowsingStage.h"

#include "Configuration.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>

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

PaintWatch::PaintWatch(QAbstractScrollArea &area) : m_area(area)
{
    area.viewport()->installEventFilter(this);
}

void PaintWatch::wait()
{
    m_area.viewport()->update();
    while (!m_isPainted)
        QCoreApplication::processEvents();
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
    m_tree.sortByColumn(QvelActionItemModel::ActionColumn, Qt::AscendingOrder);
    m_tree.resize(900, 700);
    m_tree.show();
    untilPainted();
}

Subject::Subject(Stage &stage)
    : Screen(stage, std::make_unique<QvelSortFilterProxyModel>(&stage.store()))
{
    search().setActionSearchSorting(true);
}

void Subject::type(const QString &text)
{
    search().updateFilterString(text);
    untilPainted();
}

BareProxy::BareProxy(Stage &stage) : Screen(stage, std::make_unique<QSortFilterProxyModel>()) { }

void BareProxy::type(const QString &text)
{
    proxy().setFilterFixedString(text);
    proxy().invalidate();
    untilPainted();
}

} // namespace CUI::Bench
