#pragma once

#include "QvelSortFilterProxyModel.h"
#include "Stage.h"

#include <QLineEdit>
#include <QTreeView>

#include <memory>

namespace CUI::Bench {

/// Waits for the paintings of a widget.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget &widget) : m_widget(widget) { widget.installEventFilter(this); }

    /// Requests a painting, and handles events until it is done.
    void wait();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_widget;
    bool m_isPainted = false;
};

/// Something that lists actions and is searched by typing.
class Searcher
{
public:
    virtual ~Searcher() = default;
    /// Replaces the text and returns when the outcome is on the screen.
    virtual void type(const QString &text) = 0;
    /// How many actions are listed.
    virtual int listedCount() const = 0;
};

/// A proxy in a tree view like the editor's, sorted by name.
class Screen : public Searcher
{
public:
    Screen(QAbstractItemModel &model, std::unique_ptr<QSortFilterProxyModel> proxy);

    void type(const QString &text) override;
    int listedCount() const override { return m_proxy->rowCount(); }
    QString text(int row, int column) const
    {
        return m_proxy->index(row, column).data().toString();
    }
    /// Returns when the outcome is on the screen.
    void sort(int column);
    /// Searches in another column from here on.
    void setSearchedColumn(int column) { m_proxy->setFilterKeyColumn(column); }

private:
    std::unique_ptr<QSortFilterProxyModel> m_proxy;
    QTreeView m_tree;
    PaintWatch m_watch{*m_tree.viewport()};
};

/// A window of the library with a search field over a table of actions.
class SearchWindow : public Searcher
{
public:
    /// Returns when the window, which is shown already, has been painted.
    SearchWindow(std::unique_ptr<QWidget> window, const char *searchName, const char *tableName);

    void type(const QString &text) override;
    int listedCount() const override { return m_table->model()->rowCount(); }

protected:
    QWidget &window() { return *m_window; }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return m_window->findChild<Widget *>(QLatin1String(name));
    }
    void untilPainted() { m_watch.wait(); }

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_search;
    QTreeView *m_table;
    PaintWatch m_watch;
};

/// The hotkey editor with all actions, as large as its rival.
class EditorScreen : public SearchWindow
{
public:
    explicit EditorScreen(QvelShortcutManager &store = Stage::instance().store());

    using SearchWindow::untilPainted;
    void select(int action);
    void select() { select(edited); }
    void selectOther() { select(edited + 1); }
    /// Gives the selected action Ctrl+Alt+F11, which no other has.
    void assign();
    /// Takes it away again.
    void remove();

    static constexpr int edited = 30;
};

/// Opens the shortcut editor of KDE Frameworks with the actions and hotkeys of the stage, and
/// returns when it has been painted. What it waits before it searches a typed text is left out.
/// Null when the benchmarks were built without it.
std::unique_ptr<Searcher> openRival();

} // namespace CUI::Bench
