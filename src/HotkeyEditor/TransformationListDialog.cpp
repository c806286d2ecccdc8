#include "TransformationListDialog.h"

#include "EditorText.h"
#include "QvelShortcutManager.h"

#include <QEvent>
#include <QListView>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace CUI {

namespace {

QString title()
{
    return editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Shortcut Transformation List"));
}

} // namespace

TransformationListDialog::TransformationListDialog(const QvelShortcutManager *manager,
                                                   QWidget *parent)
    : QDialog(parent), m_manager(manager)
{
    setWindowTitle(title());
    auto *list = new QListView(this);
    m_model = new QStandardItemModel(list);
    list->setModel(m_model);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setUniformItemSizes(true);
    list->setAccessibleName(windowTitle());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(list);
    resize(420, 320);
    refill();
}

void TransformationListDialog::followAdded(const ShortcutTransformation &step)
{
    // A collapse that came with the same edit has listed it, or has found it cancelled.
    if (static_cast<std::size_t>(m_model->rowCount()) < m_manager->currentTransformations().size())
        append(step);
}

void TransformationListDialog::append(const ShortcutTransformation &step)
{
    m_model->appendRow(new QStandardItem(step.toString()));
}

void TransformationListDialog::refill()
{
    m_model->clear();
    for (const ShortcutTransformation &step : m_manager->currentTransformations())
        append(step);
}

void TransformationListDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setWindowTitle(title());
        refill();
    }
    QDialog::changeEvent(event);
}

} // namespace CUI
