#include "HotkeyRecorder.h"
#include "QvelActionBinder.h"
#include "QvelShortcutManager.h"

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
        m_process.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                                 QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                                 QStringLiteral("-terminate")});
        constexpr int patience = 30000;
        while (!m_process.canReadLine() && m_process.waitForReadyRead(patience)) { }
        m_display = ':' + m_process.readLine().trimmed();
    }

    ~XServer()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    bool isReady() const { return m_display.size() > 1; }
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
    for (const QString &program :
         {QStringLiteral("Xvfb"), QStringLiteral("xdotool"), QStringLiteral("setxkbmap")}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            missing.append(program);
    }
    return missing;
}

// Key codes, by what the keys type on a US keyboard.
const QString keyNumLock = QStringLiteral("77");

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
    void anyLayout_data();
    void anyLayout();
    void layouts_data();
    void layouts();
    void keypad_data();
    void keypad();
    void twoNamesOfOneKey();

private:
    void run(const QString &program, const QStringList &arguments);
    void setLayout(const QString &layout);
    void type(const QString &keys);
    QString typed(const QString &keys);
    QString shown() const;

    const QString m_display = qEnvironmentVariable("DISPLAY");
    QString m_layout;
    CaptureWindow m_window;
};

void TestKeysOfXServer::initTestCase()
{
    const QStringList missing = missingPrograms();
    if (!missing.isEmpty())
        QSKIP(qPrintable(QStringLiteral("not installed: ") + missing.join(QStringLiteral(", "))));
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));

    QLoggingCategory::setFilterRules(QStringLiteral("cui.hotkeyeditor.keys=false"));
    m_window.resize(100, 100);
    m_window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_window));
    m_window.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&m_window));
}

void TestKeysOfXServer::cleanup()
{
    qputenv("DISPLAY", m_display.toLocal8Bit());
    if (QTest::currentTestFailed()) {
        for (const CaptureWindow::Press &press : qAsConst(m_window.presses))
            qWarning("key %#x, captured as %#x", unsigned(press.key),
                     unsigned(press.capture.combination));
    }
}

void TestKeysOfXServer::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void TestKeysOfXServer::setLayout(const QString &layout)
{
    if (layout == m_layout)
        return;
    run(QStringLiteral("setxkbmap"), {layout});
    m_layout = layout;
}

/// Keys are named by their codes: for a name, xdotool may change the layout.
void TestKeysOfXServer::type(const QString &keys)
{
    m_window.presses.clear();
    run(QStringLiteral("xdotool"), {QStringLiteral("key"), keys});
    constexpr int patience = 20000;
    QTRY_COMPARE_WITH_TIMEOUT(m_window.presses.size(), keys.count(QLatin1Char('+')) + 1, patience);
}

QString TestKeysOfXServer::typed(const QString &keys)
{
    type(keys);
    if (QTest::currentTestFailed())
        return QString();
    return QKeySequence(m_window.presses.last().capture.combination)
            .toString(QKeySequence::PortableText);
}

QString TestKeysOfXServer::shown() const
{
    return HotkeyRecorder::text(m_window.presses.last().capture);
}

/// Then the events themselves have to do, until the server can be asked again.
void TestKeysOfXServer::withoutKeymap()
{
    qputenv("DISPLAY", ":none");
    setLayout(QStringLiteral("fr"));
    QCOMPARE(typed(QStringLiteral("shift+10")), QStringLiteral("Shift+1"));
    QCOMPARE(typed(QStringLiteral("shift+24")), QStringLiteral("Shift+A"));
    QCOMPARE(typed(QStringLiteral("58")), QStringLiteral(","));
    QCOMPARE(typed(QStringLiteral("34")), QStringLiteral("^"));
    QCOMPARE(typed(QStringLiteral("shift+61")), QStringLiteral("Shift+§"));
    setLayout(QStringLiteral("ru"));
    QCOMPARE(typed(QStringLiteral("ctrl+52")), QStringLiteral("Ctrl+Z"));

    qputenv("DISPLAY", m_display.toLocal8Bit());
    setLayout(QStringLiteral("fr"));
    QCOMPARE(typed(QStringLiteral("shift+61")), QStringLiteral("Shift+!"));
}

void TestKeysOfXServer::anyLayout_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("hotkey");
    QTest::addColumn<QString>("shownText");

    const struct {
        const char *keys;
        const char *hotkey;
        const char *shown;
    } cases[] = {
            {"10", "1", "1"},
            {"shift+10", "Shift+1", "Shift+1"},
            {"ctrl+shift+19", "Ctrl+Shift+0", "Ctrl+Shift+0"},
            {"36", "Enter", "Enter"},
            {"104", "Enter", "Enter"},
            {"23", "Tab", "Tab"},
            {"shift+23", "Shift+Tab", "Shift+Tab"},
            {"ctrl+alt+65", "Ctrl+Alt+Space", "Ctrl+Alt+Space"},
            {"shift+68", "Shift+F2", "Shift+F2"},
            {"119", "Del", "Del"},

            {"Escape", "", ""},
            {"ctrl+Escape", "", "Ctrl+"},
            {"67", "", ""}, // F1
            {"22", "", ""}, // Backspace
            {"127", "", ""}, // Pause
            {"78", "", ""}, // Scroll Lock
            {"ctrl+23", "", "Ctrl+"}, // Tab
            {"ctrl+shift+23", "", "Ctrl+Shift+"},
            {"alt+135", "", "Alt+"}, // the menu key, past F24
            {"ctrl+alt", "", "Ctrl+Alt+"},
            {"shift+alt", "", "Alt+Shift+"},
    };
    for (const char *layout : {"us", "de", "fr", "ru", "jp"}) {
        for (const auto &row : cases) {
            QTest::addRow("%s %s", layout, row.keys)
                    << QString::fromLatin1(layout) << QString::fromLatin1(row.keys)
                    << QString::fromLatin1(row.hotkey) << QString::fromLatin1(row.shown);
        }
    }
}

void TestKeysOfXServer::anyLayout()
{
    QFETCH(QString, layout);
    QFETCH(QString, keys);
    setLayout(layout);
    QTEST(typed(keys), "hotkey");
    QTEST(shown(), "shownText");
}

void TestKeysOfXServer::layouts_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("hotkey");

    const auto row = [](const char *layout, const char *keys, const char *hotkey) {
        QTest::addRow("%s %s", layout, keys)
                << QString::fromLatin1(layout) << QString::fromLatin1(keys)
                << QString::fromUtf8(hotkey);
    };
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
    setLayout(layout);
    QTEST(typed(keys), "hotkey");
}

void TestKeysOfXServer::keypad_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("locked");
    QTest::addColumn<QString>("unlocked");

    const auto row = [](const char *layout, const char *keys, const char *locked,
                        const char *unlocked) {
        QTest::addRow("%s %s", layout, keys)
                << QString::fromLatin1(layout) << QString::fromLatin1(keys)
                << QString::fromLatin1(locked) << QString::fromLatin1(unlocked);
    };
    for (const char *layout : {"us", "de", "fr", "ru", "jp"}) {
        row(layout, "84", "Num+5", "Clear");
        row(layout, "ctrl+79", "Ctrl+Num+7", "Ctrl+Home");
        row(layout, "90", "Num+0", "Ins");
        row(layout, "86", "Num++", "Num++");
        row(layout, "shift+106", "Shift+Num+/", "Shift+Num+/");
        row(layout, "110", "Home", "Home"); // not on the keypad
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

    QCOMPARE(typed(keyNumLock), QString());
    const QString locked = typed(keys);
    QCOMPARE(typed(keyNumLock), QString());
    QTEST(locked, "locked");
}

/// Qt finds both names of a key, and calls it ambiguous.
void TestKeysOfXServer::twoNamesOfOneKey()
{
    setLayout(QStringLiteral("us"));
    QWidget window;
    QAction plus(QStringLiteral("plus"));
    QAction equal(QStringLiteral("equal"));
    QStringList triggered;
    for (QAction *action : {&plus, &equal}) {
        window.addAction(action);
        connect(action, &QAction::triggered, this,
                [&triggered, action] { triggered << action->text(); });
    }
    QvelShortcutManager store;
    QvelActionBinder binder(&store);
    binder.bind({1, QStringLiteral("b")}, &plus);
    binder.bind({1, QStringLiteral("a")}, &equal);
    store.assignShortcut({1, QStringLiteral("b")}, QStringLiteral("Ctrl++"), QString());
    store.assignShortcut({1, QStringLiteral("a")}, QStringLiteral("Ctrl+Shift+="), QString());
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    const auto pressed = [&](int count) {
        triggered.clear();
        for (int i = 0; i < count; ++i)
            run(QStringLiteral("xdotool"),
                {QStringLiteral("key"), QStringLiteral("ctrl+shift+21")});
        constexpr int patience = 20000;
        [&] { QTRY_COMPARE_WITH_TIMEOUT(triggered.size(), count, patience); }();
        return triggered.join(QLatin1Char(' '));
    };
    QCOMPARE(pressed(2), QStringLiteral("equal equal"));
    equal.setEnabled(false);
    QCOMPARE(pressed(1), QStringLiteral("plus"));
}

int main(int argc, char **argv)
{
    std::unique_ptr<XServer> server;
    if (missingPrograms().isEmpty()) {
        server = std::make_unique<XServer>();
        if (!server->isReady())
            qFatal("Xvfb does not start");
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
