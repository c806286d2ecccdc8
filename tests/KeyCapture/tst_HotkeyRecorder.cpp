#include "HotkeyRecorder.h"
#include "Text.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QLoggingCategory>
#include <QtTest>

using namespace CUI;

namespace {

QKeyEvent press(int key, Qt::KeyboardModifiers modifiers, int virtualKey,
                const QString &text = QString())
{
    constexpr quint32 scanCode = 30;
    constexpr quint32 nativeModifiers = 3;
    return {QEvent::KeyPress, key, modifiers, scanCode, static_cast<quint32>(virtualKey),
            nativeModifiers,  text};
}

constexpr Qt::KeyboardModifiers none = Qt::NoModifier;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers alt = Qt::AltModifier;
constexpr Qt::KeyboardModifiers meta = Qt::MetaModifier;
constexpr Qt::KeyboardModifiers keypad = Qt::KeypadModifier;

} // namespace

/// Key presses as the offscreen platform hands them on: with Windows virtual keys.
class TestHotkeyRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void captures_data();
    void captures();
    void writesEachPressToTheLog();
};

void TestHotkeyRecorder::init()
{
    QLoggingCategory::setFilterRules(s("cui.hotkeyeditor.keys=false"));
}

void TestHotkeyRecorder::captures_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("virtualKey");
    QTest::addColumn<QString>("hotkey");
    QTest::addColumn<QString>("held"); // shown when there is no hotkey
    QTest::addColumn<int>("wayOut");

    using HotkeyRecorder::WayOut;
    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers, int virtualKey,
                        const char *hotkey, const char *held = "", WayOut wayOut = WayOut::None) {
        QTest::newRow(name) << key << modifiers << virtualKey << s(hotkey) << s(held)
                            << int(wayOut);
    };
    row("digit with Shift", Qt::Key_Exclam, shift, 49, "Shift+1");
    row("before the digits", Qt::Key_Exclam, none, 47, "!");
    row("after the digits", Qt::Key_Exclam, none, 58, "!");
    row("Cyrillic letter", 0x042F, ctrl, 90, "Ctrl+Z");
    row("letter of another layout", Qt::Key_Q, ctrl | alt | shift, 65, "Ctrl+Alt+Shift+A");
    row("before the letters", Qt::Key_Exclam, none, 64, "!");
    row("unknown virtual key", Qt::Key_Exclam, shift, 0, "Shift+!");

    row("first punctuation", Qt::Key_Colon, shift, 186, "Shift+;");
    row("plus", Qt::Key_Plus, ctrl | shift, 187, "Ctrl+Shift+=");
    row("last punctuation", Qt::Key_AsciiTilde, shift, 223, "Shift+§");
    row("punctuation without a character", Qt::Key_AsciiTilde, shift, 200, "Shift+~");

    row("keypad 0", Qt::Key_0, keypad, 96, "Num+0");
    row("keypad 5", Qt::Key_5, keypad | ctrl, 101, "Ctrl+Num+5");
    row("keypad separator", Qt::Key_Comma, keypad, 108, ",");
    row("keypad without numbers", Qt::Key_Home, keypad, 36, "Home");
    row("keypad Enter", Qt::Key_Enter, keypad, 13, "Enter");
    row("before the keypad", Qt::Key_A, none, 95, "A");
    row("after the keypad", Qt::Key_A, none, 112, "A");

    row("Return", Qt::Key_Return, none, 13, "Enter");
    row("Tab", Qt::Key_Tab, none, 9, "Tab");
    row("F2", Qt::Key_F2, none, 113, "F2");
    row("Meta is dropped", Qt::Key_A, meta | ctrl, 65, "Ctrl+A");

    // Keys that are no hotkeys
    row("Escape", Qt::Key_Escape, none, 27, "");
    row("Shift+F1", Qt::Key_F1, shift, 112, "", "Shift+");
    row("Ctrl+Tab", Qt::Key_Tab, ctrl, 9, "", "Ctrl+", WayOut::Next);
    row("Ctrl+Shift+Backtab", Qt::Key_Backtab, ctrl | shift, 9, "", "Ctrl+Shift+",
        WayOut::Previous);
    row("Ctrl+Meta+Tab", Qt::Key_Tab, ctrl | meta, 9, "", "Ctrl+", WayOut::Next);
    row("F25", Qt::Key_F25, none, 0, "");
    row("unknown key", Qt::Key_unknown, shift, 0, "", "Shift+");
    row("no key", 0, ctrl, 0, "", "Ctrl+");

    // Platforms differ in whether such an event counts its own key among the modifiers.
    row("Shift, counted", Qt::Key_Shift, shift, 16, "", "Shift+");
    row("Ctrl", Qt::Key_Control, none, 17, "", "Ctrl+");
    row("Alt while Ctrl is held", Qt::Key_Alt, ctrl, 18, "", "Ctrl+Alt+");
    row("Alt while Ctrl is held, counted", Qt::Key_Alt, ctrl | alt, 18, "", "Ctrl+Alt+");
    row("Meta", Qt::Key_Meta, none, 91, "");
}

void TestHotkeyRecorder::captures()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, virtualKey);
    QFETCH(QString, hotkey);
    QFETCH(QString, held);

    const QKeyEvent event = press(key, modifiers, virtualKey);
    const HotkeyRecorder::Capture capture = HotkeyRecorder::capture(event);
    const QKeySequence sequence(capture.combination);
    QCOMPARE(sequence.toString(QKeySequence::PortableText), hotkey);
    QCOMPARE(HotkeyRecorder::displayText(capture),
             held + sequence.toString(QKeySequence::NativeText));
    QTEST(int(HotkeyRecorder::wayOut(event)), "wayOut");
}

void TestHotkeyRecorder::writesEachPressToTheLog()
{
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(QtDebugMsg, "key: 33 Text: %1! modifiers: 33554432 nativeModifiers: 3 "
                                     "nativeScanCode: 30 nativeVirtualKey: 49");
    HotkeyRecorder::capture(press(Qt::Key_Exclam, shift, 49, s("%1!")));
    QTest::ignoreMessage(QtDebugMsg, "key: 16777216 Text:  modifiers: 0 nativeModifiers: 3 "
                                     "nativeScanCode: 30 nativeVirtualKey: 27");
    HotkeyRecorder::capture(press(Qt::Key_Escape, none, 27));
}

QTEST_MAIN(TestHotkeyRecorder)
#include "tst_HotkeyRecorder.moc"
