#include "Outliner.h"

#include "Icons.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace Studio {

namespace {

enum Column { NameColumn, VisibleColumn, SelectableColumn, RenderColumn, ColumnCount };
constexpr int idRole = Qt::UserRole;

int idOf(const QTreeWidgetItem *item)
{
    return item->data(NameColumn, idRole).toInt();
}

QIcon iconOf(SceneObject::Kind kind)
{
    switch (kind) {
    case SceneObject::Kind::Mesh:
        return Icons::make(QStringLiteral("cube"));
    case SceneObject::Kind::Light:
        return Icons::make(QStringLiteral("light"));
    case SceneObject::Kind::Camera:
        return Icons::make(QStringLiteral("camera"));
    case SceneObject::Kind::Joint:
        return Icons::make(QStringLiteral("joint"));
    case SceneObject::Kind::Group:
    case SceneObject::Kind::Collection:
        return Icons::make(QStringLiteral("folder"));
    }
    return {};
}

} // namespace

Outliner::Outliner(Document *document, ViewState *view, QWidget *parent)
    : QWidget(parent),
      m_document(document),
      m_view(view),
      m_filter(new QLineEdit(this)),
      m_tree(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("outliner"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_filter);
    layout->addWidget(m_tree);
    m_filter->setObjectName(QStringLiteral("outlinerFilter"));
    m_filter->setPlaceholderText(tr("Filter by name"));
    m_filter->setClearButtonEnabled(true);
    m_tree->setObjectName(QStringLiteral("outlinerTree"));
    m_tree->setColumnCount(ColumnCount);
    m_tree->setHeaderHidden(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_tree->setUniformRowHeights(true);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setMinimumSectionSize(20);
    m_tree->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    for (int column = VisibleColumn; column < ColumnCount; ++column) {
        m_tree->header()->setSectionResizeMode(column, QHeaderView::Fixed);
        m_tree->setColumnWidth(column, 26);
    }
    setFocusProxy(m_tree);
    connect(m_filter, &QLineEdit::textChanged, this, &Outliner::rebuild);
    connect(m_filter, &QLineEdit::returnPressed, this, [this] { m_tree->setFocus(); });
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &Outliner::takeSelection);
    connect(m_tree, &QTreeWidget::itemChanged, this, &Outliner::takeName);
    connect(m_tree, &QTreeWidget::itemClicked, this, &Outliner::toggle);
    connect(m_tree, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem *item) {
        if (!m_isRebuilding)
            m_collapsed.insert(idOf(item));
    });
    connect(m_tree, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) {
        if (!m_isRebuilding)
            m_collapsed.remove(idOf(item));
    });
    connect(document, &Document::changed, this, &Outliner::rebuild);
    rebuild();
}

void Outliner::filterByName()
{
    m_filter->setFocus();
    m_filter->selectAll();
}

void Outliner::rename()
{
    if (QTreeWidgetItem *item = itemOf(m_document->scene().activeId)) {
        m_tree->setCurrentItem(item, NameColumn, QItemSelectionModel::NoUpdate);
        m_tree->editItem(item, NameColumn);
    }
}

void Outliner::expandOne(bool expand)
{
    if (expand)
        m_tree->expandToDepth(0);
    else
        m_tree->collapseAll();
}

void Outliner::revealActive()
{
    QTreeWidgetItem *item = itemOf(m_document->scene().activeId);
    if (item == nullptr)
        return;
    for (QTreeWidgetItem *above = item->parent(); above != nullptr; above = above->parent())
        above->setExpanded(true);
    m_tree->scrollToItem(item);
}

QTreeWidgetItem *Outliner::itemOf(int id) const
{
    for (QTreeWidgetItemIterator item(m_tree); *item != nullptr; ++item) {
        if (idOf(*item) == id)
            return *item;
    }
    return nullptr;
}

// Scenes are small, so the tree is rebuilt rather than compared.
void Outliner::rebuild()
{
    if (m_isRebuilding)
        return;
    const QScopedValueRollback<bool> guard(m_isRebuilding, true);
    const int scrolled = m_tree->verticalScrollBar()->value();
    m_tree->clear();
    addItems(m_tree->invisibleRootItem(), 0);
    for (QTreeWidgetItemIterator item(m_tree); *item != nullptr; ++item) {
        const SceneObject *object = m_document->scene().find(idOf(*item));
        (*item)->setExpanded(!m_collapsed.contains(object->id));
        (*item)->setSelected(object->selected);
    }
    m_tree->verticalScrollBar()->setValue(scrolled);
}

void Outliner::addItems(QTreeWidgetItem *parent, int id)
{
    for (const SceneObject &object : m_document->scene().objects) {
        if (object.parent != id)
            continue;
        QTreeWidgetItem *item = makeItem(object);
        parent->addChild(item);
        addItems(item, object.id);
        const bool matches = object.name.contains(m_filter->text(), Qt::CaseInsensitive);
        item->setHidden(!matches && item->childCount() == 0);
        for (int i = 0; i < item->childCount() && item->isHidden(); ++i)
            item->setHidden(item->child(i)->isHidden());
    }
}

QTreeWidgetItem *Outliner::makeItem(const SceneObject &object) const
{
    auto *item = new QTreeWidgetItem;
    item->setText(NameColumn, object.name);
    item->setData(NameColumn, idRole, object.id);
    item->setIcon(NameColumn, iconOf(object.kind));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    item->setIcon(VisibleColumn,
                  Icons::make(object.visible ? QStringLiteral("eye") : QStringLiteral("eyeOff")));
    item->setIcon(SelectableColumn, Icons::make(object.selectable ? QStringLiteral("arrow")
                                                                  : QStringLiteral("lock")));
    item->setIcon(RenderColumn, Icons::make(object.renderable ? QStringLiteral("camera")
                                                              : QStringLiteral("off")));
    if (!object.visible)
        item->setForeground(NameColumn, palette().brush(QPalette::Disabled, QPalette::Text));
    return item;
}

void Outliner::takeSelection()
{
    if (m_isRebuilding)
        return;
    QVector<int> ids;
    for (const QTreeWidgetItem *item : m_tree->selectedItems())
        ids.append(idOf(item));
    // The tree must not be rebuilt in its own signal, while it handles a click.
    const QScopedValueRollback<bool> guard(m_isRebuilding, true);
    m_document->edit(QStringLiteral("Select"), [&ids](Scene &scene) { scene.selectOnly(ids); });
}

void Outliner::takeName(QTreeWidgetItem *item, int column)
{
    if (m_isRebuilding || column != NameColumn)
        return;
    const int id = idOf(item);
    const QString name = item->text(NameColumn).trimmed();
    const auto rename = [this, id, name] {
        if (!m_document->edit(QStringLiteral("Rename"), [id, name](Scene &scene) {
                SceneObject *object = scene.find(id);
                if (object != nullptr && !name.isEmpty() && object->name != name)
                    object->name = scene.freeName(name);
            }))
            rebuild();
    };
    QMetaObject::invokeMethod(this, rename, Qt::QueuedConnection);
}

void Outliner::toggle(QTreeWidgetItem *item, int column)
{
    if (column == NameColumn)
        return;
    const int id = idOf(item);
    const auto flip = [this, id, column] {
        m_document->edit(QStringLiteral("Toggle"), [id, column](Scene &scene) {
            SceneObject *object = scene.find(id);
            bool &flag = column == VisibleColumn      ? object->visible
                         : column == SelectableColumn ? object->selectable
                                                      : object->renderable;
            flag = !flag;
        });
    };
    QMetaObject::invokeMethod(this, flip, Qt::QueuedConnection);
}

} // namespace Studio
