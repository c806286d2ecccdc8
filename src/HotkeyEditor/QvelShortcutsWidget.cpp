#include "QvelShortcutsWidget.h"

#include "QvelShortcutsWidgetPrivate.h"

#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeView>

namespace CUI {

QvelShortcutsWidget::QvelShortcutsWidget(QvelActionItemModel *model, QvelShortcutManager *manager,
                                         QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this, model, manager))
{
    d->build();
    d->connectAll();
    d->currentSet->showStoreState();
}

QvelShortcutsWidget::~QvelShortcutsWidget()
{
    // The toolkit still needs a combo box whose signal has led to a question, until the question
    // has returned.
    if (!d->commands->isChoosing())
        return;
    d->form.hotkeySetComboBox->setParent(nullptr);
    d->form.hotkeySetComboBox->deleteLater();
}

// Looks

void QvelShortcutsWidget::setUserModifiedColor(const QColor &color)
{
    d->form.hotkeySetComboBox->setUserModifiedColor(color);
    d->delegate->setUserModifiedColor(color);
    d->panel->updateSelectedActionShortcutList();
}

void QvelShortcutsWidget::setTransformShortcutsColor(const QColor &color)
{
    d->delegate->setTransformColor(color);
    d->panel->updateSelectedActionShortcutList();
}

void QvelShortcutsWidget::setPresetComboBoxItemIcon(const QIcon &icon)
{
    d->form.hotkeySetComboBox->setLockIcon(icon);
    d->currentSet->refreshList();
}

void QvelShortcutsWidget::setToolButtonPresetOptionsIcon(const QIcon &icon)
{
    d->form.presetOptionsButton->setIcon(icon);
}

void QvelShortcutsWidget::setToolButtonSavePresetIcon(const QIcon &icon)
{
    d->form.savePresetButton->setIcon(icon);
}

// The list of actions

void QvelShortcutsWidget::setCurrentContext(unsigned long contextId)
{
    const int index = d->form.contextComboBox->findData(QVariant::fromValue(qulonglong{contextId}),
                                                        Qt::UserRole, Qt::MatchCaseSensitive);
    if (index >= 0)
        d->form.contextComboBox->setCurrentIndex(index);
}

void QvelShortcutsWidget::setHotkeyFilter(int index)
{
    d->form.hotkeyFilterComboBox->setCurrentIndex(index);
}

void QvelShortcutsWidget::searchForHotkey(const QString &hotkey)
{
    d->search->searchForHotkey(hotkey);
}

void QvelShortcutsWidget::sortActionTreeByColumn(QvelActionItemModel::ActionTreeColumns column)
{
    d->form.keyActionsTreeView->sortByColumn(column, Qt::AscendingOrder);
}

void QvelShortcutsWidget::reloadActionsList()
{
    const ActionIdentifier selected = d->panel->currentActionId();
    d->saveHeadersSizes();
    d->model->loadActionsToModel();
    d->restoreHeadersSizes();
    if (!selected.isEmpty() && d->panel->currentAction() == nullptr)
        clearSelection(); // it is no longer registered
    else
        setCurrentAction(selected, false);
}

// The selected action

void QvelShortcutsWidget::setCurrentAction(const ActionIdentifier &id, bool focus)
{
    d->panel->setCurrentAction(id, focus);
}

VelAction *QvelShortcutsWidget::currentAction() const
{
    return d->panel->currentAction();
}

void QvelShortcutsWidget::clearSelection()
{
    d->panel->clearSelection();
}

void QvelShortcutsWidget::resetSelectedActionFields()
{
    d->panel->resetSelectedActionFields();
}

// Hotkey sets

bool QvelShortcutsWidget::isModified() const
{
    return d->currentSet->isModified();
}

void QvelShortcutsWidget::markModified()
{
    d->currentSet->markModified();
}

void QvelShortcutsWidget::unmarkModified(bool invalidate)
{
    d->currentSet->unmarkModified(invalidate);
}

bool QvelShortcutsWidget::maybeSaveChanges()
{
    return d->commands->maybeSaveChanges();
}

bool QvelShortcutsWidget::maybeDiscardChanges()
{
    return d->commands->maybeDiscardChanges();
}

void QvelShortcutsWidget::discardChanges()
{
    d->commands->discardChanges();
}

void QvelShortcutsWidget::selectFileForConversion()
{
    d->commands->selectFileForConversion();
}

void QvelShortcutsWidget::validateShortcutFile()
{
    d->commands->validateShortcutFile();
}

void QvelShortcutsWidget::validateShortcutTransformationFile()
{
    d->commands->validateShortcutTransformationFile();
}

void QvelShortcutsWidget::saveShortcutsTransformation()
{
    d->commands->saveAs();
}

void QvelShortcutsWidget::loadShortcutsTransformation()
{
    d->commands->loadFromFile();
}

void QvelShortcutsWidget::saveShortcuts()
{
    d->commands->saveShortcuts();
}

void QvelShortcutsWidget::loadShortcuts()
{
    d->commands->loadShortcuts();
}

// Recorded steps

void QvelShortcutsWidget::transformationListWidget()
{
    if (d->transformationDialog == nullptr) {
        d->transformationDialog = new TransformationListDialog(d->manager, this);
        d->transformationDialog->show();
    } else {
        d->transformationDialog->setVisible(!d->transformationDialog->isVisible());
    }
}

void QvelShortcutsWidget::applyCurrentTransformation()
{
    d->manager->collapseTransforms(0);
    d->manager->applyTransforms();
    d->form.keyActionsTreeView->viewport()->update();
}

// Events

bool QvelShortcutsWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->form.newHotkeysGroupBox && event->type() == QEvent::Resize)
        d->panel->fitBoxHeight();
    if (watched == d->form.searchLineEdit && event->type() == QEvent::KeyPress
        && d->search->handleKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

void QvelShortcutsWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QWidget::changeEvent(event);
}

} // namespace CUI
