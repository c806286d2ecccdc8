#include "SearchQuery.h"
#include "Text.h"

#include <QRegularExpression>
#include <QtTest>

#include <random>

using CUI::SearchQuery;
using CUI::SearchText;

namespace {

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

/// The same text, not taken to be simple.
SearchText general(const QString &text)
{
    SearchText result(text);
    result.isSimple = false;
    return result;
}

} // namespace

/// Simple texts get the answers of the general functions that they do without.
class TestBrowsingParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void simpleCharactersFoldAlike();
    void namesEqualGeneralSearch();
    void hotkeysEqualExpression();
};

void TestBrowsingParts::simpleCharactersFoldAlike()
{
    QVERIFY(SearchText(s("Move Tool 2, œuvre à l’Échelle… 移動ツール 이동 도구")).isSimple);
    QVERIFY(!SearchText(s("𐐀")).isSimple); // outside the base plane
    QString simple;
    for (ushort c = 0; c < 0x2100; ++c) {
        if (SearchText(QChar(c)).isSimple)
            simple += QChar(c);
    }
    for (const QChar c : qAsConst(simple)) {
        const QRegularExpression expression(QRegularExpression::escape(QString(c)),
                                            QRegularExpression::CaseInsensitiveOption);
        auto matches = expression.globalMatch(simple);
        QString alike;
        while (matches.hasNext())
            alike += matches.next().captured();
        QString folding;
        for (const QChar other : qAsConst(simple)) {
            if (SearchText(other).folded == SearchText(c).folded)
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
        const SearchQuery query = SearchQuery::ofWords(texts.text(5).trimmed());
        const SearchText name(texts.text(8));
        const SearchText other(texts.text(3));
        const QString both = query.text() + s(" / ") + name.text;
        QCOMPARE(SearchText::isLess(name, other, Qt::CaseInsensitive),
                 name.text.compare(other.text, Qt::CaseInsensitive) < 0);
        if (query.text().isEmpty() || !name.isSimple)
            continue;
        const bool expected = query.matches(general(name.text));
        QVERIFY2(query.matches(name) == expected, qPrintable(both));
        QVERIFY2(query.rank(name) == query.rank(general(name.text)), qPrintable(both));
        ++simple;
        matched += expected ? 1 : 0;
    }
    QVERIFY(simple > 5000 && matched > 500);
}

void TestBrowsingParts::hotkeysEqualExpression()
{
    Texts texts("Ctrl+|ctrl+|Shift+|Alt+|A|A1|1| | |+|F1|É|Ctrl|_|,|Num+5");
    int matched = 0;
    for (int i = 0; i < 40000; ++i) {
        QStringList parts;
        for (int count = texts.below(4); count > 0; --count)
            parts << (texts.below(2) == 0 ? texts.text(2) : s("Ctrl"));
        const SearchQuery query = SearchQuery::ofHotkey(QString(), parts);
        const SearchText hotkeys(texts.text(8));
        const bool expected = query.matches(general(hotkeys.text));
        QVERIFY2(query.matches(hotkeys) == expected,
                 qPrintable(parts.join(s("|")) + s(" / ") + hotkeys.text));
        matched += expected && !parts.isEmpty() ? 1 : 0;
    }
    QVERIFY(matched > 500);
}

QTEST_GUILESS_MAIN(TestBrowsingParts)
#include "tst_BrowsingParts.moc"
