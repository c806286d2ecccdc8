#include "MainWindow.h"

#include "Actions.h"
#include "AreaFocus.h"
#include "HostActionRegistry.h"
#include "HotkeyActions.h"
#include "Icons.h"
#include "MenuBuilder.h"
#include "ModifierHints.h"
#include "SampleHost.h"
#include "Timeline.h"
#include "Viewport.h"

#include <UiCustomizations/HotkeySetWatcher.h>
#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelCommandPalette.h>
#include <UiCustomizations/QvelHotkeyHistory.h>
#include <UiCustomizations/QvelMessageLogWidget.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QDockWidget>
#include <QListWidget>
#include <QStatusBar>
#include <QToolBar>

namespace Studio {

MainWindow::MainWindow(Host::SampleHost &host, CUI::QvelShortcutManager &store, QWidget *parent)
    : QMainWindow(parent),
      m_host(host),
      m_store(store),
      m_watcher(new CUI::HotkeySetWatcher(&store, this)),
      m_hotkeyHistory(new CUI::QvelHotkeyHistory(&store, this)),
      m_document(new Document(this)),
      m_view(new ViewState(this)),
      m_binder(new CUI::QvelActionBinder(&store, this)),
      m_hotkeyActions(new HotkeyActions(*m_binder, store, this)),
      m_areas(new AreaFocus(this))
{
    setWindowTitle(QStringLiteral("Studio"));
    setWindowIcon(Icons::application());
    setObjectName(QStringLiteral("studio"));
    makeViews();
    makeDocks();
    makeToolBars();
    makeAreas();
    Actions::addEdit(m_table, *this);
    Actions::addWindows(m_table, *this);
    Actions::addViewport(m_table, *this);
    Actions::addObject(m_table, *this);
    Actions::addMesh(m_table, *this);
    Actions::addBrushes(m_table, *this);
    Actions::addUv(m_table, *this);
    Actions::addNodes(m_table, *this);
    Actions::addTimeline(m_table, *this);
    Actions::addOutliner(m_table, *this);
    Actions::addRendering(m_table, *this);
    MenuBuilder::build(*this);
    for (const CUI::ActionIdentifier &action : m_table.repeating()) {
        if (QAction *entry = m_hotkeyActions->entry(action))
            entry->setAutoRepeat(true);
    }
    resize(1400, 900);
    setWorkspace(0);
    statusBar()->showMessage(tr("Ready"));
    m_viewport->setFocus();
    m_hints = new ModifierHints(*m_binder, store, statusBar());
    connect(host.registry(), &Host::HostActionRegistry::triggered, this,
            [this](const CUI::ActionIdentifier &action) { perform(action); });
    connect(m_binder, &CUI::QvelActionBinder::pressed, this,
            [this](const CUI::ActionIdentifier &action) { hold(action, true); });
    connect(m_binder, &CUI::QvelActionBinder::released, this,
            [this](const CUI::ActionIdentifier &action) { hold(action, false); });
}

// Both react to changes of the focus, which the destruction of the views causes.
MainWindow::~MainWindow()
{
    delete m_areas;
    delete m_binder;
}

// Actions

QString MainWindow::nameOf(const CUI::ActionIdentifier &action) const
{
    const CUI::VelAction *known = m_host.registry()->getAction(action);
    return known != nullptr ? known->name() : action.toString();
}

void MainWindow::perform(const CUI::ActionIdentifier &action)
{
    statusBar()->showMessage(nameOf(action));
    const bool isKnown = m_table.perform(action);
    if (!isKnown)
        statusBar()->showMessage(tr("%1 (not part of this example)").arg(nameOf(action)));
    else if (action.actionId != QLatin1String("repeatLast"))
        m_last = action;
}

void MainWindow::hold(const CUI::ActionIdentifier &action, bool held)
{
    const bool isKnown = m_table.hold(action, held);
    const QString name = nameOf(action);
    m_view->change([&](ViewSettings &view) {
        if (held)
            view.held = name;
        else if (view.held == name)
            view.held.clear();
    });
    if (held)
        statusBar()->showMessage(isKnown ? tr("%1...").arg(name)
                                         : tr("%1... (not part of this example)").arg(name));
    else
        statusBar()->showMessage(tr("%1: released").arg(name));
}

void MainWindow::performAgain()
{
    if (!m_last.isEmpty())
        perform(CUI::ActionIdentifier(m_last));
}

// Modes

QStringList MainWindow::modes() const
{
    QStringList names;
    for (int i = 0; i < m_modeBox->count(); ++i)
        names.append(m_modeBox->itemText(i));
    return names;
}

void MainWindow::setMode(const QString &name)
{
    const int index = m_modeBox->findText(name);
    if (index < 0)
        return;
    m_modeBox->setCurrentIndex(index);
    for (const QString &mode : modes()) {
        for (unsigned long context : contextsNamed({mode}))
            m_binder->setContextWidgets(context, mode == name
                                                         ? std::vector<QWidget *>{m_viewportFrame}
                                                         : std::vector<QWidget *>());
    }
    m_view->change([&name](ViewSettings &view) { view.mode = name; });
}

// Dialogs

CustomizeDialog *MainWindow::showCustomizeDialog()
{
    if (m_dialog == nullptr) {
        m_dialog = new CustomizeDialog(m_store, *m_watcher, *m_hotkeyHistory, this);
        m_dialog->resize(m_dialog->size().boundedTo(size() * 0.9)); // on any screen
        m_dialog->setAuditOptions(m_host.catalogue().auditOptions());
        m_dialog->setLoggedText(m_console->toPlainText());
    }
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
    return m_dialog;
}

CUI::QvelCommandPalette &MainWindow::commandPalette()
{
    if (m_palette == nullptr) {
        auto *model = new CUI::QvelActionItemModel(&m_store);
        m_palette = new CUI::QvelCommandPalette(model, &m_store, m_binder, this);
        model->setParent(m_palette); // which is destroyed after what uses it
        m_palette->setObjectName(QStringLiteral("commandPalette"));
        connect(m_palette, &CUI::QvelCommandPalette::triggered, this,
                [this](const CUI::ActionIdentifier &action) { perform(action); });
    }
    return *m_palette;
}

void MainWindow::findCommand()
{
    commandPalette().open();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_dialog != nullptr && !m_dialog->askToClose()) {
        event->ignore();
        return;
    }
    m_timeline->play(0);
    event->accept();
}

} // namespace Studio
