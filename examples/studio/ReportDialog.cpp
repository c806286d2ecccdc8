#include "ReportDialog.h"

#include <UiCustomizations/ICuiActionManager.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Studio {

namespace {

using Report = CUI::HotkeySetReport;

enum Column { Change, Problem, Remedy };

// The entries of the choosers; those for actions follow.
enum Choice { Keep, Drop, Another };

QString nameOf(const CUI::ActionIdentifier &identifier)
{
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    const CUI::VelAction *action = registry != nullptr ? registry->getAction(identifier) : nullptr;
    return action != nullptr ? action->name() : identifier.toString();
}

QString problemOf(const Report::Entry &entry)
{
    switch (entry.effect) {
    case Report::Effect::NamesUnknownAction:
        return ReportDialog::tr("There is no action %1.").arg(entry.step.actionId().toString());
    case Report::Effect::RemovesNothing:
        return ReportDialog::tr("The action does not have the hotkey.");
    default:
        return ReportDialog::tr("The action has six hotkeys already.");
    }
}

void addChoice(QComboBox *box, const CUI::ActionIdentifier &action)
{
    box->addItem(ReportDialog::tr("Use for %1").arg(nameOf(action)), QVariant::fromValue(action));
}

} // namespace

ReportDialog::ReportDialog(const Report &report, QWidget *parent)
    : QDialog(parent), m_report(report), m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("reportDialog"));
    setWindowTitle(tr("Changes That No Longer Apply"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(860, 380);
    auto *label = new QLabel(tr("These changes of the hotkey set have no effect in this version of "
                                "the application. What is kept stays in the file."));
    label->setWordWrap(true);
    m_list->setRootIsDecorated(false);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHeaderLabels({tr("Change"), tr("Problem"), tr("What to Do")});
    m_list->header()->setSectionResizeMode(QHeaderView::Stretch);
    for (std::size_t i = 0; i < m_report.entries().size(); ++i) {
        if (!m_report.entries()[i].applies())
            addRow(i);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Apply"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
}

void ReportDialog::addRow(std::size_t entry)
{
    const Report::Entry &what = m_report.entries()[entry];
    auto *row = new QTreeWidgetItem(m_list, {what.step.toString(), problemOf(what)});
    row->setToolTip(Problem, row->text(Problem));
    auto *box = new QComboBox;
    box->addItems({tr("Keep"), tr("Drop"), tr("Use for Another Action...")});
    if (!what.other.isEmpty())
        addChoice(box, what.other);
    box->setAccessibleName(row->text(Change));
    m_list->setItemWidget(row, Remedy, box);
    connect(box, qOverload<int>(&QComboBox::activated), this,
            [this, entry, box] { choose(entry, box); });
}

void ReportDialog::choose(std::size_t entry, QComboBox *box)
{
    if (box->currentIndex() == Another) {
        const CUI::ActionIdentifier action = askForAction();
        if (!action.isEmpty())
            addChoice(box, action);
        box->setCurrentIndex(action.isEmpty() ? int{Keep} : box->count() - 1);
    }
    if (box->currentIndex() == Keep)
        m_report.keep(entry);
    else if (box->currentIndex() == Drop)
        m_report.drop(entry);
    else
        m_report.remap(entry, box->currentData().value<CUI::ActionIdentifier>());
}

CUI::ActionIdentifier ReportDialog::askForAction()
{
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    QMap<QString, CUI::ActionIdentifier> actions;
    for (const auto &entry : registry->actions()) {
        const CUI::VelActionContext *group = registry->getActionContext(entry.second->contextId());
        if (group != nullptr)
            actions.insert(QStringLiteral("%1 (%2)").arg(entry.second->name(), group->name()),
                           entry.first);
    }
    bool isChosen = false;
    const QString name = QInputDialog::getItem(this, tr("Use for Another Action"), tr("Action:"),
                                               QStringList(actions.keys()), 0, false, &isChosen);
    return isChosen ? actions.value(name) : CUI::ActionIdentifier();
}

} // namespace Studio
