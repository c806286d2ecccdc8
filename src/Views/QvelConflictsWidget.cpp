#include "QvelConflictsWidget.h"

#include "FindingsFilter.h"
#include "FindingsModel.h"
#include "FocusWithin.h"
#include "HotkeyCommand.h"
#include "KeyCodes.h"
#include "NativeKeys.h"
#include "QvelShortcutManager.h"
#include "SettlementPanel.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTimer>
#include <QTreeView>

#include <algorithm>

namespace CUI {

namespace {

using Finding = HotkeyFinding;
using Kind = HotkeyFinding::Kind;
using Severity = HotkeyFinding::Severity;

constexpr int allKinds = -1;

bool isSame(const Finding &a, const Finding &b)
{
    return a.kind == b.kind && a.hotkey == b.hotkey
           && a.holders.front().action == b.holders.front().action;
}

} // namespace

class QvelConflictsWidget::Private
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelConflictsWidget)

public:
    Private(QvelConflictsWidget *widget, QvelShortcutManager *shortcutManager);

    void followManager();
    void audit();
    void retranslate();
    void chooseSeverity(Severity severity);

    QPointer<QvelShortcutManager> manager;
    HotkeyAudit::Options options;
    bool isStale = true; ///< the audit is older than the store
    QComboBox *severities;
    FindingsModel *model;

private:
    void build();
    void auditSoon();
    void fillSeverities();
    void fillKinds();
    void showCurrent();
    void showCount();
    void select(const std::optional<Finding> &finding, int row);
    const Finding *current() const;
    void apply(const HotkeyCommand &edits);

    QvelConflictsWidget *q;
    QLineEdit *m_search;
    QComboBox *m_kinds;
    QLabel *m_count;
    QTreeView *m_table;
    SettlementPanel *m_panel;
    QTimer m_soon;
    bool m_isAuditing = false;
    FindingsFilter *m_filter;
};

QvelConflictsWidget::Private::Private(QvelConflictsWidget *widget,
                                      QvelShortcutManager *shortcutManager)
    : manager(shortcutManager),
      severities(new QComboBox),
      model(new FindingsModel(widget)),
      q(widget),
      m_search(new QLineEdit),
      m_kinds(new QComboBox),
      m_count(new QLabel),
      m_table(new QTreeView),
      m_panel(new SettlementPanel(widget)),
      m_filter(new FindingsFilter(widget))
{
    options.typeableKeys = typeableKeys();
    options.systems = HotkeyReservation::systemsHere();
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, q, [this] { audit(); });
    build();
    retranslate();
    chooseSeverity(Severity::Warning);
    followManager();
}

// Construction

void QvelConflictsWidget::Private::build()
{
    m_search->setObjectName(QStringLiteral("conflictsSearch"));
    severities->setObjectName(QStringLiteral("conflictsSeverity"));
    m_kinds->setObjectName(QStringLiteral("conflictsKind"));
    m_count->setObjectName(QStringLiteral("conflictsCount"));
    m_table->setObjectName(QStringLiteral("conflictsTable"));
    m_panel->setObjectName(QStringLiteral("conflictsSettlements"));
    m_search->setClearButtonEnabled(true);
    // The longest kind would keep the window wide.
    m_kinds->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_kinds->setMinimumContentsLength(16);
    auto *choices = new QHBoxLayout;
    choices->addWidget(m_search, 1);
    choices->addWidget(severities);
    choices->addWidget(m_kinds);
    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(m_table);
    splitter->addWidget(m_panel);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(q);
    layout->addLayout(choices);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_count);

    m_filter->setSourceModel(model);
    m_table->setModel(m_filter);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(FindingsModel::SeverityColumn, Qt::AscendingOrder);
    const int character = m_table->fontMetrics().averageCharWidth();
    for (const auto &[column, width] : {std::make_pair(int{FindingsModel::SeverityColumn}, 14),
                                        std::make_pair(int{FindingsModel::KindColumn}, 22),
                                        std::make_pair(int{FindingsModel::HotkeyColumn}, 18),
                                        std::make_pair(int{FindingsModel::ActionsColumn}, 36)})
        m_table->setColumnWidth(
                column, std::max(width * character, m_table->header()->sectionSizeHint(column)));

    connect(m_search, &QLineEdit::textChanged, m_filter, &FindingsFilter::setSearch);
    connect(severities, qOverload<int>(&QComboBox::currentIndexChanged), q, [this] {
        m_filter->setLeastSeverity(static_cast<Severity>(severities->currentData().toInt()));
    });
    connect(m_kinds, qOverload<int>(&QComboBox::currentIndexChanged), q, [this] {
        const int kind = m_kinds->currentData().toInt();
        m_filter->setKind(kind == allKinds ? std::nullopt
                                           : std::make_optional(static_cast<Kind>(kind)));
    });
    connect(m_filter, &QAbstractItemModel::rowsInserted, q, [this] { showCount(); });
    connect(m_filter, &QAbstractItemModel::rowsRemoved, q, [this] { showCount(); });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, q,
            [this] { showCurrent(); });
    connect(m_table, &QAbstractItemView::activated, q, [this] {
        if (const Finding *finding = current())
            Q_EMIT q->actionActivated(ActionIdentifier(finding->holders.front().action));
    });
    connect(m_panel, &SettlementPanel::chosen, q,
            [this](const HotkeyCommand &edits) { apply(edits); });
    connect(m_panel, &SettlementPanel::actionChosen, q, &QvelConflictsWidget::actionSelected);
}

void QvelConflictsWidget::Private::followManager()
{
    using Manager = QvelShortcutManager;
    const auto soon = [this] { auditSoon(); };
    connect(manager, &Manager::shortcutAssigned, q, soon);
    connect(manager, &Manager::shortcutUnassigned, q, soon);
    connect(manager, &Manager::shortcutsCleared, q, soon);
    connect(manager, &Manager::shortcutTransformsCleared, q, soon);
    connect(manager, &Manager::shortcutConfigurationLoaded, q, soon);
    connect(manager, &QObject::destroyed, q, soon);
}

// Audits

void QvelConflictsWidget::Private::auditSoon()
{
    isStale = true;
    if (!m_soon.isActive())
        m_soon.start();
}

void QvelConflictsWidget::Private::audit()
{
    if (!isStale || !q->isVisible())
        return; // showEvent() comes back to it
    isStale = false;
    const std::optional<Finding> selected =
            current() != nullptr ? std::make_optional(*current()) : std::nullopt;
    const int row = m_table->currentIndex().row();
    const bool hadFocus = hasFocusWithin(m_panel);
    m_isAuditing = true;
    model->setAudit(manager.isNull() ? nullptr : std::make_shared<HotkeyAudit>(*manager, options));
    select(selected, row);
    m_isAuditing = false;
    if (hadFocus)
        m_table->setFocus(Qt::OtherFocusReason);
    showCount();
    Q_EMIT q->findingsChanged();
}

/// The same finding, or the one that has taken its place.
void QvelConflictsWidget::Private::select(const std::optional<Finding> &finding, int row)
{
    QModelIndex index;
    for (int i = 0; finding && i < m_filter->rowCount() && !index.isValid(); ++i) {
        const QModelIndex candidate = m_filter->index(i, 0);
        if (isSame(*model->finding(m_filter->mapToSource(candidate)), *finding))
            index = candidate;
    }
    if (!index.isValid() && row >= 0)
        index = m_filter->index(std::min(row, m_filter->rowCount() - 1), 0);
    if (index.isValid())
        m_table->setCurrentIndex(index);
    else
        showCurrent();
}

const Finding *QvelConflictsWidget::Private::current() const
{
    return model->finding(m_filter->mapToSource(m_table->currentIndex()));
}

void QvelConflictsWidget::Private::showCurrent()
{
    if (model->audit() == nullptr || manager.isNull())
        return;
    const Finding *finding = current();
    m_panel->setFinding(finding, *model->audit(), *manager);
    // What the audit selects, nobody has chosen.
    if (finding != nullptr && !m_isAuditing)
        Q_EMIT q->actionSelected(ActionIdentifier(finding->holders.front().action));
}

void QvelConflictsWidget::Private::showCount()
{
    m_count->setText(tr("Findings: %1 of %2")
                             .arg(QString::number(m_filter->rowCount()),
                                  QString::number(model->rowCount())));
}

void QvelConflictsWidget::Private::apply(const HotkeyCommand &edits)
{
    if (!manager.isNull())
        edits.apply(*manager);
}

// Choices and texts

void QvelConflictsWidget::Private::chooseSeverity(Severity severity)
{
    severities->setCurrentIndex(severities->findData(static_cast<int>(severity)));
}

void QvelConflictsWidget::Private::fillSeverities()
{
    const QVariant chosen = severities->currentData();
    const QSignalBlocker blocker(severities);
    severities->clear();
    severities->addItem(tr("Errors only"), static_cast<int>(Severity::Error));
    severities->addItem(tr("Errors and warnings"), static_cast<int>(Severity::Warning));
    severities->addItem(tr("All findings"), static_cast<int>(Severity::Note));
    severities->setCurrentIndex(severities->findData(chosen));
}

void QvelConflictsWidget::Private::fillKinds()
{
    const QVariant chosen = m_kinds->currentData();
    const QSignalBlocker blocker(m_kinds);
    m_kinds->clear();
    m_kinds->addItem(tr("All kinds"), allKinds);
    for (int kind = 0; kind <= static_cast<int>(Kind::NearLimit); ++kind)
        m_kinds->addItem(Finding::nameOf(static_cast<Kind>(kind)), kind);
    m_kinds->setCurrentIndex(std::max(m_kinds->findData(chosen), 0));
}

void QvelConflictsWidget::Private::retranslate()
{
    fillSeverities();
    fillKinds();
    m_search->setPlaceholderText(tr("Type to search..."));
    m_search->setAccessibleName(tr("Search the findings"));
    severities->setAccessibleName(tr("Least severe finding"));
    m_kinds->setAccessibleName(tr("Kind of finding"));
    m_table->setAccessibleName(tr("Findings"));
    m_panel->setAccessibleName(tr("What settles the finding"));
    model->setIcons({q->style()->standardIcon(QStyle::SP_MessageBoxInformation),
                     q->style()->standardIcon(QStyle::SP_MessageBoxWarning),
                     q->style()->standardIcon(QStyle::SP_MessageBoxCritical)});
    auditSoon();
}

QvelConflictsWidget::QvelConflictsWidget(QvelShortcutManager *manager, QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this, manager))
{
}

QvelConflictsWidget::~QvelConflictsWidget() = default;

void QvelConflictsWidget::setAuditOptions(const HotkeyAudit::Options &options)
{
    d->options = options;
    refresh();
}

HotkeyAudit::Options QvelConflictsWidget::auditOptions() const
{
    return d->options;
}

void QvelConflictsWidget::setLeastSeverity(HotkeyFinding::Severity severity)
{
    d->chooseSeverity(severity);
}

const std::vector<HotkeyFinding> &QvelConflictsWidget::findings() const
{
    static const std::vector<HotkeyFinding> none;
    return d->model->audit() != nullptr ? d->model->audit()->findings() : none;
}

std::optional<std::set<int>> QvelConflictsWidget::typeableKeys()
{
    const std::optional<KeyboardLayout> layout = NativeKeys::knownLayout();
    if (!layout)
        return {};
    std::set<int> keys;
    for (int code = 1; code < KeyCodes::rightMeta; ++code) {
        const KeyboardLayout::Characters typed = layout->characters(code);
        for (char32_t character : {typed.plain, typed.shifted})
            keys.insert(static_cast<int>(QChar::toUpper(character)));
        keys.insert(layout->hotkeyKey(code));
    }
    return keys;
}

void QvelConflictsWidget::refresh()
{
    d->isStale = true;
    d->audit();
}

void QvelConflictsWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    d->audit();
}

void QvelConflictsWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::StyleChange)
        d->retranslate();
    QWidget::changeEvent(event);
}

} // namespace CUI
