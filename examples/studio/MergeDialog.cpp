#include "MergeDialog.h"

#include <UiCustomizations/ICuiActionManager.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Studio {

namespace {

using Merge = CUI::HotkeySetMerge;

enum Column { Subject, Mine, Theirs };

QString nameOf(const CUI::ActionIdentifier &identifier)
{
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    const CUI::VelAction *action = registry != nullptr ? registry->getAction(identifier) : nullptr;
    return action != nullptr ? action->name() : identifier.toString();
}

QString subjectOf(const Merge::Clash &clash)
{
    if (clash.kind == Merge::ClashKind::Action)
        return nameOf(clash.actionId);
    return QKeySequence::fromString(clash.shortcut, QKeySequence::PortableText)
            .toString(QKeySequence::NativeText);
}

QString textOf(const Merge::Steps &steps)
{
    QStringList lines;
    for (const CUI::ShortcutTransformation &step : steps)
        lines << step.toString();
    return lines.isEmpty() ? MergeDialog::tr("Unchanged") : lines.join(QLatin1Char('\n'));
}

} // namespace

MergeDialog::MergeDialog(const Merge &merge, QWidget *parent)
    : QDialog(parent),
      m_merge(merge),
      m_list(new QTreeWidget(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName(QStringLiteral("mergeDialog"));
    setWindowTitle(tr("Merge Hotkey Sets"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(760, 380);
    auto *label =
            new QLabel(tr("Both sets changed the following. Choose for each row which side is "
                          "taken; everything else is merged."));
    label->setWordWrap(true);
    m_list->setRootIsDecorated(false);
    m_list->setSelectionBehavior(QAbstractItemView::SelectItems); // the arrow keys reach each box
    m_list->setHeaderLabels({tr("Action or Hotkey"), tr("Mine"), tr("Theirs")});
    m_list->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_list->setAccessibleName(label->text());
    for (std::size_t i = 0; i < m_merge.clashes().size(); ++i)
        addRow(i);
    connect(m_list, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item, int column) {
        if (item->checkState(column) == Qt::Checked)
            m_merge.choose(static_cast<std::size_t>(m_list->indexOfTopLevelItem(item)),
                           column == Mine ? Merge::Side::Mine : Merge::Side::Theirs);
        showChoices();
    });
    const auto add = [this](const QString &text, Merge::Side side) {
        QPushButton *button = m_buttons->addButton(text, QDialogButtonBox::ActionRole);
        connect(button, &QPushButton::clicked, this, [this, side] {
            m_merge.chooseAll(side);
            showChoices();
        });
    };
    add(tr("All &Mine"), Merge::Side::Mine);
    add(tr("All &Theirs"), Merge::Side::Theirs);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Merge"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addWidget(m_buttons);
    m_list->setCurrentItem(m_list->topLevelItem(0), Mine);
    showChoices();
}

void MergeDialog::addRow(std::size_t clash)
{
    const Merge::Clash &what = m_merge.clashes()[clash];
    auto *row =
            new QTreeWidgetItem(m_list, {subjectOf(what), textOf(what.mine), textOf(what.theirs)});
    row->setCheckState(Mine, Qt::Unchecked);
    row->setCheckState(Theirs, Qt::Unchecked);
}

void MergeDialog::showChoices()
{
    const QSignalBlocker blocker(m_list);
    for (std::size_t i = 0; i < m_merge.clashes().size(); ++i) {
        const std::optional<Merge::Side> choice = m_merge.clashes()[i].choice;
        QTreeWidgetItem *row = m_list->topLevelItem(static_cast<int>(i));
        row->setCheckState(Mine, choice == Merge::Side::Mine ? Qt::Checked : Qt::Unchecked);
        row->setCheckState(Theirs, choice == Merge::Side::Theirs ? Qt::Checked : Qt::Unchecked);
    }
    m_list->viewport()->update();
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_merge.isSettled());
}

} // namespace Studio
