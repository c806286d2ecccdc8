#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <map>

using CUI::ActionIdentifier;
using CUI::QvelActionBinder;
using CUI::QvelShortcutManager;

namespace {

enum Context : unsigned long { Everywhere = 1, Viewport, Mesh };

const ActionIdentifier undo = {1, s("undo")};
const ActionIdentifier redo = {1, s("redo")};
const ActionIdentifier moveView = {2, s("move")};
const ActionIdentifier moveMesh = {3, s("move")};

QStringList warnings;

void collectWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtWarningMsg && text.startsWith(QLatin1String("QAction")))
        warnings << text;
}

QString keysOf(const QAction &action)
{
    return QKeySequence::listToString(action.shortcuts(), QKeySequence::PortableText);
}

} // namespace

/// Actions of a window with two docks, driven by keys.
class TestActionBinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void followsEdits();
    void showsTheHotkeyBehindTheToolTip_data();
    void showsTheHotkeyBehindTheToolTip();
    void followsTheApplication();
    void unbindGivesEverythingBack();
    void enterIsReturnAsWell();
    void keysActWhereTheirContextIs();
    void contextWidgetsComeAndGo();
    void modesActOneAtATime();
    void momentaryActionsLastWhileTheirKeyIsHeld();
    void hotkeysComeBeforeMnemonicsAndAfterTexts();
    void aKeyOfAContextIsNeverAmbiguous();
    void loadsTouchEachActionOnce();
    void survivesDeathsInAnyOrder_data();
    void survivesDeathsInAnyOrder();
    void survivesWhatListenersDo();

private:
    QAction *addAction(const char *text);
    /// Writes down when the action is triggered.
    QAction *watched(QAction *action);
    QWidget *addDock();
    void assign(const ActionIdentifier &id, const char *hotkey)
    {
        m_store->assignShortcut(id, s(hotkey), QString());
    }
    void unassign(const ActionIdentifier &id, const char *hotkey)
    {
        m_store->unassignShortcut(id, s(hotkey), QString());
    }
    /// The texts of the actions triggered by a press in each of the places, or in the window.
    QString pressed(const char *hotkey, QList<QWidget *> places = {});

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<QvelActionBinder> m_binder;
    std::unique_ptr<QWidget> m_window;
    QStringList m_triggered;
};

void TestActionBinder::init()
{
    m_host = std::make_unique<TestHost>();
    const std::pair<ActionIdentifier, Context> actions[] = {
            {undo, Everywhere}, {redo, Everywhere}, {moveView, Viewport}, {moveMesh, Mesh}};
    for (const auto &[id, context] : actions)
        m_host->registry()->addAction(id, id.actionId, context, QString(), false);
    m_store = std::make_unique<QvelShortcutManager>();
    m_binder = std::make_unique<QvelActionBinder>(m_store.get());
    m_window = std::make_unique<QWidget>();
    m_window->setLayout(new QVBoxLayout);
    m_window->setFocusPolicy(Qt::StrongFocus);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    warnings.clear();
    qInstallMessageHandler(collectWarnings);
}

void TestActionBinder::cleanup()
{
    m_binder.reset();
    m_window.reset();
    m_store.reset();
    m_host.reset();
    m_triggered.clear();
    qInstallMessageHandler(nullptr);
    QCOMPARE(warnings, QStringList());
}

QAction *TestActionBinder::watched(QAction *action)
{
    connect(action, &QAction::triggered, this, [this, action] { m_triggered << action->text(); });
    return action;
}

QAction *TestActionBinder::addAction(const char *text)
{
    auto *action = new QAction(s(text), m_window.get());
    m_window->addAction(action);
    return watched(action);
}

QWidget *TestActionBinder::addDock()
{
    auto *dock = new QWidget;
    dock->setFocusPolicy(Qt::StrongFocus);
    m_window->layout()->addWidget(dock);
    dock->show();
    return dock;
}

QString TestActionBinder::pressed(const char *hotkey, QList<QWidget *> places)
{
    if (places.isEmpty())
        places << m_window.get();
    const uint key = uint(QKeySequence(s(hotkey))[0]);
    for (QWidget *place : qAsConst(places)) {
        place->setFocus();
        QTest::keyClick(place, Qt::Key(key & ~uint(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(int(key & uint(Qt::KeyboardModifierMask))));
    }
    return std::exchange(m_triggered, QStringList()).join(QLatin1Char(' '));
}

void TestActionBinder::followsEdits()
{
    QAction *first = addAction("first");
    QAction *second = addAction("second");
    assign(undo, "Ctrl+Z");
    m_binder->bind(undo, first);
    m_binder->bind(redo, second);
    QCOMPARE(pressed("Ctrl+Z"), s("first"));

    assign(undo, "Alt+Backspace");
    QCOMPARE(pressed("Alt+Backspace"), s("first"));
    assign(redo, "Ctrl+Z");
    QCOMPARE(pressed("Ctrl+Z"), s("second"));
    QCOMPARE(keysOf(*first), s("Alt+Backspace"));
    unassign(redo, "Ctrl+Z");
    QCOMPARE(pressed("Ctrl+Z"), QString());

    m_store->clearTransforms();
    QCOMPARE(pressed("Alt+Backspace"), QString());
    // What names no key is no shortcut; two texts of one key are one.
    for (const char *text : {"NoKey", "Ctrl+NoKey", "Shift+Ctrl+A", "Ctrl+Shift+A", "F2"})
        m_store->assignShortcut(undo, s(text), QString());
    QCOMPARE(keysOf(*first), s("Ctrl+Shift+A; F2"));

    m_binder->bind(redo, first);
    QCOMPARE(m_binder->identifierOf(first), redo);
    assign(redo, "F2");
    QCOMPARE(pressed("F2"), s("second"));
    m_store->clearShortcuts();
    QVERIFY(first->shortcuts().isEmpty() && second->shortcuts().isEmpty());
}

void TestActionBinder::showsTheHotkeyBehindTheToolTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("hotkey");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *text, const char *toolTip, const char *hotkey,
                        const char *shown) {
        QTest::newRow(text) << s(text) << s(toolTip) << s(hotkey) << s(shown);
    };
    row("&Undo", "", "Ctrl+Z", "Undo (Ctrl+Z)");
    row("&Open", "Opens a file", "Ctrl+O", "Opens a file (Ctrl+O)");
    row("Out", "<b>Out</b>", "Ctrl+<", "<b>Out</b> (Ctrl+&lt;)");
    row("In", "In", "Ctrl+<", "In (Ctrl+<)");
}

void TestActionBinder::showsTheHotkeyBehindTheToolTip()
{
    QFETCH(QString, text);
    QFETCH(QString, toolTip);
    QFETCH(QString, hotkey);
    QFETCH(QString, shown);

    QAction *action = addAction("");
    action->setText(text);
    if (!toolTip.isEmpty())
        action->setToolTip(toolTip);
    const QString plain = action->toolTip();
    m_store->assignShortcut(undo, hotkey, QString());
    assign(undo, "F9"); // not shown
    m_binder->bind(undo, action);
    QCOMPARE(action->toolTip(), shown);
    m_store->clearTransforms();
    QCOMPARE(action->toolTip(), plain);
}

void TestActionBinder::followsTheApplication()
{
    QAction *action = addAction("Undo");
    assign(undo, "Ctrl+Z");
    m_binder->bind(undo, action);
    action->setText(s("Undo Typing"));
    QCOMPARE(action->toolTip(), s("Undo Typing (Ctrl+Z)"));
    action->setToolTip(s("Takes it back"));
    QCOMPARE(action->toolTip(), s("Takes it back (Ctrl+Z)"));
    action->setText(s("Undo"));
    QCOMPARE(action->toolTip(), s("Takes it back (Ctrl+Z)"));
    action->setToolTip(QString());
    QCOMPARE(action->toolTip(), s("Undo (Ctrl+Z)"));
    action->setShortcut(QKeySequence(Qt::Key_F3));
    QCOMPARE(keysOf(*action), s("Ctrl+Z"));
}

void TestActionBinder::unbindGivesEverythingBack()
{
    QWidget *dock = addDock();
    QAction *action = addAction("&Undo");
    action->setShortcuts({QKeySequence(Qt::Key_F5), QKeySequence(Qt::Key_F6)});
    action->setShortcutContext(Qt::ApplicationShortcut);
    auto *other = new QAction(s("Redo"), m_window.get());
    other->setToolTip(s("Once more"));
    assign(undo, "Ctrl+Z");
    m_binder->setContextWidget(Everywhere, dock);
    m_binder->bind(redo, action);
    m_binder->bind(undo, action);
    m_binder->bind(undo, other);
    QCOMPARE(keysOf(*action), s("Ctrl+Z"));
    QCOMPARE(action->shortcutContext(), Qt::WidgetWithChildrenShortcut);
    QCOMPARE(dock->actions(), QList<QAction *>({action, other}));

    m_binder->unbind(action);
    m_binder->unbind(action);
    QCOMPARE(keysOf(*action), s("F5; F6"));
    QCOMPARE(action->shortcutContext(), Qt::ApplicationShortcut);
    QCOMPARE(dock->actions(), QList<QAction *>({other}));
    QVERIFY(m_binder->identifierOf(action).isEmpty());
    assign(undo, "F7");
    action->setText(s("&Back"));
    QCOMPARE(action->toolTip(), s("Back"));
    QCOMPARE(keysOf(*action), s("F5; F6"));

    other->setShortcut(QKeySequence(Qt::Key_F8)); // kept for the end
    m_binder->bind({}, other);
    QCOMPARE(other->toolTip(), s("Once more"));
    QCOMPARE(keysOf(*other), s("F8"));
    m_binder->bind(undo, action);
    m_binder.reset();
    QCOMPARE(keysOf(*action), s("F5; F6"));
    QCOMPARE(dock->actions(), QList<QAction *>());
}

void TestActionBinder::enterIsReturnAsWell()
{
    QAction *enter = addAction("enter");
    m_binder->bind(redo, enter);
    m_binder->bind(undo, addAction("return"));
    assign(redo, "Ctrl+Enter");
    assign(redo, "F2");
    QCOMPARE(keysOf(*enter), s("Ctrl+Enter; F2; Ctrl+Return"));
    assign(undo, "Ctrl+Return");
    QCOMPARE(pressed("Ctrl+Return") + pressed("Ctrl+Num+Enter"), s("returnenter"));
    unassign(undo, "Ctrl+Return");
    QCOMPARE(pressed("Ctrl+Return") + pressed("Ctrl+Num+Enter"), s("enterenter"));
}

void TestActionBinder::keysActWhereTheirContextIs()
{
    QWidget *viewport = addDock();
    QWidget *mesh = addDock();
    auto *field = new QWidget(mesh);
    field->setFocusPolicy(Qt::StrongFocus);
    field->show();
    m_binder->bind(undo, addAction("everywhere"));
    m_binder->bind(moveView, addAction("viewport"));
    QAction *bevel = addAction("mesh");
    m_binder->bind(moveMesh, bevel);
    m_binder->setContextWidget(Viewport, viewport);
    m_binder->setContextWidget(Mesh, mesh);
    assign(moveView, "Ctrl+M");
    assign(moveMesh, "Ctrl+M");
    const QList<QWidget *> places = {viewport, mesh, field, m_window.get()};
    QCOMPARE(pressed("Ctrl+M", places), s("viewport mesh mesh"));

    // The nearest context comes first; one without widget comes last.
    assign(undo, "Ctrl+M");
    for (int round = 0; round < 2; ++round)
        QCOMPARE(pressed("Ctrl+M", places), s("viewport mesh mesh everywhere"));
    m_binder->setContextWidget(Viewport, field);
    QCOMPARE(pressed("Ctrl+M", {field, mesh}), s("viewport mesh"));

    // A toolbar belongs to what its actions belong to.
    auto *bar = new QToolBar;
    bar->addAction(bevel);
    auto *search = new QLineEdit;
    bar->addWidget(search);
    m_window->layout()->addWidget(bar);
    QCOMPARE(pressed("Ctrl+M", {search}), s("mesh"));

    // Two contexts in one place are ambiguous, and Qt says so.
    m_binder->setContextWidget(Viewport, mesh);
    QCOMPARE(pressed("Ctrl+M", {mesh}), QString());
    QCOMPARE(std::exchange(warnings, QStringList()).size(), 1);
}

void TestActionBinder::contextWidgetsComeAndGo()
{
    QAction *action = addAction("move");
    assign(moveMesh, "Ctrl+M");
    m_binder->bind(moveMesh, action);
    QWidget *first = addDock();
    QWidget *second = addDock();
    second->addAction(action);
    m_binder->setContextWidget(Mesh, first);
    m_binder->setContextWidget(Mesh, second);
    QCOMPARE(pressed("Ctrl+M", {first}), QString());
    QCOMPARE(pressed("Ctrl+M", {second}), s("move"));

    m_binder->setContextWidget(Mesh, first);
    QVERIFY(second->actions().contains(action)); // the application has put it there
    m_binder->setContextWidget(Mesh, nullptr);
    QCOMPARE(action->shortcutContext(), Qt::WindowShortcut);
    QVERIFY(!first->actions().contains(action));
    QCOMPARE(pressed("Ctrl+M"), s("move"));

    m_binder->setContextWidget(Mesh, first);
    delete first;
    QCOMPARE(action->shortcutContext(), Qt::WindowShortcut);
    QWidget *third = addDock();
    m_binder->setContextWidget(Mesh, third);
    QCOMPARE(pressed("Ctrl+M", {m_window.get(), third}), s("move"));

    // The registry gives the action another context.
    m_host->registry()->addAction(moveMesh, s("Move"), Everywhere, QString(), false);
    m_binder->refresh();
    QVERIFY(!third->actions().contains(action));
    QCOMPARE(pressed("Ctrl+M"), s("move"));
}

void TestActionBinder::modesActOneAtATime()
{
    QWidget *first = addDock();
    QWidget *second = addDock();
    auto *menu = new QMenu(m_window.get()); // which the actions are in while their mode is not on
    m_window->addAction(menu->menuAction());
    const auto addToMenu = [&](const ActionIdentifier &id, const char *name) {
        QAction *action = watched(menu->addAction(s(name)));
        m_binder->bind(id, action);
        assign(id, "M");
        return action;
    };
    addToMenu(moveView, "viewport");
    const QAction *mesh = addToMenu(moveMesh, "mesh");
    addToMenu(undo, "everywhere");
    m_binder->setContextWidgets(Viewport, {first, nullptr, second});
    m_binder->setContextWidgets(Mesh, {});
    QCOMPARE(pressed("M", {first, second, m_window.get()}), s("viewport viewport everywhere"));
    QCOMPARE(keysOf(*mesh), s("M")); // which the menu shows
    m_binder->setContextWidgets(Mesh, {first});
    m_binder->setContextOrder({Mesh, Viewport});
    QCOMPARE(pressed("M", {first, second}), s("mesh viewport"));
    m_binder->setContextOrder({Viewport});
    QCOMPARE(pressed("M", {first, first}), s("viewport viewport"));
    m_binder->setContextWidget(Viewport, nullptr);
    QCOMPARE(pressed("M", {first, second}), s("mesh viewport"));
    delete first;
    QCOMPARE(mesh->shortcutContext(), Qt::WindowShortcut);
}

void TestActionBinder::momentaryActionsLastWhileTheirKeyIsHeld()
{
    m_host->registry()->addAction(moveView, s("Pan"), Viewport, QString(), true);
    QWidget *dock = addDock();
    QWidget *other = addDock();
    QStringList log;
    const auto takeLog = [&log] {
        return std::exchange(log, QStringList()).join(QLatin1Char(' '));
    };
    connect(m_binder.get(), &QvelActionBinder::pressed, this,
            [&log](const ActionIdentifier &id) { log << id.actionId + s("+"); });
    connect(m_binder.get(), &QvelActionBinder::released, this,
            [&log](const ActionIdentifier &id) { log << id.actionId + s("-"); });
    m_binder->bind(moveView, addAction("pan"));
    m_binder->bind(undo, addAction("undo"));
    m_binder->setContextWidget(Viewport, dock);
    for (const char *key : {"Space", "P"})
        assign(moveView, key);
    assign(undo, "U");
    dock->setFocus();
    QTest::keyPress(dock, Qt::Key_Space);
    for (int i = 0; i < 3; ++i) { // as a held key repeats
        QTest::simulateEvent(dock, false, Qt::Key_Space, Qt::NoModifier, s(" "), true);
        QTest::simulateEvent(dock, true, Qt::Key_Space, Qt::NoModifier, s(" "), true);
    }
    QTest::keyPress(dock, Qt::Key_P);
    QTest::keyClick(dock, Qt::Key_U);
    QTest::keyRelease(dock, Qt::Key_Space);
    QCOMPARE(takeLog(), s("move+"));
    QTest::keyRelease(dock, Qt::Key_P, Qt::ShiftModifier);
    QCOMPARE(takeLog(), s("move-"));
    QCOMPARE(std::exchange(m_triggered, QStringList()), list("undo"));

    const std::function<void()> ends[] = {
            [&] { other->setFocus(); },
            [&] { m_store->loadShortcutConfiguration(QString()); },
    };
    for (const auto &end : ends) {
        m_store->assignShortcut(moveView, s("Space"), QString());
        dock->setFocus();
        QTest::keyPress(dock, Qt::Key_Space);
        end();
        QTest::keyRelease(dock, Qt::Key_Space);
        QCOMPARE(takeLog(), s("move+ move-"));
    }
}

void TestActionBinder::hotkeysComeBeforeMnemonicsAndAfterTexts()
{
    auto *bar = new QMenuBar;
    bar->addMenu(s("&File"))->addAction(s("Open"));
    m_window->layout()->setMenuBar(bar);
    auto *field = new QLineEdit;
    m_window->layout()->addWidget(field);
    bar->show();
    field->show();
    QSignalSpy confirmed(field, &QLineEdit::returnPressed);
    m_binder->bind(undo, addAction("undo"));
    for (const char *key : {"Alt+F", "Enter", "F2"})
        assign(undo, key);
    const QList<QWidget *> places = {m_window.get(), m_window.get(), field};
    QCOMPARE(pressed("Alt+F", places), s("undo undo undo"));
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(pressed("F2", places), s("undo undo undo"));
    QCOMPARE(pressed("Return", places), s("undo undo"));
    QCOMPARE(confirmed.count(), 1);
}

void TestActionBinder::aKeyOfAContextIsNeverAmbiguous()
{
    // Two texts of one key: the smaller identifier, as the store would answer.
    QAction *forward = addAction("redo");
    QAction *back = addAction("undo");
    m_binder->bind(undo, back);
    m_binder->bind(redo, forward);
    assign(undo, "Ctrl+Shift+Z");
    assign(redo, "Shift+Ctrl+Z");
    QCOMPARE(pressed("Ctrl+Shift+Z"), s("redo"));
    QCOMPARE(back->toolTip(), s("undo"));
    m_binder->unbind(forward);
    QCOMPARE(pressed("Ctrl+Shift+Z"), s("undo"));
    m_binder->bind(redo, forward);
    unassign(redo, "Shift+Ctrl+Z");
    QCOMPARE(pressed("Ctrl+Shift+Z"), s("undo"));

    // Several actions of one identifier: the first that can be triggered.
    auto *menu = new QMenu(m_window.get());
    QAction *again = watched(menu->addAction(s("again")));
    m_window->addAction(menu->menuAction());
    m_binder->bind(undo, again);
    QCOMPARE(keysOf(*again), s("Ctrl+Shift+Z"));
    QCOMPARE(pressed("Ctrl+Shift+Z", {m_window.get(), m_window.get()}), s("undo undo"));
    back->setEnabled(false);
    QCOMPARE(pressed("Ctrl+Shift+Z"), s("again"));
    back->setEnabled(true);

    QWidget elsewhere;
    QAction far(s("far"));
    elsewhere.addAction(watched(&far));
    m_binder->unbind(back);
    m_binder->bind(undo, &far);
    m_binder->bind(undo, back);
    elsewhere.show();
    elsewhere.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
    QCOMPARE(pressed("Ctrl+Shift+Z", {&elsewhere}), s("far"));
    elsewhere.hide();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QCOMPARE(pressed("Ctrl+Shift+Z"), s("again"));
}

void TestActionBinder::loadsTouchEachActionOnce()
{
    std::vector<int> changes(60);
    const QObject counting; // ends the connections: unbinding changes the actions, too
    QByteArray steps;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const ActionIdentifier id = {7, s("a%1").arg(i)};
        const QString hotkey = s("Ctrl+F%1").arg(i % 30 + 1);
        m_host->registry()->addAction(id, id.actionId, 100 + i / 30, QString(), false);
        m_host->registry()->accelerators.emplace_back(id, hotkey);
        steps += s("<Unassign_Hotkey Shortcut='%1' Id='%2'/><Assign_Hotkey Shortcut='Alt+%1' "
                   "Id='%2'/><Assign_Hotkey Shortcut='Shift+%1' Id='%2'/>")
                         .arg(hotkey, id.toString())
                         .toUtf8();
        auto *action = new QAction(id.actionId, m_window.get());
        m_binder->bind(id, action);
        connect(action, &QAction::changed, &counting, [&changes, i] { ++changes[i]; });
    }
    const QString set = m_host->write(s("set.hsx"), "<VelHotkeyTransformations>" + steps
                                                            + "</VelHotkeyTransformations>");
    const auto areTouched = [&changes](int times) {
        const std::vector<int> found = std::exchange(changes, std::vector<int>(changes.size()));
        return found == std::vector<int>(changes.size(), times);
    };
    for (const QString &file : {QString(), set}) {
        m_store->loadShortcutConfiguration(file);
        QVERIFY(areTouched(1));
    }
    const QAction *last = m_window->findChildren<QAction *>().constLast();
    QCOMPARE(keysOf(*last), s("Ctrl+Alt+F30; Ctrl+Shift+F30"));
    m_store->loadShortcutConfiguration(set);
    QVERIFY(areTouched(0));
    m_store->clearTransforms();
    QVERIFY(areTouched(1));
}

void TestActionBinder::survivesDeathsInAnyOrder_data()
{
    QTest::addColumn<QString>("order");

    // [a]ction, [b]inder, [d]ock, [m]anager, [w]indow with whatever is left of action and dock
    QString order = s("abdmw");
    do
        QTest::newRow(qPrintable(order)) << order;
    while (std::next_permutation(order.begin(), order.end()));
}

void TestActionBinder::survivesDeathsInAnyOrder()
{
    QFETCH(QString, order);

    QPointer<QWidget> dock = addDock();
    QPointer<QAction> action = addAction("move");
    assign(moveMesh, "Ctrl+M");
    m_binder->setContextWidget(Mesh, dock);
    m_binder->bind(moveMesh, action);
    m_binder->bind(undo, addAction("undo"));
    const std::map<QChar, std::function<void()>> kill = {
            {QLatin1Char('a'), [&action] { delete action; }},
            {QLatin1Char('b'), [this] { m_binder.reset(); }},
            {QLatin1Char('d'), [&dock] { delete dock; }},
            {QLatin1Char('m'), [this] { m_store.reset(); }},
            {QLatin1Char('w'), [this] { m_window.reset(); }},
    };
    for (const QChar victim : order) {
        kill.at(victim)();
        const bool bound = !action.isNull() && m_binder != nullptr;
        if (m_store != nullptr)
            m_store->assignShortcut(undo, s("Ctrl+%1").arg(victim), QString());
        if (bound && m_window != nullptr)
            QCOMPARE(pressed("Ctrl+M", {dock.isNull() ? m_window.get() : dock.data()}), s("move"));
        if (bound)
            m_binder->bind(moveMesh, action);
        if (m_binder != nullptr)
            m_binder->refresh();
    }
}

void TestActionBinder::survivesWhatListenersDo()
{
    QAction *action = addAction("first");
    QPointer<QAction> other = addAction("second");
    m_binder->bind(undo, action);
    m_binder->bind(undo, other);
    connect(action, &QAction::changed, other, [&other] { delete other; });
    connect(other, &QAction::changed, action, [this, action] { m_binder->unbind(action); });
    assign(undo, "Ctrl+Z");
    QVERIFY(other.isNull());
    QCOMPARE(keysOf(*action), s("Ctrl+Z"));

    m_binder->bind(redo, addAction("third"));
    connect(action, &QAction::changed, this, [this] { m_binder.reset(); });
    m_store->clearTransforms();
    QVERIFY(m_binder == nullptr);
    QVERIFY(action->shortcuts().isEmpty());

    // While a window is adopted.
    m_binder = std::make_unique<QvelActionBinder>(m_store.get());
    QWidget window;
    QPointer<QAction> actions[4];
    for (int i = 0; i < 4; ++i) {
        actions[i] = new QAction(QString::number(i), &window);
        actions[i]->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_0 + i));
        window.addAction(actions[i]);
    }
    connect(actions[0], &QAction::changed, this, [&actions] { delete actions[1]; });
    connect(actions[2], &QAction::changed, this, [this] { m_binder.reset(); });
    m_binder->adopt(&window);
    QVERIFY(actions[1].isNull());
    QVERIFY(m_binder == nullptr);
    for (const int i : {0, 2, 3})
        QCOMPARE(keysOf(*actions[i]), s("Ctrl+%1").arg(i));
}

QTEST_MAIN(TestActionBinder)
#include "tst_ActionBinder.moc"
