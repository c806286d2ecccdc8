#pragma once

#include "QvelActionItemModel.h"
#include "QvelShortcutManager.h"
#include "QvelSortFilterProxyModel.h"

#include <QAbstractScrollArea>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTreeView>

#include <map>
#include <memory>

namespace CUI::Bench {

class Workload;

/// The hotkeys of the stage's actions: four in ten have one, one in ten has a second.
QStringList hotkeysOf(int action);

/// The actions of a registry with their hotkeys, in a model.
class Stage
{
public:
    Stage(Workload &workload, int actionCount);

    int size() const { return m_size; }
    QvelShortcutManager &store() { return m_store; }
    QvelActionItemModel &model() { return *m_model; }
    QString text(int row, int column) { return m_model->item(row, column)->text(); }
    /// Makes the registry of this stage the installed one.
    void select();

private:
    Workload &m_workload;
    int m_size;
    QvelShortcutManager m_store;
    std::unique_ptr<QvelActionItemModel> m_model;
};

/// The stages of the rows, each made when the first row needs it.
class Stages
{
public:
    explicit Stages(Workload &workload) : m_workload(workload) { }

    Stage &ofSize(int actionCount);

private:
    Workload &m_workload;
    std::map<int, std::unique_ptr<Stage>> m_stages;
};

/// Tells when a scroll area that is shown has been painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QAbstractScrollArea &area);

    /// Handles events until something of the area has been painted since the last call.
    void wait();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_isPainted = false;
};

/// A proxy in a tree view like the editor's.
class Screen
{
public:
    Screen(Stage &stage, std::unique_ptr<QSortFilterProxyModel> proxy);

    QSortFilterProxyModel &proxy() { return *m_proxy; }
    int rowCount() const { return m_proxy->rowCount(); }
    QString text(int row, int column) const
    {
        return m_proxy->index(row, column).data().toString();
    }

    /// Each returns when the outcome is on the screen.
    void sort(int column, Qt::SortOrder order);
    void untilPainted() { m_watch.wait(); }

private:
    std::unique_ptr<QSortFilterProxyModel> m_proxy;
    QTreeView m_tree;
    PaintWatch m_watch;
};

/// Something that is searched by typing.
class Searcher
{
public:
    virtual ~Searcher() = default;
    /// Replaces the text and returns when the outcome is on the screen.
    virtual void type(const QString &text) = 0;
    /// How many actions are listed.
    virtual int listedCount() const = 0;
};

/// The proxy that is measured, in a search by name.
class SearchScreen : public Screen, public Searcher
{
public:
    explicit SearchScreen(Stage &stage);

    QvelSortFilterProxyModel &search() { return static_cast<QvelSortFilterProxyModel &>(proxy()); }
    /// Searches by hotkey and sorts by it from here on.
    void searchHotkeys();
    void type(const QString &text) override;
    int listedCount() const override { return rowCount(); }
};

/// The toolkit's proxy, sorted by name.
class BareScreen : public Screen, public Searcher
{
public:
    explicit BareScreen(Stage &stage);

    void type(const QString &text) override;
    int listedCount() const override { return rowCount(); }
};

/// Types one text after the other, each until it is painted.
double secondsOfSequence(Searcher &searcher);

} // namespace CUI::Bench
