#pragma once

#include "Document.h"
#include "ViewState.h"

#include <QLineEdit>
#include <QSet>
#include <QTreeWidget>
#include <QWidget>

namespace Studio {

/// The tree of the scene's objects, with a filter for their names. Dots after a name show whether
/// the object is visible, selectable and rendered; a click on one toggles it.
class Outliner : public QWidget
{
    Q_OBJECT

public:
    Outliner(Document *document, ViewState *view, QWidget *parent = nullptr);

    void filterByName();
    void rename();
    void expandAll() { m_tree->expandAll(); }
    void collapseAll() { m_tree->collapseAll(); }
    void expandOne(bool expand);
    /// Scrolls to the active object, opening what it lies in.
    void revealActive();

    QSize sizeHint() const override { return {300, 320}; }

private:
    void rebuild();
    void addItems(QTreeWidgetItem *parent, int id);
    QTreeWidgetItem *makeItem(const SceneObject &object) const;
    void takeSelection();
    void takeName(QTreeWidgetItem *item, int column);
    void toggle(QTreeWidgetItem *item, int column);
    QTreeWidgetItem *itemOf(int id) const;

    Document *m_document;
    ViewState *m_view;
    QLineEdit *m_filter;
    QTreeWidget *m_tree;
    QSet<int> m_collapsed;
    bool m_isRebuilding = false;
};

} // namespace Studio
