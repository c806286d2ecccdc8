#include "SetBars.h"

#include "MergeDialog.h"
#include "MessageBar.h"

#include <UiCustomizations/HotkeySetWatcher.h>

#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace Studio {

using CUI::HotkeySetWatcher;

SetBars::SetBars(HotkeySetWatcher &watcher, QVBoxLayout *layout, QWidget *dialog)
    : QObject(dialog), m_dialog(dialog), m_watcher(watcher), m_changed(new MessageBar(dialog))
{
    layout->addWidget(m_changed);
    m_changed->setObjectName(QStringLiteral("changedSetBar"));
    connect(m_changed->addButton(tr("Keep Mine")), &QPushButton::clicked, &watcher,
            &HotkeySetWatcher::keepMine);
    connect(m_changed->addButton(tr("Load Theirs")), &QPushButton::clicked, this,
            &SetBars::loadTheirs);
    connect(m_changed->addButton(tr("Merge...")), &QPushButton::clicked, this, &SetBars::merge);
    connect(&watcher, &HotkeySetWatcher::stateChanged, this, &SetBars::followFile);
    followFile();
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
    if (!m_watcher.applyMerge(merge))
        report(tr("The file has been changed again, or cannot be loaded. Your changes are still "
                  "here."));
}

void SetBars::report(const QString &problem)
{
    m_watcher.check();
    QMessageBox::warning(m_dialog, tr("Hotkey Set"), problem);
}

} // namespace Studio
