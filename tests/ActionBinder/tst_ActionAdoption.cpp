#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

using CUI::ActionIdentifier;
using CUI::ICuiActionManager;
using CUI::QvelActionBinder;
using CUI::QvelShortcutManager;

/// Whole windows, in an application that has no registry of its own and in one that has.
class TestActionAdoption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void registersWhatAWindowHas();
    void theStoreHasTheDefaultHotkeys();
    void windowsOfOneKindShareTheirHotkeys();
    void partsAndLatecomers();
    void usesTheRegistryOfTheApplication();
};

namespace {

/// Everything that is registered, as "id: context/category/name", in the order of the ids.
QStringList registered()
{
    QStringList lines;
    const ICuiActionManager *registry = ICuiActionManager::get();
    for (const auto &[id, action] : registry->actions()) {
        const CUI::VelActionContext *context = registry->getActionContext(action->contextId());
        lines << s("%1: %2/%3/%4")
                         .arg(id.toString(), context->name(), action->category(), action->name());
    }
    lines.sort();
    return lines;
}

QString keysOf(const QAction *action)
{
    return QKeySequence::listToString(action->shortcuts(), QKeySequence::PortableText);
}

QAction *addTo(QMenu *menu, const char *text, const char *shortcut = "", const char *name = "")
{
    QAction *action = menu->addAction(s(text));
    action->setShortcut(QKeySequence(s(shortcut)));
    action->setObjectName(s(name));
    return action;
}

} // namespace

void TestActionAdoption::cleanup()
{
    std::unique_ptr<ICuiActionManager> none;
    ICuiActionManager::set(none);
}

void TestActionAdoption::registersWhatAWindowHas()
{
    QMainWindow window;
    window.setWindowTitle(s("[*] Drawing"));
    QMenu *file = window.menuBar()->addMenu(s("&File"));
    addTo(file, "&Open...", "Ctrl+O");
    file->addSeparator();
    file->addSection(s("Recent"));
    QMenu *exports = file->addMenu(s("&Export"));
    addTo(exports, "Picture");
    addTo(exports, "&Picture...");
    addTo(exports, "Named", "", "exportPicture2");
    QAction *both = addTo(file, "Print");
    addTo(file, "2nd-LEVEL (&x)");
    addTo(file, "Größe && &mehr ...\tCtrl+D");
    addTo(new QMenu(s("ファイル(&F)"), &window), "開く(&O)...");
    window.menuBar()->addAction(s("Help"));

    QToolBar *bar = window.addToolBar(s("Quick &Tools"));
    bar->addAction(both);
    bar->addWidget(new QComboBox);
    auto *field = new QLineEdit;
    field->setClearButtonEnabled(true);
    bar->addWidget(field);
    bar->addAction(s("Brush"));
    auto *button = new QToolButton;
    auto *colours = new QMenu(s("Colour"), button);
    addTo(colours, "Red");
    button->setMenu(colours);
    bar->addWidget(button);

    window.addAction(new QAction(s("Nudge"), &window));
    addTo(new QMenu(s("Popup"), &window), "Paste");
    auto *dialogBar = new QMenuBar(new QDialog(&window));
    addTo(dialogBar->addMenu(s("Dialog")), "Other"); // a window of its own
    auto *dock = new QDockWidget(s("Layers"));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->setFloating(true);
    (new QToolBar(s("Layer"), dock))->addAction(s("New"));

    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    QCOMPARE(binder.adopt(&window, 5), 1UL);
    QCOMPARE(registered(),
             QStringList({s("5-colourRed: Drawing/Colour/Red"),
                          s("5-exportPicture2: Drawing/Export/Named"),
                          s("5-exportPicture3: Drawing/Export/Picture"),
                          s("5-exportPicture: Drawing/Export/Picture"),
                          s("5-file2ndLevel: Drawing/File/2nd-LEVEL"),
                          s("5-fileGrößeMehr: Drawing/File/Größe & mehr"),
                          s("5-fileOpen: Drawing/File/Open"), s("5-filePrint: Drawing/File/Print"),
                          s("5-help: Drawing//Help"), s("5-layerNew: Drawing/Layer/New"),
                          s("5-nudge: Drawing//Nudge"), s("5-popupPaste: Drawing/Popup/Paste"),
                          s("5-quickToolsBrush: Drawing/Quick Tools/Brush"),
                          s("5-ファイル開く: Drawing/ファイル/開く")}));
    QCOMPARE(binder.identifierOf(both), ActionIdentifier({5, s("filePrint")}));
    QCOMPARE(binder.adopt(nullptr), 0UL);
}

void TestActionAdoption::theStoreHasTheDefaultHotkeys()
{
    QMainWindow window;
    QMenu *file = window.menuBar()->addMenu(s("File"));
    QAction *open = addTo(file, "Open", "Ctrl+O");
    open->setShortcuts({QKeySequence(Qt::CTRL + Qt::Key_O),
                        QKeySequence(Qt::KeypadModifier + Qt::Key_5), QKeySequence(Qt::Key_F3)});
    QAction *chord = addTo(file, "Chord", "Ctrl+K, Ctrl+C");
    QAction *taker = addTo(file, "Taker", "F3");
    QStringList lines;
    connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged, this,
            [&lines](const QString &line) { lines << line; });

    QvelShortcutManager store;
    {
        QvelActionBinder gone(&store);
        gone.adopt(&window);
    }
    QvelActionBinder binder(&store);
    binder.adopt(&window);
    QCOMPARE(lines,
             QStringList(s("Warning: Shortcut 'Ctrl+K, Ctrl+C' for Action '1-fileChord' is more "
                           "than one key combination and is left out.")));
    QCOMPARE(keysOf(open), QString()); // not loaded yet
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(keysOf(open), s("Ctrl+O; Num+5"));
    QCOMPARE(keysOf(taker), s("F3"));
    QCOMPARE(keysOf(chord), QString());
    QCOMPARE(open->toolTip(), s("Open (Ctrl+O)"));
    QVERIFY(lines.contains(s("Warning: Removing existing shortcut 'F3' from '1-fileOpen' and "
                             "assigning it to '1-fileTaker'.")));
    QVERIFY(!store.isUserModified());
    QCOMPARE(store.getBaseShortcutsFromActionId(binder.identifierOf(taker)), s("F3"));
    disconnect(&CUI::QvelMessageLog::getInstance(), nullptr, this, nullptr);
}

void TestActionAdoption::windowsOfOneKindShareTheirHotkeys()
{
    struct Document : QMainWindow {
        Document()
        {
            setObjectName(s("Document"));
            save = addTo(menuBar()->addMenu(s("File")), "Save", "Ctrl+S");
        }
        QAction *save;
    };
    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    auto first = std::make_unique<Document>();
    const unsigned long context = binder.adopt(first.get());
    store.loadCurrentShortcutConfiguration();
    const ActionIdentifier save = binder.identifierOf(first->save);
    store.assignShortcut(save, s("F9"), QString());
    Document second;
    QCOMPARE(binder.adopt(&second), context);
    QCOMPARE(binder.identifierOf(second.save), save);
    QCOMPARE(keysOf(second.save), s("Ctrl+S; F9"));
    first.reset();
    QVERIFY(ICuiActionManager::get()->triggerAction(save));
    second.save->setEnabled(false);
    QVERIFY(!ICuiActionManager::get()->triggerAction(save));

    // The same names in another context are other actions.
    Document other;
    const unsigned long otherContext = binder.adopt(&other, 1, {}, s("Other"));
    QVERIFY(otherContext != context);
    QCOMPARE(binder.identifierOf(other.save), ActionIdentifier({1, s("fileSave2")}));
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(keysOf(second.save) + keysOf(other.save), s("Ctrl+SCtrl+S"));
}

void TestActionAdoption::partsAndLatecomers()
{
    QMainWindow window;
    window.setWindowTitle(s("Studio"));
    QMenu *edit = window.menuBar()->addMenu(s("Edit"));
    addTo(edit, "Copy", "Ctrl+C");
    window.setCentralWidget(new QLineEdit);
    auto *dock = new QDockWidget(s("Mesh"));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto *content = new QWidget;
    content->setFocusPolicy(Qt::StrongFocus);
    dock->setWidget(content);
    auto *bevel = new QAction(s("Copy"), dock);
    bevel->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_C));
    dock->addAction(bevel);
    edit->addAction(bevel);

    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    QCOMPARE(binder.adopt(dock, 2, 40), 40UL);
    binder.setContextWidget(40, dock);
    QCOMPARE(binder.adopt(&window), 1UL);
    QAction *late = addTo(edit, "Copy", "F4");
    QCOMPARE(binder.adopt(&window), 1UL);
    QCOMPARE(binder.identifierOf(late), ActionIdentifier({1, s("editCopy2")}));
    QCOMPARE(registered(),
             QStringList({s("1-editCopy2: Studio/Edit/Copy"), s("1-editCopy: Studio/Edit/Copy"),
                          s("2-copy: Mesh//Copy")}));
    store.loadCurrentShortcutConfiguration();
    int bevelled = 0;
    connect(bevel, &QAction::triggered, this, [&bevelled] { ++bevelled; });
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.centralWidget()->setFocus();
    QTest::keyClick(window.centralWidget(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(bevelled, 0);
    content->setFocus();
    QTest::keyClick(content, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(bevelled, 1);
}

void TestActionAdoption::usesTheRegistryOfTheApplication()
{
    TestHost host;
    host.registry()->addActionContext(1, s("Main"));
    host.registry()->addActionContext(2, s("Other"));
    host.registry()->addAction(1, s("save"), s("Save it"), 1, s("Own"), false);
    host.registry()->addAction(1, s("load"), s("Load it"), 2, s("Own"), false);
    QMainWindow window;
    QMenu *file = window.menuBar()->addMenu(s("File"));
    QAction *save = addTo(file, "Save", "Ctrl+S", "save");
    addTo(file, "Load", "Ctrl+L", "load");
    addTo(file, "Quit", "Ctrl+Q", "quit");
    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    QCOMPARE(binder.adopt(&window, 1, 1), 1UL);
    QCOMPARE(registered(),
             QStringList({s("1-load2: Main/File/Load"), s("1-load: Other/Own/Load it"),
                          s("1-quit: Main/File/Quit"), s("1-save: Main/Own/Save it")}));
    QVERIFY(ICuiActionManager::get() == host.registry());
    // What the application has registered itself has the hotkeys that the application gives it.
    binder.defaultAccelerators(host.registry()->accelerators);
    QCOMPARE(host.registry()->accelerators,
             (std::vector<std::pair<ActionIdentifier, QString>>{{{1, s("load2")}, s("Ctrl+L")},
                                                                {{1, s("quit")}, s("Ctrl+Q")}}));
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(keysOf(save), QString());
    QCOMPARE(store.getActionIdFromShortcut(s("Ctrl+Q"), 1), ActionIdentifier({1, s("quit")}));
}

QTEST_MAIN(TestActionAdoption)
#include "tst_ActionAdoption.moc"
