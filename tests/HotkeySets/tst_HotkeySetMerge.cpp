#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeySetMerge.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

#include <random>

using CUI::HotkeySetMerge;
using CUI::ShortcutTransformation;
using Steps = HotkeySetMerge::Steps;

// A set is written as "a+X b-Y": X is given to a, then Y taken from b. The actions a, b and c share
// a context; d has one of its own, and z is not registered.
namespace {

Steps stepsOf(const QString &text)
{
    Steps steps;
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        steps.emplace_back(ShortcutTransformation::Kind(word.at(1) == QLatin1Char('-')),
                           CUI::ActionIdentifier{1, word.left(1)}, word.mid(2), QString());
    return steps;
}

QString textOf(const Steps &steps)
{
    QStringList words;
    for (const ShortcutTransformation &step : steps)
        words << step.actionId().actionId + s("+-").at(step.kind()) + step.shortcut();
    return words.join(QLatin1Char(' '));
}

/// The three-way rule for one value that the two sides did not change in two ways.
template <typename Value>
Value chosen(const Value &base, const Value &mine, const Value &theirs)
{
    return mine == base ? theirs : mine;
}

/// Who of the actions of one context a set gives the hotkey to in the end; null for none.
QString takerOf(const QString &set, const QString &context, const QString &key)
{
    QString taker;
    for (const QString &word : set.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (context.contains(word.at(0)) && word.mid(1) == QLatin1Char('+') + key)
            taker = word.left(1);
    }
    return taker;
}

/// Who of a context holds the hotkey once sets that do not clash are merged, on a base where
/// @p holder does: asked for one hotkey and action after the other.
QString plainHolder(const QStringList &sets, const QString &context, const QString &key,
                    QString holder)
{
    QStringList takers;
    for (const QString &action : context.split(QString(), Qt::SkipEmptyParts)) {
        const auto has = [&](int set, const char *sign) {
            return sets.at(set).split(QLatin1Char(' ')).contains(action + s(sign) + key);
        };
        if (chosen(has(0, "+"), has(1, "+"), has(2, "+")))
            takers << action;
        if (holder == action && chosen(has(0, "-"), has(1, "-"), has(2, "-")))
            holder.clear();
    }
    const QString mine = takerOf(sets.at(1), context, key);
    const QString theirs = takerOf(sets.at(2), context, key);
    if (takers.size() < 2)
        return takers.value(0, holder);
    return mine.isEmpty() || theirs.isEmpty()
                   ? mine + theirs
                   : chosen(takerOf(sets.at(0), context, key), mine, theirs);
}

} // namespace

class TestHotkeySetMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void merges_data();
    void merges();
    void keepsItsPromisesOnRandomSets();

private:
    void replay(const Steps &steps);
    Steps edited(const Steps &steps);

    TestHost m_host;
    CUI::QvelShortcutManager m_store;
    std::mt19937 m_random{4711};
};

void TestHotkeySetMerge::initTestCase()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel({});
    for (const QString &action : list("a|b|c|d"))
        m_host.registry()->addAction(1, action, action, action == s("d") ? 2 : 1, {}, false);
    for (const ShortcutTransformation &step : stepsOf(s("a+K0 b+K1 d+K0")))
        m_host.registry()->accelerators.emplace_back(step.actionId(), step.shortcut());
}

void TestHotkeySetMerge::merges_data()
{
    QTest::addColumn<QString>("sets");
    QTest::addColumn<QString>("clash");
    QTest::addColumn<QString>("results");

    // The common set, mine and theirs; the result, or those with no choice, with mine and theirs.
    const auto row = [](const char *name, const char *sets, const char *results,
                        const char *clash = "") {
        QTest::newRow(name) << s(sets) << s(clash) << s(results);
    };
    row("only mine", "a+X|b-Y a+X|a+X", "b-Y a+X");
    row("only theirs", "b-Y a+X|b-Y a+X|", "");
    row("both the same", "a+X|b+Y a-X|a-X b+Y", "b+Y a-X");
    row("the same in another order", "|a+Y a+X|a+X a+Y", "a+X a+Y");
    row("opposite steps are none", "|a+X a-X b+Y|c+Z", "b+Y c+Z");
    row("moved, and the first action changed", "a+X|a+X b+X|a+X a+Y", "b+X a+Y");
    row("moved, and taken from who had it", "|b+X|a-X", "b+X a-X");
    row("a hotkey of two contexts", "|a+X|d+X", "a+X d+X");
    row("an action that is not registered", "|a+X|z+X", "a+X z+X");
    row("a hotkey for two actions", "|a+X c+Z|b+X", "c+Z|a+X c+Z|c+Z b+X", "X: a+X; b+X");
    row("a hotkey in two spellings", "|a+X|b+x", "|a+X|b+x", "X: a+X; b+x");
    row("moved to two actions", "a+X|a+X b+X|a+X c+X", "a+X|b+X|c+X", "X: b+X; c+X");
    row("given and taken", "c+Z|c+Z a+X|a-X c+Z", "c+Z|c+Z a+X|c+Z a-X", "a: a+X; a-X");
    row("two hotkeys for one action", "|a+X|a+Y", "|a+X|a+Y", "a: a+X; a+Y");
    row("undone and changed", "a+X||a+X a+Y", "a+X||a+X a+Y", "a: ; a+X a+Y");
    row("moved to an action that they changed", "a+X|a+X b+X|a+X b+Y", "a+X|b+X|a+X b+Y",
        "b: b+X; b+Y");
}

void TestHotkeySetMerge::merges()
{
    QFETCH(QString, sets);
    QFETCH(QString, results);
    const auto set = [&sets](int i) { return stepsOf(sets.section(QLatin1Char('|'), i, i)); };
    HotkeySetMerge merge(set(0), set(1), set(2));
    QString clashes;
    for (const HotkeySetMerge::Clash &clash : merge.clashes())
        clashes += s("%1: %2; %3")
                           .arg(clash.shortcut + clash.actionId.actionId, textOf(clash.mine),
                                textOf(clash.theirs));
    QTEST(clashes, "clash");
    QCOMPARE(merge.isSettled(), clashes.isEmpty());
    QStringList merged = {textOf(merge.result())};
    for (const auto side : {HotkeySetMerge::Side::Mine, HotkeySetMerge::Side::Theirs}) {
        merge.chooseAll(side);
        if (!clashes.isEmpty())
            merged << textOf(merge.result());
    }
    QVERIFY(merge.isSettled());
    QCOMPARE(merged.join(QLatin1Char('|')), results);
}

void TestHotkeySetMerge::replay(const Steps &steps)
{
    m_store.loadShortcutConfiguration(QString());
    m_store.replaceTransforms(steps);
}

/// The steps with up to three random edits behind them, cancelled.
Steps TestHotkeySetMerge::edited(const Steps &steps)
{
    const auto pick = [this](const char *from) {
        return s(from).at(int(m_random() % strlen(from)));
    };
    QString text = textOf(steps);
    for (auto i = m_random() % 4; i > 0; --i)
        text += s(" %1%2K%3").arg(pick("abcdz")).arg(pick("++-")).arg(pick("01234"));
    replay(stepsOf(text));
    return m_store.currentTransformations();
}

void TestHotkeySetMerge::keepsItsPromisesOnRandomSets()
{
    int merged = 0;
    for (int round = 0; round < 3000; ++round) {
        const Steps base = edited({});
        const Steps mine = edited(base);
        const Steps theirs = edited(base);
        const QStringList sets = {textOf(base), textOf(mine), textOf(theirs)};
        QCOMPARE(textOf(HotkeySetMerge(base, base, theirs).result()), sets.at(2));
        QCOMPARE(textOf(HotkeySetMerge(base, mine, base).result()), sets.at(1));
        QCOMPARE(textOf(HotkeySetMerge(base, mine, mine).result()), sets.at(1));
        const HotkeySetMerge merge(base, mine, theirs);
        if (!merge.isSettled())
            continue;
        ++merged;
        replay(HotkeySetMerge(base, theirs, mine).result());
        const auto swapped = m_store.getShortcuts();
        replay(merge.result());
        QVERIFY2(m_store.getShortcuts() == swapped, qPrintable(sets.join(s(" | "))));
        for (int key = 0; key < 5; ++key) {
            const QString text = s("K%1").arg(key);
            for (const QString &context : list("abc|d")) {
                const bool isFirst = context.size() == 3;
                const QString holder = list(isFirst ? "a|b" : "d").value(key);
                QVERIFY2(m_store.getActionIdFromShortcut(text, isFirst ? 1 : 2).actionId
                                 == plainHolder(sets, context, text, holder),
                         qPrintable(sets.join(s(" | ")) + text));
            }
        }
    }
    QVERIFY(merged > 600);
}

QTEST_GUILESS_MAIN(TestHotkeySetMerge)
#include "tst_HotkeySetMerge.moc"
