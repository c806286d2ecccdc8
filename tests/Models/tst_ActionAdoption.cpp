#include "TestHost.h"

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
    void plainTextsAndNames_data();
    void plainTextsAndNames();
    void theStoreHasTheDefaultHotkeys();
    void loadsAndKeysWork();
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
        lines << QStringLiteral("%1: %2/%3/%4")
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
    QAction *action = menu->addAction(QString::fromUtf8(text));
    action->setShortcut(QKeySequence(QLatin1String(shortcut)));
    action->setObjectName(QLatin1String(name));
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
    window.setWindowTitle(QStringLiteral("[*] Drawing"));
    QMenu *file = window.menuBar()->addMenu(QStringLiteral("&File"));
    addTo(file, "&Open...", "Ctrl+O");
    file->addSeparator();
    file->addSection(QStringLiteral("Recent"));
    QMenu *exports = file->addMenu(QStringLiteral("&Export"));
    addTo(exports, "Picture");
    addTo(exports, "&Picture...");
    addTo(exports, "Named", "", "exportPicture2");
    QAction *both = addTo(file, "Print");
    window.menuBar()->addAction(QStringLiteral("Help"));

    QToolBar *bar = window.addToolBar(QStringLiteral("Quick &Tools"));
    bar->addAction(both);
    bar->addWidget(new QComboBox);
    auto *field = new QLineEdit;
    field->setClearButtonEnabled(true);
    bar->addWidget(field);
    bar->addAction(QStringLiteral("Brush"));
    auto *button = new QToolButton;
    auto *colours = new QMenu(QStringLiteral("Colour"), button);
    addTo(colours, "Red");
    button->setMenu(colours);
    bar->addWidget(button);

    auto *hidden = new QAction(QStringLiteral("Nudge"), &window);
    window.addAction(hidden);
    addTo(new QMenu(QStringLiteral("Popup"), &window), "Paste");
    auto *dialog = new QDialog(&window);
    auto *dialogBar = new QMenuBar(dialog);
    addTo(dialogBar->addMenu(QStringLiteral("Dialog")), "Other");
    auto *dock = new QDockWidget(QStringLiteral("Layers"));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->setFloating(true);
    auto *inner = new QToolBar(QStringLiteral("Layer"), dock);
    inner->addAction(QStringLiteral("New"));

    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    QCOMPARE(binder.adopt(&window, 5), 1UL);
    QCOMPARE(registered(), QStringList({
                                   QStringLiteral("5-colourRed: Drawing/Colour/Red"),
                                   QStringLiteral("5-exportPicture2: Drawing/Export/Named"),
                                   QStringLiteral("5-exportPicture3: Drawing/Export/Picture"),
                                   QStringLiteral("5-exportPicture: Drawing/Export/Picture"),
                                   QStringLiteral("5-fileOpen: Drawing/File/Open"),
                                   QStringLiteral("5-filePrint: Drawing/File/Print"),
                                   QStringLiteral("5-help: Drawing//Help"),
                                   QStringLiteral("5-layerNew: Drawing/Layer/New"),
                                   QStringLiteral("5-nudge: Drawing//Nudge"),
                                   QStringLiteral("5-popupPaste: Drawing/Popup/Paste"),
                                   QStringLiteral("5-quickToolsBrush: Drawing/Quick Tools/Brush"),
                           }));
    QCOMPARE(binder.identifierOf(both), ActionIdentifier({5, QStringLiteral("filePrint")}));
    QCOMPARE(binder.adopt(nullptr), 0UL);
}

void TestActionAdoption::plainTextsAndNames_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");

    const auto row = [](const char *menu, const char *text, const char *line) {
        QTest::newRow(text) << QString::fromUtf8(menu) << QString::fromUtf8(text)
                            << QString::fromUtf8(line);
    };
    row("&File", "Save &As...", "1-fileSaveAs: Window/File/Save As");
    row("&File", "Open\u2026", "1-fileOpen: Window/File/Open");
    row("Edit", "Find && &Replace ...", "1-editFindReplace: Window/Edit/Find & Replace");
    row("Edit", "Don't\tCtrl+D", "1-editDont: Window/Edit/Don't");
    row("PDF", "2nd-LEVEL (&x)", "1-pdf2ndLevel: Window/PDF/2nd-LEVEL");
    row("ファイル(&F)", "開く(&O)...", "1-ファイル開く: Window/ファイル/開く");
    row("", "Größe ändern &", "1-größeÄndern: Window//Größe ändern");
    row("", "+", "1-action: Window//+");
}

void TestActionAdoption::plainTextsAndNames()
{
    QFETCH(QString, menu);
    QFETCH(QString, text);
    QFETCH(QString, line);

    QWidget window;
    window.setObjectName(QStringLiteral("Window"));
    auto *popup = new QMenu(menu, &window);
    popup->addAction(text);
    QvelActionBinder binder(nullptr);
    binder.adopt(&window);
    QCOMPARE(registered(), QStringList(line));
}

void TestActionAdoption::theStoreHasTheDefaultHotkeys()
{
    QMainWindow window;
    QMenu *file = window.menuBar()->addMenu(QStringLiteral("File"));
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
    QCOMPARE(lines, QStringList(QStringLiteral(
                            "Warning: Shortcut 'Ctrl+K, Ctrl+C' for Action '1-fileChord' is more "
                            "than one key combination and is left out.")));
    QCOMPARE(keysOf(open), QString()); // not loaded yet
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(keysOf(open), QStringLiteral("Ctrl+O; Num+5"));
    QCOMPARE(keysOf(taker), QStringLiteral("F3"));
    QCOMPARE(keysOf(chord), QString());
    QCOMPARE(open->toolTip(), QStringLiteral("Open (Ctrl+O)"));
    QVERIFY2(lines.contains(QLatin1String("Warning: Removing existing shortcut 'F3' from "
                                          "'1-fileOpen' and assigning it to '1-fileTaker'.")),
             qPrintable(lines.join(QLatin1Char('\n'))));
    QVERIFY(!store.isUserModified());
    QCOMPARE(store.getBaseShortcutsFromActionId(binder.identifierOf(taker)), QStringLiteral("F3"));
    disconnect(&CUI::QvelMessageLog::getInstance(), nullptr, this, nullptr);
}

void TestActionAdoption::loadsAndKeysWork()
{
    QTemporaryDir folder;
    const QString set = folder.filePath(QStringLiteral("mine.hsx"));
    QMainWindow window;
    QStringList triggered;
    QAction *undo = addTo(window.menuBar()->addMenu(QStringLiteral("&Edit")), "&Undo", "Ctrl+Z");
    connect(undo, &QAction::triggered, this, [&triggered] { triggered << QStringLiteral("undo"); });
    QToolBar *bar = window.addToolBar(QStringLiteral("Edit"));
    QAction *redo = bar->addAction(QStringLiteral("Redo"));
    connect(redo, &QAction::triggered, this, [&triggered] { triggered << QStringLiteral("redo"); });
    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    binder.adopt(&window);
    store.loadShortcutConfiguration(set); // none there yet

    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto pressed = [&](Qt::Key key) {
        QTest::keyClick(&window, key, Qt::ControlModifier);
        return std::exchange(triggered, {}).join(QLatin1Char(' '));
    };
    QCOMPARE(pressed(Qt::Key_Z), QStringLiteral("undo"));
    store.assignShortcut(binder.identifierOf(redo), QStringLiteral("Ctrl+Z"), QString());
    QCOMPARE(pressed(Qt::Key_Z), QStringLiteral("redo"));
    QCOMPARE(bar->widgetForAction(redo)->toolTip(), QStringLiteral("Redo (Ctrl+Z)"));
    QVERIFY(store.saveShortcutTransforms(set));
    store.loadShortcutConfiguration(QString());
    QCOMPARE(pressed(Qt::Key_Z), QStringLiteral("undo"));
    store.loadShortcutConfiguration(set);
    QCOMPARE(pressed(Qt::Key_Z), QStringLiteral("redo"));

    ICuiActionManager *registry = ICuiActionManager::get();
    QVERIFY(registry->triggerAction(binder.identifierOf(undo)));
    undo->setEnabled(false);
    QVERIFY(!registry->triggerAction(binder.identifierOf(undo)));
    QVERIFY(!registry->triggerAction({1, QStringLiteral("nothing")}));
    QCOMPARE(triggered, QStringList(QStringLiteral("undo")));
}

void TestActionAdoption::windowsOfOneKindShareTheirHotkeys()
{
    struct Document : QMainWindow {
        Document()
        {
            setObjectName(QStringLiteral("Document"));
            save = addTo(menuBar()->addMenu(QStringLiteral("File")), "Save", "Ctrl+S");
        }
        QAction *save;
    };
    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    auto first = std::make_unique<Document>();
    const unsigned long context = binder.adopt(first.get());
    store.loadCurrentShortcutConfiguration();
    const ActionIdentifier save = binder.identifierOf(first->save);
    store.assignShortcut(save, QStringLiteral("F9"), QString());
    Document second;
    QCOMPARE(binder.adopt(&second), context);
    QCOMPARE(binder.identifierOf(second.save), save);
    QCOMPARE(keysOf(second.save), QStringLiteral("Ctrl+S; F9"));
    first.reset();
    QVERIFY(ICuiActionManager::get()->triggerAction(save));

    // The same names in another context are other actions.
    Document other;
    const unsigned long otherContext = binder.adopt(&other, 1, {}, QStringLiteral("Other"));
    QVERIFY(otherContext != context);
    QCOMPARE(binder.identifierOf(other.save), ActionIdentifier({1, QStringLiteral("fileSave2")}));
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(keysOf(second.save) + keysOf(other.save), QStringLiteral("Ctrl+SCtrl+S"));
}

void TestActionAdoption::partsAndLatecomers()
{
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Studio"));
    QMenu *edit = window.menuBar()->addMenu(QStringLiteral("Edit"));
    addTo(edit, "Copy", "Ctrl+C");
    window.setCentralWidget(new QLineEdit);
    auto *dock = new QDockWidget(QStringLiteral("Mesh"));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto *content = new QWidget;
    content->setFocusPolicy(Qt::StrongFocus);
    dock->setWidget(content);
    auto *bevel = new QAction(QStringLiteral("Copy"), dock);
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
    QCOMPARE(binder.identifierOf(late), ActionIdentifier({1, QStringLiteral("editCopy2")}));
    QCOMPARE(registered(), QStringList({
                                   QStringLiteral("1-editCopy2: Studio/Edit/Copy"),
                                   QStringLiteral("1-editCopy: Studio/Edit/Copy"),
                                   QStringLiteral("2-copy: Mesh//Copy"),
                           }));
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
    host.registry()->addActionContext(1, QStringLiteral("Main"));
    host.registry()->addActionContext(2, QStringLiteral("Other"));
    host.registry()->addAction(1, QStringLiteral("save"), QStringLiteral("Save it"), 1,
                               QStringLiteral("Own"), false);
    host.registry()->addAction(1, QStringLiteral("load"), QStringLiteral("Load it"), 2,
                               QStringLiteral("Own"), false);
    QMainWindow window;
    QMenu *file = window.menuBar()->addMenu(QStringLiteral("File"));
    QAction *save = addTo(file, "Save", "Ctrl+S", "save");
    addTo(file, "Load", "Ctrl+L", "load");
    addTo(file, "Quit", "Ctrl+Q", "quit");
    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    QCOMPARE(binder.adopt(&window, 1, 1), 1UL);
    QCOMPARE(registered(), QStringList({
                                   QStringLiteral("1-load2: Main/File/Load"),
                                   QStringLiteral("1-load: Other/Own/Load it"),
                                   QStringLiteral("1-quit: Main/File/Quit"),
                                   QStringLiteral("1-save: Main/Own/Save it"),
                           }));
    QVERIFY(ICuiActionManager::get() == host.registry());
    // What the application has registered itself has the hotkeys that the application gives it.
    binder.defaultAccelerators(host.registry()->accelerators);
    QCOMPARE(host.registry()->accelerators,
             (std::vector<std::pair<ActionIdentifier, QString>>{
                     {{1, QStringLiteral("load2")}, QStringLiteral("Ctrl+L")},
                     {{1, QStringLiteral("quit")}, QStringLiteral("Ctrl+Q")}}));
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(keysOf(save), QString());
    QCOMPARE(store.getActionIdFromShortcut(QStringLiteral("Ctrl+Q"), 1),
             ActionIdentifier({1, QStringLiteral("quit")}));
}

QTEST_MAIN(TestActionAdoption)
#include "tst_ActionAdoption.moc"
