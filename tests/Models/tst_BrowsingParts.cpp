#include "ActionNameRank.h"
#include "FoldedText.h"
#include "HotkeyMatcher.h"
#include "HotkeyOrder.h"
#include "RankedTexts.h"
#include "SearchPattern.h"

#include <QRegularExpression>
#include <QtTest>

#include <random>

using CUI::ActionNameRank;
using CUI::FoldedText;
using CUI::HotkeyMatcher;
using CUI::HotkeyOrder;
using CUI::RankedTexts;
using CUI::TextOrder;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

QRegularExpression expression(const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

/// Texts made of few pieces, so that they often match each other.
class Texts
{
public:
    explicit Texts(const QStringList &pieces) : m_pieces(pieces) { }

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    const QString &piece() { return m_pieces.at(below(m_pieces.size())); }
    QString text(int maximum)
    {
        QString result;
        for (int count = below(maximum) + 1; count > 0; --count)
            result += piece();
        return result;
    }

private:
    std::mt19937 m_random{5};
    QStringList m_pieces;
};

} // namespace

/// The short cuts of a search give the answers of the general functions that they replace.
class TestBrowsingParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldedTexts_data();
    void foldedTexts();
    void simpleCharactersFoldAlike();
    void wordsEqualExpression();
    void ranksEqualGeneralRanks();
    void hotkeysEqualExpression();
    void rankedTextsEqualComparison_data();
    void rankedTextsEqualComparison();
    void rankedTextsFollowTheOrder();
    void hotkeyOrder_data();
    void hotkeyOrder();
};

void TestBrowsingParts::foldedTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("folded");
    QTest::addColumn<bool>("isSimple");

    QTest::newRow("null") << QString() << QString() << true;
    QTest::newRow("English") << s("Move Tool 2") << s("move tool 2") << true;
    QTest::newRow("sharp s stays one letter") << s("GroSSe Straße") << s("grosse straße") << true;
    QTest::newRow("French") << s("ŒUVRE à l’Échelle…") << s("œuvre à l’échelle…") << true;
    QTest::newRow("Japanese") << s("移動ツール") << s("移動ツール") << true;
    QTest::newRow("Korean") << s("이동 도구") << s("이동 도구") << true;
    QTest::newRow("long s") << s("ſo") << s("so") << false;
    QTest::newRow("micro sign") << s("5 µm") << s("5 μm") << false;
    QTest::newRow("Turkish I") << s("Işık İz") << s("işık İz") << false;
    QTest::newRow("Greek") << s("ΑΒΓ") << s("αβγ") << false;
    QTest::newRow("line break") << s("a\nB") << s("a\nb") << false;
    QTest::newRow("outside the base plane") << s("𐐀") << s("𐐀") << false;
}

void TestBrowsingParts::foldedTexts()
{
    QFETCH(QString, text);
    const FoldedText folded(text);
    QTEST(folded.text, "folded");
    QTEST(folded.isSimple, "isSimple");
}

void TestBrowsingParts::simpleCharactersFoldAlike()
{
    QString simple;
    for (ushort c = 0; c < 0x2100; ++c) {
        if (FoldedText(QChar(c)).isSimple)
            simple += QChar(c);
    }
    QVERIFY(simple.size() > 350);
    for (const QChar c : qAsConst(simple)) {
        const QRegularExpression sought = expression(QRegularExpression::escape(QString(c)));
        auto matches = sought.globalMatch(simple);
        QString alike;
        while (matches.hasNext())
            alike += matches.next().captured();
        QString folding;
        for (const QChar other : qAsConst(simple)) {
            if (FoldedText(other).text == FoldedText(c).text)
                folding += other;
        }
        QCOMPARE(alike, folding);
    }
}

void TestBrowsingParts::wordsEqualExpression()
{
    Texts texts(s("a|A|b|ab|é|É|ß|ss| |  |\\|.*|%1|(|_|移|Œ|œ|ſ|K|\n").split(QLatin1Char('|')));
    int simple = 0;
    int matched = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString search = texts.text(5).trimmed();
        const FoldedText name(texts.text(8));
        const ActionNameRank rank(search);
        if (search.isEmpty() || !rank.isSimple() || !name.isSimple)
            continue;
        const bool expected =
                expression(CUI::SearchPattern::ofWords(search)).match(name.text).hasMatch();
        QVERIFY2(rank.holdsEveryWord(name) == expected, qPrintable(search + s(" / ") + name.text));
        ++simple;
        matched += expected ? 1 : 0;
    }
    QVERIFY(simple > 5000 && matched > 500);
}

void TestBrowsingParts::ranksEqualGeneralRanks()
{
    Texts texts(s("a|A|b|B|ab|é|É| | | |ß|移").split(QLatin1Char('|')));
    QVector<int> counts(6);
    for (int i = 0; i < 20000; ++i) {
        const ActionNameRank search(texts.text(4));
        const QString name = texts.text(9);
        QCOMPARE(search.rank(FoldedText(name)), search.rank(name));
        ++counts[search.rank(name)];
    }
    for (int rank = 0; rank < counts.size(); ++rank)
        QVERIFY2(counts[rank] > 100, qPrintable(QString::number(rank)));
}

void TestBrowsingParts::hotkeysEqualExpression()
{
    Texts texts(
            s("Ctrl+|ctrl+|Shift+|Alt+|A|A1|1| | |+|F1|É|Ctrl|_|,|Num+5").split(QLatin1Char('|')));
    int simple = 0;
    int matched = 0;
    for (int i = 0; i < 40000; ++i) {
        QStringList parts;
        for (int count = texts.below(4); count > 0; --count)
            parts << (texts.below(2) == 0 ? texts.text(2) : s("Ctrl"));
        const HotkeyMatcher matcher(parts);
        const FoldedText hotkeys(texts.text(8));
        if (!matcher.isSimple())
            continue;
        const QRegularExpression general = expression(CUI::SearchPattern::ofHotkey(parts));
        const bool expected = general.match(hotkeys.text).hasMatch();
        QVERIFY2(matcher.matches(hotkeys) == expected,
                 qPrintable(parts.join(s("|")) + s(" / ") + hotkeys.text));
        ++simple;
        matched += expected && !parts.isEmpty() ? 1 : 0;
    }
    QVERIFY(simple > 10000 && matched > 500);
    QVERIFY(!HotkeyMatcher({s("Ctrl"), s("ctrl")}).isSimple());
    QVERIFY(!HotkeyMatcher({QString(), s("+")}).isSimple());
}

void TestBrowsingParts::rankedTextsEqualComparison_data()
{
    QTest::addColumn<int>("sensitivity");
    QTest::addColumn<bool>("isLocaleAware");

    QTest::newRow("exact") << int(Qt::CaseSensitive) << false;
    QTest::newRow("ignoring case") << int(Qt::CaseInsensitive) << false;
    QTest::newRow("by the language") << int(Qt::CaseInsensitive) << true;
}

void TestBrowsingParts::rankedTextsEqualComparison()
{
    QFETCH(int, sensitivity);
    QFETCH(bool, isLocaleAware);
    const TextOrder order{Qt::CaseSensitivity(sensitivity), isLocaleAware};
    Texts texts(s("a|A|b|B|é|E|Z|_|移|").split(QLatin1Char('|')));
    RankedTexts ranked;
    for (int i = 0; i < 20000; ++i) {
        // New texts come all the time, and are compared before they have a rank.
        const int a = ranked.add(texts.text(3));
        const int b = i % 50 == 0 ? ranked.add(texts.text(6)) : texts.below(ranked.size());
        QCOMPARE(ranked.less(a, b, order), order.less(ranked.text(a), ranked.text(b)));
        QCOMPARE(ranked.isEmpty(a), ranked.text(a).isEmpty());
    }
    QVERIFY(ranked.isRanked(0, 1, order));
}

void TestBrowsingParts::rankedTextsFollowTheOrder()
{
    RankedTexts ranked;
    const int capital = ranked.add(s("B"));
    const int small = ranked.add(s("a"));
    QCOMPARE(ranked.add(s("B")), capital);
    for (int i = 0; i < 20; ++i) {
        QVERIFY(ranked.less(capital, small, {Qt::CaseSensitive, false}));
        QVERIFY(ranked.less(small, capital, {Qt::CaseInsensitive, false}));
    }
    ranked.clear();
    QCOMPARE(ranked.size(), 0);
    QCOMPARE(ranked.add(s("a")), 0);
}

void TestBrowsingParts::hotkeyOrder_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("isLess");
    QTest::addColumn<bool>("isGreater");

    QTest::newRow("numbers before other keys") << s("Ctrl+Alt+9") << s("A") << true << false;
    QTest::newRow("numbers as texts") << s("10") << s("9") << true << false;
    QTest::newRow("keys by text") << s("Meta+Ctrl+A") << s("B") << true << false;
    QTest::newRow("fewer modifiers first") << s("Meta+A") << s("Ctrl+Alt+A") << true << false;
    QTest::newRow("then the modifiers") << s("Alt+A") << s("Ctrl+A") << true << false;
    QTest::newRow("the first that differs")
            << s("Ctrl+Alt+A") << s("Ctrl+Shift+A") << true << false;
    QTest::newRow("equal parts") << s("ctrl+a") << s("Ctrl+A") << false << false;
    QTest::newRow("a key of the keypad is one part") << s("5") << s("Num+5") << true << false;
    QTest::newRow("no key combination counts as a number")
            << s("nonsense") << s("A") << true << false;
    QTest::newRow("and stands before numbers") << s("nonsense") << s("1") << true << false;
}

void TestBrowsingParts::hotkeyOrder()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    HotkeyOrder order;
    const int a = order.add(left);
    const int b = order.add(right);
    QTEST(order.compare(a, b) == HotkeyOrder::Result::Less, "isLess");
    QTEST(order.compare(b, a) == HotkeyOrder::Result::Less, "isGreater");
    QCOMPARE(order.add(left), a);
    QCOMPARE(order.compare(a, order.add(left)), HotkeyOrder::Result::SameParts);
}

QTEST_GUILESS_MAIN(TestBrowsingParts)
#include "tst_BrowsingParts.moc"
