#include "ActionIdentifier.h"

#include <QtTest>

#include <cstdint>

using CUI::ActionIdentifier;

class TestActionIdentifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parsesTextForm_data();
    void parsesTextForm();
    void hashes();
};

void TestActionIdentifier::parsesTextForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("tableId");
    QTest::addColumn<QString>("actionId");

    QTest::newRow("plain") << "1-undo" << quint64(1) << "undo";
    QTest::newRow("hyphens stay in the action") << "12-my-action-" << quint64(12) << "my-action-";
    QTest::newRow("not a number") << "abc-x" << quint64(0) << "x";
    QTest::newRow("negative") << "--5" << quint64(0) << "-5";
    QTest::newRow("largest") << "4294967295-x" << quint64(4294967295U) << "x";
    QTest::newRow("33 bits") << "4294967296-x" << quint64(0) << "x";
    QTest::newRow("hexadecimal") << "0x10-x" << quint64(0) << "x";
    QTest::newRow("fraction") << "1.5-x" << quint64(0) << "x";
    QTest::newRow("no action") << "7-" << quint64(7) << "";
    QTest::newRow("no hyphen") << "7undo" << quint64(0) << "";
    QTest::newRow("empty") << "" << quint64(0) << "";
}

void TestActionIdentifier::parsesTextForm()
{
    QFETCH(QString, text);
    const auto identifier = ActionIdentifier::fromString(text);
    QTEST(quint64(identifier.tableId), "tableId");
    QTEST(identifier.actionId, "actionId");
    QCOMPARE(ActionIdentifier::fromString(identifier.toString()), identifier);
}

void TestActionIdentifier::hashes()
{
    const std::uint64_t h = 0xb345225e3644edb5U; // 64-bit FNV-1a of the bytes 04 03 02 01
    const QString name = QStringLiteral("undo");
    const std::uint64_t q = qHash(name, 0);
    const std::uint64_t expected = h ^ (0x9e3779b9U + (h >> 2) + (h << 6) + q);

    const std::hash<ActionIdentifier> hash;
    QCOMPARE(std::uint64_t(hash({0x01020304U, name})), expected);
    QVERIFY(hash({1, name}) != hash({2, name}));
    QVERIFY(hash({1, name}) != hash({1, QStringLiteral("Undo")}));
}

QTEST_GUILESS_MAIN(TestActionIdentifier)
#include "tst_ActionIdentifier.moc"
