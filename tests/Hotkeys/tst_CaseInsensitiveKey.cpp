#include "CaseInsensitiveKey.h"

#include <QtTest>

#include <vector>

using CUI::CaseInsensitiveKey;
using CUI::CaseInsensitiveKeyHash;

class TestCaseInsensitiveKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void meetsWhatTheComparisonMeets();
};

// Every letter that folds, one that does not, and pairs of surrogates: texts that compare equal
// without regard to case must have equal hashes.
void TestCaseInsensitiveKey::meetsWhatTheComparisonMeets()
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

QTEST_GUILESS_MAIN(TestCaseInsensitiveKey)
#include "tst_CaseInsensitiveKey.moc"
