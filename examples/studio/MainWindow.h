#pragma once

#include "ActionTable.h"
#include "CustomizeDialog.h"
#include "Document.h"
#include "ViewState.h"

#include <QMainWindow>
#include <QPointer>

#include <vector>

class QComboBox;
class QDockWidget;
class QListWidget;

namespace Host {
class SampleHost;
}

namespace CUI {
class HotkeySetWatcher;
class QvelActionBinder;
class QvelHotkeyHistory;
class QvelCommandPalette;
class QvelMessageLogWidget;
class QvelShortcutManager;
} // namespace CUI

namespace Studio {

class AreaFocus;
class GraphView;
class HotkeyActions;
class ModifierHints;
class NodeView;
class Outliner;
class PropertyPanel;
class RenderView;
class Timeline;
class UvView;
class Viewport;

/// The application's window: the viewport in the middle, the other views in docks around it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Owns neither @p host, which is loaded, nor @p store; both must outlive it.
    MainWindow(Host::SampleHost &host, CUI::QvelShortcutManager &store, QWidget *parent = nullptr);
    ~MainWindow() override;

    Document &document() const { return *m_document; }
    ViewState &view() const { return *m_view; }
    Viewport &viewport() const { return *m_viewport; }
    Outliner &outliner() const { return *m_outliner; }
    Timeline &timeline() const { return *m_timeline; }
    UvView &uvView() const { return *m_uvView; }
    NodeView &nodeView() const { return *m_nodeView; }
    GraphView &graphView() const { return *m_graphView; }
    RenderView &renderView() const { return *m_renderView; }
    PropertyPanel &properties() const { return *m_properties; }
    HotkeyActions &hotkeyActions() const { return *m_hotkeyActions; }
    const AreaFocus &areas() const { return *m_areas; }
    CUI::QvelMessageLogWidget &console() const { return *m_console; }
    const Host::SampleHost &host() const { return m_host; }
    CUI::QvelShortcutManager &store() const { return m_store; }

    /// Performs an action, or shows its name when the application cannot.
    void perform(const CUI::ActionIdentifier &action);
    void hold(const CUI::ActionIdentifier &action, bool held);
    /// The action that was performed last.
    void performAgain();

    /// The names of the contexts that the viewport can be in.
    QStringList modes() const;
    /// Nothing happens when there is no such mode.
    void setMode(const QString &name);

    /// The dock of that object name; aborts when there is none.
    QDockWidget *dock(const char *name) const;
    /// Shows a dock, and puts it before those on the same place; or hides it.
    void showDock(const char *name, bool show);
    void toggleDock(const char *name);
    void hideAllPanels();
    void maximizePane();
    void setWorkspace(int index);
    int workspace() const { return m_workspace; }
    static int workspaceCount();
    void resetWorkspace() { setWorkspace(m_workspace); }
    /// Opens the dialog with the hotkeys, or brings it to the front.
    CustomizeDialog *showCustomizeDialog();
    void findCommand();
    /// Made when it is first asked for.
    CUI::QvelCommandPalette &commandPalette();
    ModifierHints &hints() const { return *m_hints; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeViews();
    void makeDocks();
    QDockWidget *addDock(const QString &title, const char *name, QWidget *view, int area);
    void makeAreas();
    void makeToolBars();
    void makeModeBox(class QToolBar *bar);
    void addTool(QToolBar *bar, const char *id, const char *icon);
    void markCurrentArea(QWidget *area);
    void showHistory();
    QString nameOf(const CUI::ActionIdentifier &action) const;
    std::vector<unsigned long> contextsNamed(const QStringList &names) const;

    Host::SampleHost &m_host;
    CUI::QvelShortcutManager &m_store;
    ActionTable m_table;
    CUI::HotkeySetWatcher *m_watcher;
    CUI::QvelHotkeyHistory *m_hotkeyHistory;
    Document *m_document;
    ViewState *m_view;
    CUI::QvelActionBinder *m_binder;
    CUI::QvelCommandPalette *m_palette = nullptr;
    ModifierHints *m_hints = nullptr;
    HotkeyActions *m_hotkeyActions;
    AreaFocus *m_areas;
    Viewport *m_viewport = nullptr;
    Outliner *m_outliner = nullptr;
    Timeline *m_timeline = nullptr;
    UvView *m_uvView = nullptr;
    NodeView *m_nodeView = nullptr;
    GraphView *m_graphView = nullptr;
    RenderView *m_renderView = nullptr;
    PropertyPanel *m_properties = nullptr;
    CUI::QvelMessageLogWidget *m_console = nullptr;
    QListWidget *m_history = nullptr;
    QComboBox *m_modeBox = nullptr;
    QWidget *m_viewportFrame = nullptr;
    QPointer<CustomizeDialog> m_dialog;
    QByteArray m_stateBeforeHiding;
    CUI::ActionIdentifier m_last;
    int m_workspace = 0;
};

} // namespace Studio
