#pragma once

#include "QvelActionItemModel.h"
#include "QvelShortcutManager.h"
#include "QvelSortFilterProxyModel.h"

#include <QAbstractScrollArea>
#include <QObject>
#include <QString>
#include <QTreeView>

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
    /// Makes the registry of this stage the installed one.
    void select();

private:
    Workload &m_workload;
    int m_size;
    QvelShortcutManager m_store;
    std::unique_ptr<QvelActionItemModel> m_model;
};

/// Tells when a scroll area that is shown has been painted anew.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QAbstractScrollArea &area);

    /// Handles events until the area has been painted since the last call and nothing is left to
    /// do.
    void wait();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractScrollArea &m_area;
    bool m_isPainted = false;
};

/// A proxy in the tree view that the editor shows it in.
class Screen
{
public:
    Screen(Stage &stage, std::unique_ptr<QSortFilterProxyModel> proxy);

    QSortFilterProxyModel &proxy() { return *m_proxy; }
    int rowCount() const { return m_proxy->rowCount(); }
    QString nameIn(int row) const { return m_proxy->index(row, 0).data().toString(); }

    void sort(int column, Qt::SortOrder order) { m_tree.sortByColumn(column, order); }
    void untilPainted() { m_watch.wait(); }

private:
    std::unique_ptr<QSortFilterProxyModel> m_proxy;
    QTreeView m_tree;
    PaintWatch m_watch;
};

/// A search as a user types it.
class Searcher
{
public:
    virtual ~Searcher() = default;
    virtual void type(const QString &text) = 0;
};

/// The proxy under test, sorted by name and how well it matches.
class Subject : public Screen, public Searcher
{
public:
    explicit Subject(Stage &stage);

    QvelSortFilterProxyModel &search() { return static_cast<QvelSortFilterProxyModel &>(proxy()); }
    void type(const QString &text) override;
};

/// The bare proxy, sorted by name.
class BareProxy : public Screen, public Searcher
{
public:
    explicit BareProxy(Stage &stage);

    void type(const QString &text) override;
};

} // namespace CUI::Bench
