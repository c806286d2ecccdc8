#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

using CUI::QvelShortcutManager;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TestKeyNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedKeys();
    void toVirtualKey_data();
    void toVirtualKey();
    void fromVirtualKey_data();
    void fromVirtualKey();
    void punctuation();
    void keypadName();
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
    QCOMPARE(keys.size(), 42);
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
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("virtualKey");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("back"); // what the accelerator reads as

    const auto row = [](const char *text, int virtualKey, int flags, const char *back = nullptr) {
        QTest::newRow(text) << text << true << virtualKey << flags << (back ? back : text);
    };
    row("Ctrl+Shift+A", 0x41, 15);
    row("Ctrl+Alt+Shift+F12", 0x7B, 31);
    row("Num+5", 0x65, 3);
    row("5", 0x35, 3);
    row("Num++", 0x6B, 3);
    row("Ctrl+Num+.", 0x6E, 11);
    row("Ctrl+,", 0xBC, 11);
    row("`", 0xC0, 3);
    row("\\", 0xDC, 3);
    row("§", 0xDF, 3);
    row("Return", 0x0D, 3, "Enter"); // the virtual key is shared
    row("Enter", 0x0D, 3);
    row("Space", 0x20, 3);
    row("CapsLock", 0x14, 3);
    row("PgUp", 0x21, 3);
    row("Meta+A", 0x41, 3, "A");
    row("Ctrl+K, Ctrl+B", 0x4B, 11, "Ctrl+K");

    QTest::newRow("empty") << "" << false << 0 << 2 << "";
    QTest::newRow("F1") << "Shift+F1" << false << 0 << 7 << "";
    QTest::newRow("F13") << "F13" << false << 0 << 3 << "";
    QTest::newRow("keypad Return") << "Num+Return" << false << 0 << 3 << "";
    QTest::newRow("keypad A") << "Ctrl+Num+A" << false << 0 << 11 << "";
}

void TestKeyNames::toVirtualKey()
{
    QFETCH(QString, text);
    QFETCH(bool, found);
    int virtualKey = -1;
    int flags = -1;
    QCOMPARE(QvelShortcutManager::keySequenceToVirtualKey(text, virtualKey, flags), found);
    QTEST(virtualKey, "virtualKey");
    QTEST(flags, "flags");
    if (found)
        QTEST(QvelShortcutManager::virtualKeyToStr(virtualKey, flags), "back");
}

void TestKeyNames::fromVirtualKey_data()
{
    QTest::addColumn<int>("virtualKey");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("text");

    QTest::newRow("Enter, never Return") << 0x0D << 1 << "Enter";
    QTest::newRow("character") << 0x41 << 0 << "A";
    QTest::newRow("character, not a named key") << 0x2D << 10 << "Ctrl+-";
    QTest::newRow("keypad code as a character") << 0x6B << 2 << "K";
    QTest::newRow("F1 reads as the character of its number") << 0x70 << 1 << "P";
    QTest::newRow("all modifiers") << 0x41 << 31 << "Ctrl+Alt+Shift+A";
    QTest::newRow("unknown bits of the flags are ignored") << 0x41 << 0xE3 << "A";
}

void TestKeyNames::fromVirtualKey()
{
    QFETCH(int, virtualKey);
    QFETCH(int, flags);
    QTEST(QvelShortcutManager::virtualKeyToStr(virtualKey, flags), "text");
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

void TestKeyNames::keypadName()
{
    QCOMPARE(QvelShortcutManager::getNumPadKeyName(QKeySequence::PortableText),
             QStringLiteral("Num"));
    QVERIFY(!QvelShortcutManager::getNumPadKeyName(QKeySequence::NativeText).isEmpty());
}

QTEST_GUILESS_MAIN(TestKeyNames)
#include "tst_KeyNames.moc"
