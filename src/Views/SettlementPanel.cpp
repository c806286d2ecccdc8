#include "SettlementPanel.h"

#include "HotkeyAudit.h"
#include "ShownNames.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace CUI {

namespace {

class Words
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelConflictsWidget)
};

QLabel *makeText(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

SettlementPanel::SettlementPanel(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void SettlementPanel::setFinding(const HotkeyFinding *finding, const HotkeyAudit &audit,
                                 const QvelShortcutManager &manager)
{
    auto *contents = new QWidget;
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    if (finding == nullptr) {
        layout->addWidget(makeText(Words::tr("Select a finding to see what settles it.")));
    } else {
        layout->addWidget(makeText(finding->text));
        for (const HotkeyReservation &reservation : finding->reservations) {
            layout->addWidget(
                    makeText(QStringLiteral("%1: %2").arg(reservation.source, reservation.use)));
        }
        auto *grid = new QGridLayout;
        for (const Settlements::Row &row : Settlements::of(*finding, manager))
            addRow(grid, row, audit);
        grid->setColumnStretch(grid->columnCount(), 1);
        layout->addLayout(grid);
    }
    layout->addStretch();
    if (QWidget *old = takeWidget())
        old->deleteLater(); // one of its buttons may have been clicked
    setWidget(contents);
    contents->setAutoFillBackground(false); // the panel has the background of its parent
}

void SettlementPanel::addRow(QGridLayout *grid, const Settlements::Row &row,
                             const HotkeyAudit &audit)
{
    const int line = grid->rowCount();
    int column = 0;
    grid->addWidget(makeName(row), line, column++);
    auto *hotkey = new QLabel(ShownNames::ofHotkey(row.holder.hotkey));
    hotkey->setTextFormat(Qt::PlainText);
    grid->addWidget(hotkey, line, column++);
    const bool isLost = !row.giveBack.steps.empty();
    if (isLost)
        grid->addWidget(makeButton(Words::tr("Give back"), row.giveBack), line, column++);
    if (!row.give.steps.empty())
        grid->addWidget(makeButton(Words::tr("Give to this action"), row.give), line, column++);
    if (!row.remove.steps.empty())
        grid->addWidget(makeButton(Words::tr("Remove"), row.remove), line, column++);
    grid->addWidget(makeReplacements(row, audit), line, column);
}

QWidget *SettlementPanel::makeName(const Settlements::Row &row)
{
    auto *name =
            new QLabel(QStringLiteral("<a href=\"action\">%1</a>").arg(row.name.toHtmlEscaped()));
    name->setTextFormat(Qt::RichText);
    name->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    name->setAccessibleName(row.name);
    connect(name, &QLabel::linkActivated, this,
            [this, action = row.holder.action] { Q_EMIT actionChosen(action); });
    return name;
}

QWidget *SettlementPanel::makeButton(const QString &text, const HotkeyCommand &edits)
{
    auto *button = new QPushButton(text);
    button->setAutoDefault(false);
    button->setToolTip(edits.text);
    button->setAccessibleName(edits.text);
    connect(button, &QPushButton::clicked, this, [this, edits] { Q_EMIT chosen(edits); });
    return button;
}

QToolButton *SettlementPanel::makeReplacements(const Settlements::Row &row,
                                               const HotkeyAudit &audit)
{
    auto *button = new QToolButton;
    button->setText(Words::tr("Choose another"));
    button->setAccessibleName(
            QStringLiteral("%1: %2, %3")
                    .arg(button->text(), ShownNames::ofHotkey(row.holder.hotkey), row.name));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    auto *menu = new QMenu(button);
    for (const HotkeyCommand &edits : Settlements::replacementsFor(row, audit))
        menu->addAction(edits.text, this, [this, edits] { Q_EMIT chosen(edits); });
    button->setMenu(menu);
    button->setEnabled(!menu->isEmpty());
    return button;
}

} // namespace CUI
