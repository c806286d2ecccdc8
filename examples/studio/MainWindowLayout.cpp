#include "AreaFocus.h"
#include "Areas.h"
#include "GraphView.h"
#include "HotkeyActions.h"
#include "Icons.h"
#include "MainWindow.h"
#include "NodeView.h"
#include "Outliner.h"
#include "PropertyPanel.h"
#include "RenderView.h"
#include "SampleHost.h"
#include "Timeline.h"
#include "UvView.h"
#include "Viewport.h"

#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelMessageLogWidget.h>

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace Studio {

namespace {

/// A workspace: which docks are seen, which of them lie on top, and the viewport's mode.
struct Workspace {
    const char *name;
    QStringList docks;
    QString mode;
};

const std::vector<Workspace> &workspaces()
{
    const auto s = [](const char *text) { return QString::fromLatin1(text); };
    static const std::vector<Workspace> all = {
            {"Modeling",
             {s("outlinerDock"), s("propertyDock"), s("uvDock"), s("timelineDock")},
             s("Object")},
            {"Sculpting", {s("outlinerDock"), s("propertyDock")}, s("Sculpting")},
            {"UV", {s("outlinerDock"), s("uvDock")}, s("Mesh")},
            {"Shading", {s("outlinerDock"), s("propertyDock"), s("nodeDock")}, s("Object")},
            {"Animation",
             {s("outlinerDock"), s("propertyDock"), s("graphDock"), s("timelineDock")},
             s("Rigging")},
            {"Rendering", {s("outlinerDock"), s("propertyDock"), s("renderDock")}, s("Object")},
    };
    return all;
}

} // namespace

void MainWindow::makeViews()
{
    m_viewport = new Viewport(m_document, m_view, this);
    m_outliner = new Outliner(m_document, m_view, this);
    m_timeline = new Timeline(m_document, m_view, this);
    m_uvView = new UvView(m_document, m_view, this);
    m_nodeView = new NodeView(m_document, m_view, this);
    m_graphView = new GraphView(m_document, m_view, this);
    m_renderView = new RenderView(m_document, m_view, this);
    m_properties = new PropertyPanel(m_document, this);
    m_console = new CUI::QvelMessageLogWidget(this);
    m_history = new QListWidget(this);
    connect(m_document, &Document::changed, this, &MainWindow::showHistory);
    connect(m_history, &QListWidget::itemClicked, this,
            [this] { m_document->goTo(m_history->currentRow()); });
    m_viewportFrame = new QWidget(this);
    auto *layout = new QVBoxLayout(m_viewportFrame);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(m_viewport);
    m_viewportFrame->setFocusProxy(m_viewport);
    setCentralWidget(m_viewportFrame);
    showHistory();
}

QDockWidget *MainWindow::addDock(const QString &title, const char *name, QWidget *view, int area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(QString::fromLatin1(name));
    dock->setWidget(view);
    dock->setFocusProxy(view);
    addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
    return dock;
}

void MainWindow::makeDocks()
{
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    setDockNestingEnabled(true);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    QDockWidget *outliner =
            addDock(tr("Outliner"), "outlinerDock", m_outliner, Qt::RightDockWidgetArea);
    QDockWidget *properties =
            addDock(tr("Properties"), "propertyDock", m_properties, Qt::RightDockWidgetArea);
    addDock(tr("UV Editor"), "uvDock", m_uvView, Qt::RightDockWidgetArea);
    QDockWidget *history =
            addDock(tr("History"), "historyDock", m_history, Qt::RightDockWidgetArea);
    tabifyDockWidget(properties, history);
    QDockWidget *timeline =
            addDock(tr("Timeline"), "timelineDock", m_timeline, Qt::BottomDockWidgetArea);
    QDockWidget *last = timeline;
    const std::tuple<QString, const char *, QWidget *> bottom[] = {
            {tr("Node Graph"), "nodeDock", m_nodeView},
            {tr("Graph Editor"), "graphDock", m_graphView},
            {tr("Rendering"), "renderDock", m_renderView},
            {tr("Console"), "consoleDock", m_console},
    };
    for (const auto &[title, name, view] : bottom) {
        QDockWidget *dock = addDock(title, name, view, Qt::BottomDockWidgetArea);
        tabifyDockWidget(last, dock);
        last = dock;
    }
    timeline->raise();
    properties->raise();
    resizeDocks({outliner, properties, dock("uvDock")}, {330, 330, 330}, Qt::Horizontal);
}

QDockWidget *MainWindow::dock(const char *name) const
{
    auto *found = findChild<QDockWidget *>(QLatin1String(name));
    if (found == nullptr)
        qFatal("there is no dock %s", name);
    return found;
}

void MainWindow::showDock(const char *name, bool show)
{
    QDockWidget *shown = dock(name);
    shown->setVisible(show);
    if (show)
        shown->raise();
}

void MainWindow::toggleDock(const char *name)
{
    if (auto *bar = findChild<QToolBar *>(QLatin1String(name))) {
        bar->setVisible(!bar->isVisible());
        return;
    }
    // One that lies under another is not seen either.
    showDock(name, dock(name)->isHidden() || dock(name)->visibleRegion().isEmpty());
}

void MainWindow::hideAllPanels()
{
    const QList<QDockWidget *> docks = findChildren<QDockWidget *>();
    const bool anyVisible = std::any_of(docks.begin(), docks.end(),
                                        [](const QDockWidget *d) { return !d->isHidden(); });
    if (!anyVisible) {
        if (m_stateBeforeHiding.isEmpty() || !restoreState(m_stateBeforeHiding))
            resetWorkspace();
        return;
    }
    m_stateBeforeHiding = saveState();
    for (QDockWidget *shown : docks)
        shown->hide();
}

void MainWindow::maximizePane()
{
    hideAllPanels();
}

int MainWindow::workspaceCount()
{
    return static_cast<int>(workspaces().size());
}

void MainWindow::setWorkspace(int index)
{
    m_workspace = index;
    const Workspace &workspace = workspaces()[static_cast<std::size_t>(index)];
    for (QDockWidget *each : findChildren<QDockWidget *>())
        each->setVisible(workspace.docks.contains(each->objectName()));
    for (const QString &name : workspace.docks)
        findChild<QDockWidget *>(name)->raise();
    setMode(workspace.mode);
    const bool tall = workspace.docks.contains(QStringLiteral("nodeDock"))
                      || workspace.docks.contains(QStringLiteral("graphDock"))
                      || workspace.docks.contains(QStringLiteral("renderDock"));
    const QStringList atBottom = {QStringLiteral("timelineDock"), QStringLiteral("nodeDock"),
                                  QStringLiteral("graphDock"), QStringLiteral("renderDock")};
    resizeDocks({dock("outlinerDock"), dock("propertyDock"), dock("uvDock")}, {330, 190, 330},
                Qt::Vertical);
    for (const QString &name : atBottom) {
        if (workspace.docks.contains(name))
            resizeDocks({findChild<QDockWidget *>(name)}, {tall ? 260 : 130}, Qt::Vertical);
    }
}

// Areas of the keyboard

std::vector<unsigned long> MainWindow::contextsNamed(const QStringList &names) const
{
    std::vector<unsigned long> ids;
    for (const QString &name : names) {
        for (const Host::HostCatalogue::Context &context : m_host.catalogue().contexts) {
            if (context.name == name)
                ids.push_back(context.id);
        }
    }
    return ids;
}

void MainWindow::makeAreas()
{
    m_areas->addArea(m_viewportFrame);
    for (QDockWidget *each : findChildren<QDockWidget *>())
        m_areas->addArea(each);
    const std::pair<const char *, std::vector<QWidget *>> places[] = {
            {"Viewport", {m_viewportFrame}},
            {"Outliner", {dock("outlinerDock")}},
            {"Timeline", {dock("timelineDock")}},
            {"UV Editor", {dock("uvDock")}},
            {"Node Graph", {dock("nodeDock")}},
            {"Graph Editor", {dock("graphDock")}},
            {"Rendering", {m_viewportFrame, dock("renderDock")}},
    };
    QStringList order = modes();
    for (const auto &[name, widgets] : places) {
        for (unsigned long context : contextsNamed({QString::fromLatin1(name)}))
            m_binder->setContextWidgets(context, widgets);
        order << QString::fromLatin1(name);
    }
    m_binder->setContextOrder(contextsNamed(order + Areas::everywhere(m_host.catalogue())));
    connect(m_areas, &AreaFocus::currentChanged, this, &MainWindow::markCurrentArea);
    markCurrentArea(m_viewportFrame);
}

void MainWindow::markCurrentArea(QWidget *area)
{
    for (QDockWidget *each : findChildren<QDockWidget *>()) {
        QFont font = each->font();
        font.setBold(each == area);
        each->setFont(font);
        each->widget()->setFont(this->font());
    }
    QPalette frame = palette();
    if (area == m_viewportFrame)
        frame.setColor(QPalette::Window, palette().color(QPalette::Highlight));
    m_viewportFrame->setPalette(frame);
    m_viewportFrame->setAutoFillBackground(true);
    m_viewport->setPalette(palette());
}

// Tool bars

void MainWindow::addTool(QToolBar *bar, const char *id, const char *icon)
{
    QAction *entry =
            m_hotkeyActions->entry(CUI::ActionIdentifier::fromString(QString::fromLatin1(id)));
    if (entry == nullptr)
        return; // another host has other actions
    entry->setIcon(Icons::make(QString::fromLatin1(icon)));
    bar->addAction(entry);
}

void MainWindow::makeModeBox(QToolBar *bar)
{
    m_modeBox = new QComboBox(bar);
    m_modeBox->setObjectName(QStringLiteral("modeBox"));
    m_modeBox->setFocusPolicy(Qt::NoFocus);
    m_modeBox->addItems(Areas::modes(m_host.catalogue()));
    m_modeBox->setEnabled(m_modeBox->count() > 0);
    connect(m_modeBox, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { setMode(m_modeBox->itemText(index)); });
    bar->addWidget(m_modeBox);
    if (m_modeBox->count() > 0)
        setMode(m_modeBox->itemText(0));
}

void MainWindow::makeToolBars()
{
    QToolBar *main = addToolBar(tr("Main"));
    main->setObjectName(QStringLiteral("mainBar"));
    main->setIconSize({20, 20});
    makeModeBox(main);
    main->addSeparator();
    addTool(main, "1-undo", "undo");
    addTool(main, "1-redo", "redo");
    main->addSeparator();
    addTool(main, "2-addPrimitive", "cube");
    addTool(main, "2-addLight", "light");
    addTool(main, "2-addCamera", "camera");
    main->addSeparator();
    addTool(main, "2-cycleShading", "sphere");
    addTool(main, "2-toggleGrid", "grid");
    addTool(main, "2-isolateSelection", "eye");
    main->addSeparator();
    addTool(main, "12-jumpToStart", "start");
    addTool(main, "12-playPause", "play");
    addTool(main, "12-jumpToEnd", "end");
    addTool(main, "12-insertKeyframe", "key");
    main->addSeparator();
    addTool(main, "1-showHotkeyEditor", "keyboard");
    auto *shelf = new QToolBar(tr("Tools"), this);
    shelf->setObjectName(QStringLiteral("toolShelf"));
    shelf->setIconSize({24, 24});
    addToolBar(Qt::LeftToolBarArea, shelf);
    addTool(shelf, "2-selectTool", "select");
    addTool(shelf, "2-moveTool", "move");
    addTool(shelf, "2-rotateTool", "rotate");
    addTool(shelf, "2-scaleTool", "scale");
    connect(m_view, &ViewState::changed, this, [this, shelf] {
        const QList<QAction *> tools = shelf->actions();
        for (int i = 0; i < tools.size(); ++i) {
            tools.at(i)->setCheckable(true);
            tools.at(i)->setChecked(i == static_cast<int>(m_view->get().tool));
        }
    });
}

void MainWindow::showHistory()
{
    const QSignalBlocker blocker(m_history);
    m_history->clear();
    m_history->addItems(m_document->history());
    m_history->setCurrentRow(m_document->currentStep());
}

} // namespace Studio
