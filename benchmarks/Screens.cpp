#include "Screens.h"

#include "QvelShortcutsWidget.h"
#include "Stage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace CUI::Bench {

namespace {

std::unique_ptr<QWidget> openEditor(QvelShortcutManager &store)
{
    // The editor would read the set of 10,000 steps that another row has loaded.
    Stage::instance().host().paths()->currentSet.clear();
    auto model = std::make_unique<QvelActionItemModel>(&store);
    auto editor = std::make_unique<QvelShortcutsWidget>(model.get(), &store);
    model.release()->setParent(editor.get());
    editor->resize(800, 600);
    editor->show();
    return editor;
}

} // namespace

void PaintWatch::wait()
{
    m_isPainted = false;
    m_widget.update(); // a view does not paint when nothing has changed
    while (!m_isPainted)
        QCoreApplication::processEvents();
}

bool PaintWatch::eventFilter(QObject *, QEvent *event)
{
    m_isPainted = m_isPainted || event->type() == QEvent::Paint;
    return false;
}

Screen::Screen(QAbstractItemModel &model, std::unique_ptr<QSortFilterProxyModel> proxy)
    : m_proxy(std::move(proxy))
{
    m_proxy->setDynamicSortFilter(false);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setFilterKeyColumn(QvelActionItemModel::ActionColumn);
    m_proxy->setSourceModel(&model);
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
    sort(QvelActionItemModel::ActionColumn);
}

void Screen::sort(int column)
{
    m_tree.sortByColumn(column, Qt::AscendingOrder);
    m_watch.wait();
}

void Screen::type(const QString &text)
{
    if (auto *search = qobject_cast<QvelSortFilterProxyModel *>(m_proxy.get())) {
        search->updateFilterString(text);
    } else {
        m_proxy->setFilterFixedString(text);
        m_proxy->invalidate();
    }
    m_watch.wait();
}

SearchWindow::SearchWindow(std::unique_ptr<QWidget> window, const char *searchName,
                           const char *tableName)
    : m_window(std::move(window)),
      m_search(child<QLineEdit>(searchName)),
      m_table(child<QTreeView>(tableName)),
      m_watch(*m_table->viewport())
{
    m_watch.wait();
}

void SearchWindow::type(const QString &text)
{
    m_search->setText(text);
    m_watch.wait();
}

EditorScreen::EditorScreen(QvelShortcutManager &store)
    : SearchWindow(openEditor(store), "HotkeyEditor_searchLineEdit",
                   "HotkeyEditor_keyActionsTreeView")
{
}

void EditorScreen::select(int action)
{
    static_cast<QvelShortcutsWidget &>(window()).setCurrentAction(actionAt(action), false);
    untilPainted();
}

void EditorScreen::assign()
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F11, Qt::ControlModifier | Qt::AltModifier);
    QApplication::sendEvent(child<QLineEdit>("HotkeyEditor_shortcutLineEdit"), &press);
    child<QPushButton>("HotkeyEditor_assignShortcutBtn")->click();
    untilPainted();
}

void EditorScreen::remove()
{
    const auto buttons = window().findChildren<QPushButton *>(
            QStringLiteral("HotkeyEditor_removeAssignedButton"));
    buttons.last()->click(); // the newest row is on top
    untilPainted();
}

} // namespace CUI::Bench
