#include "Text.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

using CUI::QvelShortcutManager;

class TestKeyNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedKeys();
    void toVirtualKey_data();
    void toVirtualKey();
    void fromVirtualKey();
    void punctuation();
};

// Every named key, in both directions.
void TestKeyNames::namedKeys()
{
    QVector<QPair<QString, int>> keys{
            {s("Esc"), 0x1B},   {s("Tab"), 0x09},    {s("Backspace"), 0x08}, {s("Enter"), 0x0D},
            {s("Ins"), 0x2D},   {s("Del"), 0x2E},    {s("Home"), 0x24},      {s("End"), 0x23},
            {s("Left"), 0x25},  {s("Up"), 0x26},     {s("Right"), 0x27},     {s("Down"), 0x28},
            {s("PgUp"), 0x21},  {s("PgDown"), 0x22}, {s("CapsLock"), 0x14},  {s("Space"), 0x20},
            {s("Num+*"), 0x6A}, {s("Num++"), 0x6B},  {s("Num+-"), 0x6D},     {s("Num+."), 0x6E},
            {s("Num+/"), 0x6F}};
    for (int i = 2; i <= 12; ++i)
        keys.append({s("F%1").arg(i), 0x70 + i - 1});
    for (int i = 0; i <= 9; ++i)
        keys.append({s("Num+%1").arg(i), 0x60 + i});
    for (const auto &[text, expected] : keys) {
        int virtualKey = 0;
        int flags = 0;
        QVERIFY2(QvelShortcutManager::keySequenceToVirtualKey(text, virtualKey, flags),
                 qPrintable(text));
        QCOMPARE(virtualKey, expected);
        QCOMPARE(QvelShortcutManager::virtualKeyToStr(expected, 1), text);
    }
}

void TestKeyNames::toVirtualKey_data()
{
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("virtualKey");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("back"); // what the accelerator reads as

    const auto row = [](const char *text, int virtualKey, int flags, const char *back) {
        QTest::newRow(text) << (virtualKey != 0) << virtualKey << flags << s(back);
    };
    row("Ctrl+Shift+A", 0x41, 15, "Ctrl+Shift+A");
    row("Ctrl+Alt+Shift+F12", 0x7B, 31, "Ctrl+Alt+Shift+F12");
    row("5", 0x35, 3, "5");
    row("Ctrl+Num+.", 0x6E, 11, "Ctrl+Num+.");
    row("Ctrl+,", 0xBC, 11, "Ctrl+,");
    row("§", 0xDF, 3, "§");
    row("Return", 0x0D, 3, "Enter"); // the virtual key is shared
    row("Meta+A", 0x41, 3, "A");
    row("Ctrl+K, Ctrl+B", 0x4B, 11, "Ctrl+K");
    // No accelerator.
    row("", 0, 2, "");
    row("Shift+F1", 0, 7, "");
    row("F13", 0, 3, "");
    row("Num+Return", 0, 3, "");
    row("Ctrl+Num+A", 0, 11, "");
}

void TestKeyNames::toVirtualKey()
{
    QFETCH(bool, found);
    int virtualKey = -1;
    int flags = -1;
    const QString text = s(QTest::currentDataTag());
    QCOMPARE(QvelShortcutManager::keySequenceToVirtualKey(text, virtualKey, flags), found);
    QTEST(virtualKey, "virtualKey");
    QTEST(flags, "flags");
    if (found)
        QTEST(QvelShortcutManager::virtualKeyToStr(virtualKey, flags), "back");
}

void TestKeyNames::fromVirtualKey()
{
    const auto text = &QvelShortcutManager::virtualKeyToStr;
    QCOMPARE(text(0x2D, 10), s("Ctrl+-")); // a character, not a named key
    QCOMPARE(text(0x6B, 2), s("K")); // the code of a key of the keypad as a character
    QCOMPARE(text(0x70, 1), s("P")); // F1 reads as the character of its number
    QCOMPARE(text(0x41, 0xE3), s("A")); // unknown bits of the flags are ignored
}

void TestKeyNames::punctuation()
{
    const QVector<QPair<int, int>> pairs{{',', 0xBC},  {'-', 0xBD}, {'.', 0xBE},  {'/', 0xBF},
                                         {';', 0xBA},  {'=', 0xBB}, {'`', 0xC0},  {'[', 0xDB},
                                         {'\\', 0xDC}, {']', 0xDD}, {'\'', 0xDE}, {0xA7, 0xDF}};
    for (const auto &[key, virtualKey] : pairs) {
        QCOMPARE(QvelShortcutManager::keyToOEM(key), virtualKey);
        QCOMPARE(QvelShortcutManager::oemToKey(virtualKey), key);
    }
    QCOMPARE(QvelShortcutManager::keyToOEM('A'), 0);
    QCOMPARE(QvelShortcutManager::oemToKey('A'), 0);
}

QTEST_GUILESS_MAIN(TestKeyNames)
#include "tst_KeyNames.moc"
