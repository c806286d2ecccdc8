#include "HotkeyRecorder.h"
#include "KeyCodes.h"
#include "NativeKeys.h"
#include "QvelActionBinder.h"
#include "QvelConflictsWidget.h"
#include "QvelShortcutManager.h"
#include "Text.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLoggingCategory>
#include <QProcess>
#include <QRasterWindow>
#include <QStandardPaths>
#include <QtTest>

#include <memory>

using namespace CUI;

namespace {

/// An X server of the test's own, on a display that is free.
class XServer
{
    Q_DISABLE_COPY(XServer)

public:
    XServer()
    {
        m_process.setStandardErrorFile(QProcess::nullDevice());
        // It writes the number of its display when it is ready, and ends when its last client goes,
        // so also after a crash of the test.
        m_process.start(s("Xvfb"), list("-displayfd|1|-nolisten|tcp|-terminate"));
        while (!m_process.canReadLine() && m_process.waitForReadyRead()) { }
        m_display = ':' + m_process.readLine().trimmed();
        if (m_display.size() < 2)
            qFatal("Xvfb does not start");
    }

    ~XServer()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    QByteArray display() const { return m_display; }

private:
    QProcess m_process;
    QByteArray m_display;
};

/// Captures what is typed while it has the focus.
class CaptureWindow : public QRasterWindow
{
public:
    struct Press {
        int key;
        HotkeyRecorder::Capture capture;
    };
    QVector<Press> presses;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (!event->isAutoRepeat())
            presses.append({event->key(), HotkeyRecorder::capture(*event)});
    }
};

QStringList missingPrograms()
{
    QStringList missing;
    for (const QString &program : list("Xvfb|xdotool|setxkbmap")) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            missing.append(program);
    }
    return missing;
}

constexpr const char *everyLayout[] = {"us", "de", "fr", "ru", "jp"};
constexpr int patience = 20000;

} // namespace

/// Keys that are pressed on the keyboard of a real X server, under the layouts of several
/// countries.
class TestKeysOfXServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void withoutKeymap();
    void layouts_data();
    void layouts();
    void layoutsThatAreBuiltIn_data();
    void layoutsThatAreBuiltIn();
    void keypad_data();
    void keypad();
    void twoNamesOfOneKey();

private:
    void run(const char *program, const QStringList &arguments);
    void setLayout(const QString &layout);
    void setLayout(const char *layout) { setLayout(s(layout)); }
    QString typed(const QString &keys);
    QString typed(const char *keys) { return typed(s(keys)); }

    const QByteArray m_display = qgetenv("DISPLAY");
    QString m_layout;
    CaptureWindow m_window;
};

void TestKeysOfXServer::initTestCase()
{
    if (!missingPrograms().isEmpty())
        QSKIP(qPrintable(s("not installed: ") + missingPrograms().join(s(", "))));
    QCOMPARE(QGuiApplication::platformName(), s("xcb"));

    QLoggingCategory::setFilterRules(s("cui.hotkeyeditor.keys=false"));
    m_window.resize(100, 100);
    m_window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_window));
    m_window.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&m_window));
}

void TestKeysOfXServer::cleanup()
{
    qputenv("DISPLAY", m_display);
    if (QTest::currentTestFailed()) {
        for (const CaptureWindow::Press &press : qAsConst(m_window.presses))
            qWarning("key %#x, captured as %#x", unsigned(press.key),
                     unsigned(press.capture.combination));
    }
}

void TestKeysOfXServer::run(const char *program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(s("DISPLAY"), QString::fromLocal8Bit(m_display));
    process.setProcessEnvironment(environment);
    process.start(s(program), arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void TestKeysOfXServer::setLayout(const QString &layout)
{
    if (layout != m_layout)
        run("setxkbmap", {layout});
    m_layout = layout;
}

/// What the last of the keys is captured as. They are named by their codes: for a name, xdotool may
/// change the layout.
QString TestKeysOfXServer::typed(const QString &keys)
{
    m_window.presses.clear();
    run("xdotool", {s("key"), keys});
    const int count = keys.count(QLatin1Char('+')) + 1;
    [&] { QTRY_COMPARE_WITH_TIMEOUT(m_window.presses.size(), count, patience); }();
    if (QTest::currentTestFailed())
        return QString();
    return QKeySequence(m_window.presses.last().capture.combination)
            .toString(QKeySequence::PortableText);
}

/// Then the events themselves have to do, until the server can be asked again.
void TestKeysOfXServer::withoutKeymap()
{
    qputenv("DISPLAY", ":none");
    setLayout("fr");
    QCOMPARE(typed("shift+10"), s("Shift+1"));
    QCOMPARE(typed("shift+24"), s("Shift+A"));
    QCOMPARE(typed("58"), s(","));
    QCOMPARE(typed("34"), s("^"));
    QCOMPARE(typed("shift+61"), s("Shift+§"));
    setLayout("ru");
    QCOMPARE(typed("ctrl+52"), s("Ctrl+Z"));

    qputenv("DISPLAY", m_display);
    setLayout("fr");
    QCOMPARE(typed("shift+61"), s("Shift+!"));
}

void TestKeysOfXServer::layouts_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("hotkey");
    QTest::addColumn<QString>("held"); // shown while keys are held that make no hotkey

    const auto row = [](const char *layout, const char *keys, const char *hotkey,
                        const char *held = "") {
        QTest::addRow("%s %s", layout, keys) << s(layout) << s(keys) << s(hotkey) << s(held);
    };
    for (const char *any : everyLayout) {
        row(any, "10", "1");
        row(any, "shift+10", "Shift+1");
        row(any, "ctrl+shift+19", "Ctrl+Shift+0");
        row(any, "36", "Enter");
        row(any, "104", "Enter");
        row(any, "23", "Tab");
        row(any, "shift+23", "Shift+Tab");
        row(any, "ctrl+alt+65", "Ctrl+Alt+Space");
        row(any, "shift+68", "Shift+F2");
        row(any, "119", "Del");
        row(any, "Escape", "");
        row(any, "ctrl+Escape", "", "Ctrl+");
        row(any, "67", ""); // F1
        row(any, "22", ""); // Backspace
        row(any, "127", ""); // Pause
        row(any, "78", ""); // Scroll Lock
        row(any, "ctrl+23", "", "Ctrl+"); // Tab
        row(any, "ctrl+shift+23", "", "Ctrl+Shift+");
        row(any, "alt+135", "", "Alt+"); // the menu key, past F24
        row(any, "ctrl+alt", "", "Ctrl+Alt+");
        row(any, "shift+alt", "", "Alt+Shift+");
    }

    row("us", "ctrl+52", "Ctrl+Z");
    row("us", "shift+38", "Shift+A");
    row("us", "shift+21", "Shift+=");
    row("us", "shift+49", "Shift+`");
    row("us", "ctrl+shift+51", "Ctrl+Shift+\\");

    row("de", "ctrl+29", "Ctrl+Z"); // Z and Y are swapped
    row("de", "52", "Y");
    row("de", "shift+61", "Shift+-");
    row("de", "shift+51", "Shift+#");
    row("de", "shift+34", "Shift+Ü");
    row("de", "shift+20", "Shift+ß");
    row("de", "shift+49", "Shift+^"); // dead keys
    row("de", "21", "´");
    row("de", "94", "<"); // not among the punctuation of Windows
    row("de", "shift+94", "Shift+>");

    row("fr", "24", "A");
    row("fr", "shift+25", "Shift+Z");
    row("fr", "ctrl+47", "Ctrl+M");
    row("fr", "shift+58", "Shift+,"); // where the US layout has M
    row("fr", "shift+59", "Shift+;");
    row("fr", "shift+61", "Shift+!");
    row("fr", "34", "^");

    row("ru", "ctrl+52", "Ctrl+Z");
    row("ru", "52", "Z");
    row("ru", "ctrl+shift+24", "Ctrl+Shift+Q");
    row("ru", "shift+34", "Shift+Х");
    row("ru", "shift+61", "Shift+.");

    row("jp", "ctrl+52", "Ctrl+Z");
    row("jp", "shift+34", "Shift+@");
    row("jp", "shift+35", "Shift+[");
    row("jp", "shift+48", "Shift+:");
    row("jp", "shift+21", "Shift+^");

    // Only the second layout types this character, so xdotool switches to it for the press.
    row("us,de", "34", "[");
    row("us,de", "udiaeresis", "Ü");
    row("us,de", "shift+udiaeresis", "Shift+Ü");

    row("gr", "24", "Q"); // Q types a semicolon
    row("gr", "ctrl+47", "Ctrl+´");
}

void TestKeysOfXServer::layouts()
{
    QFETCH(QString, layout);
    QFETCH(QString, keys);
    QFETCH(QString, hotkey);
    QFETCH(QString, held);
    setLayout(layout);
    QCOMPARE(typed(keys), hotkey);
    QCOMPARE(HotkeyRecorder::displayText(m_window.presses.last().capture), hotkey + held);
}

void TestKeysOfXServer::layoutsThatAreBuiltIn_data()
{
    QTest::addColumn<QString>("layout");
    for (const QString &layout : KeyboardLayout::names())
        QTest::newRow(qPrintable(layout)) << layout;
}

/// They are the system's, and each key makes the hotkey that the layout says.
void TestKeysOfXServer::layoutsThatAreBuiltIn()
{
    QFETCH(QString, layout);
    setLayout(layout);
    const KeyboardLayout used = NativeKeys::layoutInUse();
    const KeyboardLayout builtIn = *KeyboardLayout::named(layout);
    QCOMPARE(used.shape(), builtIn.shape());
    QStringList keys{s("key")};
    QVector<int> expected;
    for (int code = 1; code <= KeyCodes::yen; ++code) {
        const KeyboardLayout::Characters typed = used.characters(code);
        QVERIFY2(typed.plain == builtIn.characters(code).plain
                         && typed.shifted == builtIn.characters(code).shifted,
                 QByteArray::number(code));
        if (typed.plain == 0 || code == KeyCodes::keypadPoint)
            continue;
        const int keyCode = code + KeyCodes::firstOfX11;
        keys << QString::number(keyCode) << s("shift+%1").arg(keyCode);
        expected << used.hotkeyKey(code) << 0 // of Shift alone
                 << (used.hotkeyKey(code, true) | Qt::ShiftModifier);
    }
    m_window.presses.clear();
    run("xdotool", keys);
    QTRY_COMPARE_WITH_TIMEOUT(m_window.presses.size(), expected.size(), patience);
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(m_window.presses.at(i).capture.combination, expected.at(i));
    // What is recorded can be typed.
    const std::optional<std::set<int>> typeable = QvelConflictsWidget::typeableKeys();
    QVERIFY(typeable);
    for (int combination : qAsConst(expected)) {
        const int key = combination & ~int(Qt::KeyboardModifierMask);
        QVERIFY2(key == 0 || typeable->count(key) == 1, QByteArray::number(key, 16));
    }
    const bool needsAltGr = layout == s("de") || layout == s("fr");
    QVERIFY(!needsAltGr || typeable->count(Qt::Key_BracketLeft) == 0);
}

void TestKeysOfXServer::keypad_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("locked");
    QTest::addColumn<QString>("unlocked");

    const auto row = [](const char *layout, const char *keys, const char *locked,
                        const char *unlocked) {
        QTest::addRow("%s %s", layout, keys) << s(layout) << s(keys) << s(locked) << s(unlocked);
    };
    for (const char *any : everyLayout) {
        row(any, "84", "Num+5", "Clear");
        row(any, "ctrl+79", "Ctrl+Num+7", "Ctrl+Home");
        row(any, "90", "Num+0", "Ins");
        row(any, "86", "Num++", "Num++");
        row(any, "shift+106", "Shift+Num+/", "Shift+Num+/");
        row(any, "110", "Home", "Home"); // not on the keypad
    }
    row("us", "91", "Num+.", "Del");
    row("de", "91", "Num+,", "Del");
}

void TestKeysOfXServer::keypad()
{
    QFETCH(QString, layout);
    QFETCH(QString, keys);
    setLayout(layout);
    QTEST(typed(keys), "unlocked");

    const char *numLock = "77";
    QCOMPARE(typed(numLock), QString());
    const QString locked = typed(keys);
    QCOMPARE(typed(numLock), QString());
    QTEST(locked, "locked");
}

/// Qt finds both names of a key, and calls it ambiguous.
void TestKeysOfXServer::twoNamesOfOneKey()
{
    setLayout("us");
    QWidget window;
    QAction plus(s("plus"));
    QAction equal(s("equal"));
    QStringList triggered;
    for (QAction *action : {&plus, &equal}) {
        window.addAction(action);
        connect(action, &QAction::triggered, this,
                [&triggered, action] { triggered << action->text(); });
    }
    const ActionIdentifier a{1, s("a")};
    const ActionIdentifier b{1, s("b")};
    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    binder.bind(b, &plus);
    binder.bind(a, &equal);
    store.assignShortcut(b, s("Ctrl++"), QString());
    store.assignShortcut(a, s("Ctrl+Shift+="), QString());
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    const auto pressed = [&](int count) {
        triggered.clear();
        for (int i = 0; i < count; ++i)
            run("xdotool", {s("key"), s("ctrl+shift+21")});
        [&] { QTRY_COMPARE_WITH_TIMEOUT(triggered.size(), count, patience); }();
        return triggered.join(QLatin1Char(' '));
    };
    QCOMPARE(pressed(2), s("equal equal"));
    equal.setEnabled(false);
    QCOMPARE(pressed(1), s("plus"));
}

int main(int argc, char **argv)
{
    std::unique_ptr<XServer> server;
    if (missingPrograms().isEmpty()) {
        server = std::make_unique<XServer>();
        qputenv("DISPLAY", server->display());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:"); // there is no desktop to talk to
        qputenv("QT_XCB_GL_INTEGRATION", "none"); // a driver would only add its own leaks
    }
    const QApplication application(argc, argv);
    TestKeysOfXServer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_KeysOfXServer.moc"
