#include "ActionNameRank.h"
#include "FoldedText.h"
#include "HotkeyMatcher.h"
#include "RankedTexts.h"
#include "SearchPattern.h"
#include "Text.h"

#include <QRegularExpression>
#include <QtTest>

#include <random>

using CUI::ActionNameRank;
using CUI::FoldedText;
using CUI::HotkeyMatcher;
using CUI::RankedTexts;
using CUI::TextOrder;

namespace {

QRegularExpression expression(const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

/// Texts made of few pieces, so that they often match each other.
class Texts
{
public:
    explicit Texts(const char *pieces) : m_pieces(list(pieces)) { }

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    QString text(int maximum)
    {
        QString result;
        for (int count = below(maximum) + 1; count > 0; --count)
            result += m_pieces.at(below(m_pieces.size()));
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
    void simpleCharactersFoldAlike();
    void namesEqualGeneralSearch();
    void hotkeysEqualExpression();
    void rankedTextsEqualComparison();
};

void TestBrowsingParts::simpleCharactersFoldAlike()
{
    QVERIFY(FoldedText(s("Move Tool 2, œuvre à l’Échelle… 移動ツール 이동 도구")).isSimple);
    QVERIFY(!FoldedText(s("𐐀")).isSimple); // outside the base plane
    QString simple;
    for (ushort c = 0; c < 0x2100; ++c) {
        if (FoldedText(QChar(c)).isSimple)
            simple += QChar(c);
    }
    for (const QChar c : qAsConst(simple)) {
        auto matches = expression(QRegularExpression::escape(QString(c))).globalMatch(simple);
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

void TestBrowsingParts::namesEqualGeneralSearch()
{
    Texts texts("a|A|b|ab|é|É|ß|ss| |  |\\|.*|%1|(|_|移|Œ|œ|ſ|K|\n");
    int simple = 0;
    int matched = 0;
    for (int i = 0; i < 20000; ++i) {
        const QString search = texts.text(5).trimmed();
        const FoldedText name(texts.text(8));
        const ActionNameRank rank(search);
        if (search.isEmpty() || !rank.isSimple() || !name.isSimple)
            continue;
        const QString both = search + s(" / ") + name.text;
        const bool expected =
                expression(CUI::SearchPattern::ofWords(search)).match(name.text).hasMatch();
        QVERIFY2(rank.holdsEveryWord(name) == expected, qPrintable(both));
        QVERIFY2(rank.rank(name) == rank.rank(name.text), qPrintable(both));
        ++simple;
        matched += expected ? 1 : 0;
    }
    QVERIFY(simple > 5000 && matched > 500);
}

void TestBrowsingParts::hotkeysEqualExpression()
{
    Texts texts("Ctrl+|ctrl+|Shift+|Alt+|A|A1|1| | |+|F1|É|Ctrl|_|,|Num+5");
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

void TestBrowsingParts::rankedTextsEqualComparison()
{
    Texts texts("a|A|b|B|é|E|Z|_|移|");
    RankedTexts ranked;
    const TextOrder orders[] = {
            {Qt::CaseSensitive, false}, {Qt::CaseInsensitive, false}, {Qt::CaseInsensitive, true}};
    for (int i = 0; i < 60000; ++i) {
        // New texts come all the time, and are compared before they have a rank.
        const TextOrder &order = orders[i / 20000];
        const int a = ranked.add(texts.text(3));
        const int b = i % 50 == 0 ? ranked.add(texts.text(6)) : texts.below(ranked.size());
        QCOMPARE(ranked.less(a, b, order), order.less(ranked.text(a), ranked.text(b)));
        QCOMPARE(ranked.isEmpty(a), ranked.text(a).isEmpty());
    }
    QVERIFY(ranked.isRanked(0, 1, orders[2]));
}

QTEST_GUILESS_MAIN(TestBrowsingParts)
#include "tst_BrowsingParts.moc"
