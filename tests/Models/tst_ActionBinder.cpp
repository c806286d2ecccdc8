#include "TestHost.h"

#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>

using CUI::ActionIdentifier;
using CUI::QvelActionBinder;
using CUI::QvelShortcutManager;

namespace {

enum Context : unsigned long { Everywhere = 1, Viewport, Mesh };

const ActionIdentifier undo = {1, QStringLiteral("undo")};
const ActionIdentifier redo = {1, QStringLiteral("redo")};
const ActionIdentifier moveView = {2, QStringLiteral("move")};
const ActionIdentifier moveMesh = {3, QStringLiteral("move")};

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
    void tellsKeysOfTheKeypadApart();
    void enterIsReturnAsWell();
    void keysActWhereTheirContextIs();
    void contextWidgetsComeAndGo();
    void aKeyOfAContextIsNeverAmbiguous();
    void loadsTouchEachActionOnce();
    void survivesDeathsInAnyOrder_data();
    void survivesDeathsInAnyOrder();
    void survivesWhatListenersDo();

private:
    QAction *addAction(const QString &text);
    QWidget *addDock();
    void press(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier);
    /// The texts of the actions triggered since the last call.
    QString triggered() { return std::exchange(m_triggered, QStringList()).join(QLatin1Char(' ')); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<QvelActionBinder> m_binder;
    std::unique_ptr<QWidget> m_window;
    QStringList m_triggered;
};

void TestActionBinder::init()
{
    m_host = std::make_unique<TestHost>();
    for (const auto &[id, name] : {std::make_pair(undo, "Undo"), std::make_pair(redo, "Redo")})
        m_host->registry()->addAction(id, QLatin1String(name), Everywhere, QString(), false);
    m_host->registry()->addAction(moveView, QStringLiteral("Move"), Viewport, QString(), false);
    m_host->registry()->addAction(moveMesh, QStringLiteral("Move"), Mesh, QString(), false);
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

QAction *TestActionBinder::addAction(const QString &text)
{
    auto *action = new QAction(text, m_window.get());
    m_window->addAction(action);
    connect(action, &QAction::triggered, this, [this, action] { m_triggered << action->text(); });
    return action;
}

QWidget *TestActionBinder::addDock()
{
    auto *dock = new QWidget;
    dock->setFocusPolicy(Qt::StrongFocus);
    m_window->layout()->addWidget(dock);
    dock->show();
    return dock;
}

void TestActionBinder::press(QWidget *widget, int key, Qt::KeyboardModifiers modifiers)
{
    widget->setFocus();
    QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
}

void TestActionBinder::followsEdits()
{
    QAction *first = addAction(QStringLiteral("first"));
    QAction *second = addAction(QStringLiteral("second"));
    m_store->assignShortcut(undo, QStringLiteral("Ctrl+Z"), QString());
    m_binder->bind(undo, first);
    m_binder->bind(redo, second);
    press(m_window.get(), Qt::Key_Z);
    QCOMPARE(triggered(), QStringLiteral("first"));

    m_store->assignShortcut(undo, QStringLiteral("Alt+Backspace"), QString());
    press(m_window.get(), Qt::Key_Backspace, Qt::AltModifier);
    QCOMPARE(triggered(), QStringLiteral("first"));
    m_store->assignShortcut(redo, QStringLiteral("Ctrl+Z"), QString());
    press(m_window.get(), Qt::Key_Z);
    QCOMPARE(triggered(), QStringLiteral("second"));
    QCOMPARE(keysOf(*first), QStringLiteral("Alt+Backspace"));
    m_store->unassignShortcut(redo, QStringLiteral("Ctrl+Z"), QString());
    press(m_window.get(), Qt::Key_Z);
    QCOMPARE(triggered(), QString());

    m_store->clearTransforms();
    press(m_window.get(), Qt::Key_Backspace, Qt::AltModifier);
    QCOMPARE(triggered(), QString());
    // What names no key is no shortcut; two texts of one key are one.
    for (const char *text : {"NoKey", "Ctrl+NoKey", "Shift+Ctrl+A", "Ctrl+Shift+A", "F2"})
        m_store->assignShortcut(undo, QLatin1String(text), QString());
    QCOMPARE(keysOf(*first), QStringLiteral("Ctrl+Shift+A; F2"));

    m_binder->bind(redo, first);
    QCOMPARE(m_binder->identifierOf(first), redo);
    m_store->assignShortcut(redo, QStringLiteral("F2"), QString());
    press(m_window.get(), Qt::Key_F2, Qt::NoModifier);
    QCOMPARE(triggered(), QStringLiteral("second"));
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
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(toolTip)
                            << QString::fromUtf8(hotkey) << QString::fromUtf8(shown);
    };
    row("&Undo", "", "Ctrl+Z", "Undo (Ctrl+Z)");
    row("Find && &Replace...", "", "Num+5", "Find & Replace (Num+5)");
    row("&Open", "Opens a file", "Ctrl+O", "Opens a file (Ctrl+O)");
    row("%1", "", "Ctrl+%", "%1 (Ctrl+%)");
    row("Out", "<b>Out</b>", "Ctrl+<", "<b>Out</b> (Ctrl+&lt;)");
    row("In", "In", "Ctrl+<", "In (Ctrl+<)");
    row("", "", "Ctrl+Z", "");
}

void TestActionBinder::showsTheHotkeyBehindTheToolTip()
{
    QFETCH(QString, text);
    QFETCH(QString, toolTip);
    QFETCH(QString, hotkey);
    QFETCH(QString, shown);

    QAction *action = addAction(text);
    if (!toolTip.isEmpty())
        action->setToolTip(toolTip);
    const QString plain = action->toolTip();
    m_store->assignShortcut(undo, hotkey, QString());
    m_store->assignShortcut(undo, QStringLiteral("F9"), QString());
    m_binder->bind(undo, action);
    QCOMPARE(action->toolTip(), shown);
    m_store->clearTransforms();
    QCOMPARE(action->toolTip(), plain);
}

void TestActionBinder::followsTheApplication()
{
    QAction *action = addAction(QStringLiteral("Undo"));
    m_store->assignShortcut(undo, QStringLiteral("Ctrl+Z"), QString());
    m_binder->bind(undo, action);
    action->setText(QStringLiteral("Undo Typing"));
    QCOMPARE(action->toolTip(), QStringLiteral("Undo Typing (Ctrl+Z)"));
    action->setToolTip(QStringLiteral("Takes it back"));
    QCOMPARE(action->toolTip(), QStringLiteral("Takes it back (Ctrl+Z)"));
    action->setText(QStringLiteral("Undo"));
    QCOMPARE(action->toolTip(), QStringLiteral("Takes it back (Ctrl+Z)"));
    action->setToolTip(QString());
    QCOMPARE(action->toolTip(), QStringLiteral("Undo (Ctrl+Z)"));
    action->setShortcut(QKeySequence(Qt::Key_F3));
    QCOMPARE(keysOf(*action), QStringLiteral("Ctrl+Z"));

    // Two that both want the last word.
    QvelActionBinder rival(m_store.get());
    m_store->assignShortcut(redo, QStringLiteral("Ctrl+Y"), QString());
    rival.bind(redo, action);
    QVERIFY(keysOf(*action) == QLatin1String("Ctrl+Z")
            || keysOf(*action) == QLatin1String("Ctrl+Y"));
}

void TestActionBinder::unbindGivesEverythingBack()
{
    QWidget *dock = addDock();
    QAction *action = addAction(QStringLiteral("&Undo"));
    action->setShortcuts({QKeySequence(Qt::Key_F5), QKeySequence(Qt::Key_F6)});
    action->setShortcutContext(Qt::ApplicationShortcut);
    auto *other = new QAction(QStringLiteral("Redo"), m_window.get());
    other->setToolTip(QStringLiteral("Once more"));
    m_store->assignShortcut(undo, QStringLiteral("Ctrl+Z"), QString());
    m_binder->setContextWidget(Everywhere, dock);
    m_binder->bind(redo, action);
    m_binder->bind(undo, action);
    m_binder->bind(undo, other);
    QCOMPARE(keysOf(*action), QStringLiteral("Ctrl+Z"));
    QCOMPARE(action->shortcutContext(), Qt::WidgetWithChildrenShortcut);
    QCOMPARE(dock->actions(), QList<QAction *>({action, other}));

    m_binder->unbind(action);
    m_binder->unbind(action);
    QCOMPARE(keysOf(*action), QStringLiteral("F5; F6"));
    QCOMPARE(action->shortcutContext(), Qt::ApplicationShortcut);
    QCOMPARE(dock->actions(), QList<QAction *>({other}));
    QVERIFY(m_binder->identifierOf(action).isEmpty());
    m_store->assignShortcut(undo, QStringLiteral("F7"), QString());
    action->setText(QStringLiteral("&Back"));
    QCOMPARE(action->toolTip(), QStringLiteral("Back"));
    QCOMPARE(keysOf(*action), QStringLiteral("F5; F6"));

    other->setShortcut(QKeySequence(Qt::Key_F8)); // kept for the end
    m_binder->bind({}, other);
    QCOMPARE(other->toolTip(), QStringLiteral("Once more"));
    QCOMPARE(keysOf(*other), QStringLiteral("F8"));
    m_binder->bind(undo, action);
    m_binder.reset();
    QCOMPARE(keysOf(*action), QStringLiteral("F5; F6"));
    QCOMPARE(dock->actions(), QList<QAction *>());
}

void TestActionBinder::tellsKeysOfTheKeypadApart()
{
    m_binder->bind(undo, addAction(QStringLiteral("pad")));
    m_binder->bind(redo, addAction(QStringLiteral("row")));
    m_store->assignShortcut(undo, QStringLiteral("Num+5"), QString());
    m_store->assignShortcut(redo, QStringLiteral("5"), QString());
    press(m_window.get(), Qt::Key_5, Qt::KeypadModifier);
    QCOMPARE(triggered(), QStringLiteral("pad"));
    press(m_window.get(), Qt::Key_5, Qt::NoModifier);
    QCOMPARE(triggered(), QStringLiteral("row"));
    m_store->unassignShortcut(redo, QStringLiteral("5"), QString());
    press(m_window.get(), Qt::Key_5, Qt::NoModifier);
    QCOMPARE(triggered(), QString());
}

void TestActionBinder::enterIsReturnAsWell()
{
    QAction *enter = addAction(QStringLiteral("enter"));
    QAction *other = addAction(QStringLiteral("return"));
    m_binder->bind(redo, enter);
    m_binder->bind(undo, other);
    m_store->assignShortcut(redo, QStringLiteral("Ctrl+Enter"), QString());
    m_store->assignShortcut(redo, QStringLiteral("F2"), QString());
    QCOMPARE(keysOf(*enter), QStringLiteral("Ctrl+Enter; F2; Ctrl+Return"));
    const auto pressed = [this] {
        press(m_window.get(), Qt::Key_Return);
        press(m_window.get(), Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
        return triggered();
    };
    QCOMPARE(pressed(), QStringLiteral("enter enter"));
    m_store->assignShortcut(undo, QStringLiteral("Ctrl+Return"), QString());
    QCOMPARE(pressed(), QStringLiteral("return enter"));
    m_store->unassignShortcut(undo, QStringLiteral("Ctrl+Return"), QString());
    QCOMPARE(pressed(), QStringLiteral("enter enter"));
}

void TestActionBinder::keysActWhereTheirContextIs()
{
    QWidget *viewport = addDock();
    QWidget *mesh = addDock();
    auto *field = new QWidget(mesh);
    field->setFocusPolicy(Qt::StrongFocus);
    field->show();
    m_binder->bind(undo, addAction(QStringLiteral("everywhere")));
    m_binder->bind(moveView, addAction(QStringLiteral("viewport")));
    QAction *bevel = addAction(QStringLiteral("mesh"));
    m_binder->bind(moveMesh, bevel);
    m_binder->setContextWidget(Viewport, viewport);
    m_binder->setContextWidget(Mesh, mesh);
    m_store->assignShortcut(moveView, QStringLiteral("Ctrl+M"), QString());
    m_store->assignShortcut(moveMesh, QStringLiteral("Ctrl+M"), QString());
    for (QWidget *widget : {viewport, mesh, field, m_window.get()})
        press(widget, Qt::Key_M);
    QCOMPARE(triggered(), QStringLiteral("viewport mesh mesh"));

    // The nearest context comes first; one without widget comes last.
    m_store->assignShortcut(undo, QStringLiteral("Ctrl+M"), QString());
    for (int round = 0; round < 2; ++round) {
        for (QWidget *widget : {viewport, mesh, field, m_window.get()})
            press(widget, Qt::Key_M);
        QCOMPARE(triggered(), QStringLiteral("viewport mesh mesh everywhere"));
    }
    m_binder->setContextWidget(Viewport, field);
    press(field, Qt::Key_M);
    press(mesh, Qt::Key_M);
    QCOMPARE(triggered(), QStringLiteral("viewport mesh"));

    // A toolbar belongs to what its actions belong to.
    auto *bar = new QToolBar;
    bar->addAction(bevel);
    auto *search = new QLineEdit;
    bar->addWidget(search);
    m_window->layout()->addWidget(bar);
    press(search, Qt::Key_M);
    QCOMPARE(triggered(), QStringLiteral("mesh"));

    // Two contexts in one place are ambiguous, and Qt says so.
    m_binder->setContextWidget(Viewport, mesh);
    press(mesh, Qt::Key_M);
    QCOMPARE(triggered(), QString());
    QCOMPARE(std::exchange(warnings, QStringList()).size(), 1);
}

void TestActionBinder::contextWidgetsComeAndGo()
{
    QAction *action = addAction(QStringLiteral("move"));
    m_store->assignShortcut(moveMesh, QStringLiteral("Ctrl+M"), QString());
    m_binder->bind(moveMesh, action);
    QWidget *first = addDock();
    QWidget *second = addDock();
    second->addAction(action);
    m_binder->setContextWidget(Mesh, first);
    m_binder->setContextWidget(Mesh, second);
    press(first, Qt::Key_M);
    QCOMPARE(triggered(), QString());
    press(second, Qt::Key_M);
    QCOMPARE(triggered(), QStringLiteral("move"));

    m_binder->setContextWidget(Mesh, first);
    QVERIFY(second->actions().contains(action)); // the application has put it there
    m_binder->setContextWidget(Mesh, nullptr);
    QCOMPARE(action->shortcutContext(), Qt::WindowShortcut);
    QVERIFY(!first->actions().contains(action));
    press(m_window.get(), Qt::Key_M);
    QCOMPARE(triggered(), QStringLiteral("move"));

    m_binder->setContextWidget(Mesh, first);
    delete first;
    QCOMPARE(action->shortcutContext(), Qt::WindowShortcut);
    QWidget *third = addDock();
    m_binder->setContextWidget(Mesh, third);
    press(m_window.get(), Qt::Key_M);
    press(third, Qt::Key_M);
    QCOMPARE(triggered(), QStringLiteral("move"));

    // The registry gives the action another context.
    m_host->registry()->addAction(moveMesh, QStringLiteral("Move"), Everywhere, QString(), false);
    m_binder->refresh();
    QVERIFY(!third->actions().contains(action));
    press(m_window.get(), Qt::Key_M);
    QCOMPARE(triggered(), QStringLiteral("move"));
}

void TestActionBinder::aKeyOfAContextIsNeverAmbiguous()
{
    // Two texts of one key: the smaller identifier, as the store would answer.
    QAction *forward = addAction(QStringLiteral("redo"));
    QAction *back = addAction(QStringLiteral("undo"));
    m_binder->bind(undo, back);
    m_binder->bind(redo, forward);
    m_store->assignShortcut(undo, QStringLiteral("Ctrl+Shift+Z"), QString());
    m_store->assignShortcut(redo, QStringLiteral("Shift+Ctrl+Z"), QString());
    const auto pressed = [this] {
        press(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        return triggered();
    };
    QCOMPARE(pressed(), QStringLiteral("redo"));
    QCOMPARE(back->toolTip(), QStringLiteral("undo"));
    m_binder->unbind(forward);
    QCOMPARE(pressed(), QStringLiteral("undo"));
    m_binder->bind(redo, forward);
    m_store->unassignShortcut(redo, QStringLiteral("Shift+Ctrl+Z"), QString());
    QCOMPARE(pressed(), QStringLiteral("undo"));

    // Several actions of one identifier: the first that can be triggered.
    auto *menu = new QMenu(m_window.get());
    auto *again = menu->addAction(QStringLiteral("again"));
    connect(again, &QAction::triggered, this, [this] { m_triggered << QStringLiteral("again"); });
    m_window->addAction(menu->menuAction());
    m_binder->bind(undo, again);
    QCOMPARE(keysOf(*again), QStringLiteral("Ctrl+Shift+Z"));
    QCOMPARE(pressed() + pressed(), QStringLiteral("undoundo"));
    back->setEnabled(false);
    QCOMPARE(pressed(), QStringLiteral("again"));
    back->setEnabled(true);

    QWidget elsewhere;
    QAction far(QStringLiteral("far"));
    connect(&far, &QAction::triggered, this, [this] { m_triggered << QStringLiteral("far"); });
    elsewhere.addAction(&far);
    m_binder->unbind(back);
    m_binder->bind(undo, &far);
    m_binder->bind(undo, back);
    elsewhere.show();
    elsewhere.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
    QTest::keyClick(&elsewhere, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(triggered(), QStringLiteral("far"));
    elsewhere.hide();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QCOMPARE(pressed(), QStringLiteral("again"));
}

void TestActionBinder::loadsTouchEachActionOnce()
{
    constexpr int count = 1000;
    std::vector<int> changes(count);
    QByteArray steps;
    for (int i = 0; i < count; ++i) {
        const ActionIdentifier id = {7, QStringLiteral("a%1").arg(i)};
        const QString hotkey = QStringLiteral("Ctrl+F%1").arg(i % 30 + 1);
        m_host->registry()->addAction(id, id.actionId, static_cast<unsigned long>(100 + i / 30),
                                      QString(), false);
        m_host->registry()->accelerators.emplace_back(id, hotkey);
        steps += QStringLiteral("<Unassign_Hotkey Shortcut=\"%1\" Description=\"\" Id=\"%2\"/>"
                                "<Assign_Hotkey Shortcut=\"Alt+%1\" Description=\"\" Id=\"%2\"/>"
                                "<Assign_Hotkey Shortcut=\"Shift+%1\" Description=\"\" Id=\"%2\"/>")
                         .arg(hotkey, id.toString())
                         .toUtf8();
        auto *action = new QAction(id.actionId, m_window.get());
        m_binder->bind(id, action);
        connect(action, &QAction::changed, this, [&changes, i] { ++changes[std::size_t(i)]; });
    }
    const QString set = m_host->write(QStringLiteral("set.hsx"),
                                      "<VelHotkeyTransformations Locked=\"false\">" + steps
                                              + "</VelHotkeyTransformations>");
    const auto touched = [&changes] {
        const auto [least, most] = std::minmax_element(changes.begin(), changes.end());
        const auto range = std::make_pair(*least, *most);
        std::fill(changes.begin(), changes.end(), 0);
        return range;
    };
    connect(m_store.get(), &QvelShortcutManager::shortcutAssigned, this, [&] {
        QCOMPARE(*std::max_element(changes.begin(), changes.end()), 0); // not before the end
    });
    m_store->loadShortcutConfiguration(QString());
    QCOMPARE(touched(), std::make_pair(1, 1));
    m_store->loadShortcutConfiguration(set);
    QCOMPARE(touched(), std::make_pair(1, 1));
    const QAction *last = m_window->findChildren<QAction *>().constLast();
    QCOMPARE(keysOf(*last), QStringLiteral("Ctrl+Alt+F10; Ctrl+Shift+F10"));
    m_store->loadShortcutConfiguration(set);
    QCOMPARE(touched(), std::make_pair(0, 0));
    m_store->clearTransforms();
    QCOMPARE(touched(), std::make_pair(1, 1));
    m_store->clearShortcuts();
    QCOMPARE(touched(), std::make_pair(1, 1));
}

void TestActionBinder::survivesDeathsInAnyOrder_data()
{
    QTest::addColumn<QString>("order");

    // [a]ction, [b]inder, [d]ock, [m]anager, [w]indow with whatever is left of action and dock
    QString order = QStringLiteral("abdmw");
    do
        QTest::newRow(qPrintable(order)) << order;
    while (std::next_permutation(order.begin(), order.end()));
}

void TestActionBinder::survivesDeathsInAnyOrder()
{
    QFETCH(QString, order);

    QPointer<QWidget> dock = addDock();
    QPointer<QAction> action = addAction(QStringLiteral("move"));
    m_store->assignShortcut(moveMesh, QStringLiteral("Ctrl+M"), QString());
    m_binder->setContextWidget(Mesh, dock);
    m_binder->bind(moveMesh, action);
    m_binder->bind(undo, addAction(QStringLiteral("undo")));
    for (const QChar victim : order) {
        switch (victim.toLatin1()) {
        case 'a':
            delete action;
            break;
        case 'b':
            m_binder.reset();
            break;
        case 'd':
            delete dock;
            break;
        case 'm':
            m_store.reset();
            break;
        default:
            m_window.reset();
        }
        const bool bound = !action.isNull() && m_binder != nullptr;
        if (m_store != nullptr)
            m_store->assignShortcut(undo, QStringLiteral("Ctrl+%1").arg(victim), QString());
        if (bound && m_window != nullptr) {
            press(dock.isNull() ? m_window.get() : dock.data(), Qt::Key_M);
            QCOMPARE(triggered(), QStringLiteral("move"));
        }
        if (bound)
            m_binder->bind(moveMesh, action);
        if (m_binder != nullptr)
            m_binder->refresh();
    }
}

void TestActionBinder::survivesWhatListenersDo()
{
    QAction *action = addAction(QStringLiteral("first"));
    QPointer<QAction> other = addAction(QStringLiteral("second"));
    m_binder->bind(undo, action);
    m_binder->bind(undo, other);
    connect(action, &QAction::changed, other, [&other] { delete other; });
    connect(other, &QAction::changed, action, [this, action] { m_binder->unbind(action); });
    m_store->assignShortcut(undo, QStringLiteral("Ctrl+Z"), QString());
    QVERIFY(other.isNull());
    QCOMPARE(keysOf(*action), QStringLiteral("Ctrl+Z"));

    m_binder->bind(redo, addAction(QStringLiteral("third")));
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
        QCOMPARE(keysOf(*actions[i]), QStringLiteral("Ctrl+%1").arg(i));

    m_binder = std::make_unique<QvelActionBinder>(m_store.get());
    actions[0]->setShortcut(QKeySequence(QStringLiteral("Ctrl+K, Ctrl+C")));
    connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged, &window,
            [this] { m_binder.reset(); });
    m_binder->adopt(&window, 2);
    QVERIFY(m_binder == nullptr);
}

QTEST_MAIN(TestActionBinder)
#include "tst_ActionBinder.moc"
