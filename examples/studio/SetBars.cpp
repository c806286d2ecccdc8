#include "SetBars.h"

#include "MergeDialog.h"
#include "MessageBar.h"
#include "ReportDialog.h"

#include <UiCustomizations/HotkeyEditGroup.h>
#include <UiCustomizations/HotkeySetWatcher.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace Studio {

using CUI::HotkeySetWatcher;

SetBars::SetBars(CUI::QvelShortcutManager &store, HotkeySetWatcher &watcher, QVBoxLayout *layout,
                 QWidget *dialog)
    : QObject(dialog),
      m_dialog(dialog),
      m_store(store),
      m_watcher(watcher),
      m_changed(new MessageBar(dialog)),
      m_stale(new MessageBar(dialog))
{
    layout->addWidget(m_stale);
    layout->addWidget(m_changed);
    m_changed->setObjectName(QStringLiteral("changedSetBar"));
    connect(m_changed->addButton(tr("Keep Mine")), &QPushButton::clicked, &watcher,
            &HotkeySetWatcher::keepMine);
    connect(m_changed->addButton(tr("Load Theirs")), &QPushButton::clicked, this,
            &SetBars::loadTheirs);
    connect(m_changed->addButton(tr("Merge...")), &QPushButton::clicked, this, &SetBars::merge);
    connect(&watcher, &HotkeySetWatcher::stateChanged, this, &SetBars::followFile);
    followFile();
    m_stale->setObjectName(QStringLiteral("staleStepsBar"));
    connect(m_stale->addButton(tr("Details...")), &QPushButton::clicked, this,
            &SetBars::showDetails);
    connect(m_stale->addButton(tr("Dismiss")), &QPushButton::clicked, this, [this] {
        m_dismissed = m_stale->text();
        m_stale->hide();
    });
    followLoads();
    followSteps();
}

// A load adds steps to a store that has no unsaved edit. They are complete when it has returned.
void SetBars::followLoads()
{
    using Store = CUI::QvelShortcutManager;
    const auto later = [this] {
        if (!m_store.isUserModified() && !std::exchange(m_isLoaded, true))
            QTimer::singleShot(0, this, &SetBars::followSteps);
    };
    connect(&m_store, &Store::shortcutConfigurationLoaded, this, [this, later] {
        m_dismissed.clear();
        later();
    });
    connect(&m_store, &Store::shortcutTransformsCleared, this, later);
    connect(&m_store, &Store::shortcutTransformAdded, this, later);
}

void SetBars::followSteps()
{
    m_isLoaded = false;
    const CUI::HotkeySetReport report(m_store);
    const int stale = report.notApplyingCount();
    const QString text =
            tr("%1 of %2 changes no longer apply.").arg(stale).arg(report.entries().size());
    m_stale->setText(stale == 0 || text == m_dismissed ? QString() : text);
}

void SetBars::showDetails()
{
    const QPointer<SetBars> self(this);
    const QPointer<ReportDialog> dialog = new ReportDialog(CUI::HotkeySetReport(m_store), m_dialog);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (self.isNull()) // destroyed with the dialog
        return;
    const CUI::HotkeySetReport report = dialog->report();
    delete dialog.data();
    if (!isAccepted || !report.hasRemedies())
        return;
    {
        const CUI::HotkeyEditGroup command(&m_store, tr("Repair the set"));
        m_store.replaceTransforms(report.steps());
    }
    Q_EMIT stepsReplaced();
    followSteps();
}

void SetBars::followFile()
{
    const bool isChanged = m_watcher.state() == HotkeySetWatcher::State::Changed;
    const QString name = QFileInfo(m_watcher.path()).completeBaseName();
    m_changed->setText(isChanged ? tr("Another program has changed \"%1\" while you have unsaved "
                                      "changes.")
                                           .arg(name)
                                 : QString());
}

void SetBars::loadTheirs()
{
    if (!m_watcher.loadTheirs())
        report(tr("The file cannot be loaded. Your changes are still here."));
}

void SetBars::merge()
{
    const QPointer<SetBars> self(this);
    CUI::HotkeySetMerge merge = m_watcher.merge();
    if (!merge.isSettled()) {
        const QPointer<MergeDialog> dialog = new MergeDialog(merge, m_dialog);
        const bool isAccepted = dialog->exec() == QDialog::Accepted;
        if (self.isNull()) // destroyed with the dialog
            return;
        if (isAccepted)
            merge = dialog->merge();
        delete dialog.data();
        if (!isAccepted)
            return;
    }
    if (m_watcher.applyMerge(merge, tr("Merge with the changed file")))
        Q_EMIT stepsReplaced();
    else
        report(tr("The file has been changed again, or cannot be loaded. Your changes are still "
                  "here."));
}

void SetBars::report(const QString &problem)
{
    m_watcher.check();
    QMessageBox::warning(m_dialog, tr("Hotkey Set"), problem);
}

} // namespace Studio
