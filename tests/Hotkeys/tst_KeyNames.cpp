#include "CaseInsensitiveKey.h"
#include "Text.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

using CUI::CaseInsensitiveKey;
using CUI::CaseInsensitiveKeyHash;
using CUI::QvelShortcutManager;

class TestKeyNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedKeys();
    void toVirtualKey_data();
    void toVirtualKey();
    void meetsWhatTheComparisonMeets();
};

// In both directions.
void TestKeyNames::namedKeys()
{
    QVector<QPair<QString, int>> keys{{s("Tab"), 0x09},  {s("Enter"), 0x0D}, {s("Del"), 0x2E},
                                      {s("Left"), 0x25}, {s("Space"), 0x20}, {s("Num++"), 0x6B},
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

// Every letter that folds, one that does not, and pairs of surrogates: texts that compare equal
// without regard to case must have equal hashes.
void TestKeyNames::meetsWhatTheComparisonMeets()
{
    int folding = 0;
    for (uint codePoint = 1; codePoint < 0x1FFFF; ++codePoint) {
        const uint folded = QChar::toCaseFolded(codePoint);
        if (folded == codePoint)
            continue;
        ++folding;
        const CaseInsensitiveKey text{QStringLiteral("Ctrl+") + QString::fromUcs4(&codePoint, 1)};
        const CaseInsensitiveKey other{QStringLiteral("cTRL+") + QString::fromUcs4(&folded, 1)};
        // Only texts of one length are equal; a folding can leave the basic plane.
        const bool expected = text.text.size() == other.text.size();
        QCOMPARE(text == other, expected);
        QCOMPARE(QStringList(other.text).contains(text.text, Qt::CaseInsensitive), expected);
        if (expected)
            QCOMPARE(CaseInsensitiveKeyHash()(text), CaseInsensitiveKeyHash()(other));
    }
    QVERIFY(folding > 1000);
    QVERIFY(!(CaseInsensitiveKey{QStringLiteral("ß")} == CaseInsensitiveKey{QStringLiteral("ss")}));
}

QTEST_GUILESS_MAIN(TestKeyNames)
#include "tst_KeyNames.moc"
