#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeySetMerge.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

#include <map>
#include <random>

using CUI::ActionIdentifier;
using CUI::HotkeySetMerge;
using CUI::ShortcutTransformation;
using Steps = HotkeySetMerge::Steps;

namespace {

// The actions a, b and c share a context; d has one of its own, and z is not registered.

ActionIdentifier idOf(const QString &action)
{
    return {1, action};
}

/// "a+X b-Y": X is given to a, then Y taken from b.
Steps stepsOf(const QString &text)
{
    Steps steps;
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        steps.emplace_back(word.at(1) == QLatin1Char('+') ? ShortcutTransformation::Assign
                                                          : ShortcutTransformation::Unassign,
                           idOf(word.left(1)), word.mid(2), QString());
    }
    return steps;
}

QString textOf(const Steps &steps)
{
    QStringList words;
    for (const ShortcutTransformation &step : steps) {
        const bool assigns = step.kind() == ShortcutTransformation::Assign;
        words << step.actionId().actionId + QLatin1Char(assigns ? '+' : '-') + step.shortcut();
    }
    return words.join(QLatin1Char(' '));
}

using Hotkeys = std::map<ActionIdentifier, QStringList>;

Hotkeys replayed(CUI::QvelShortcutManager &store, const Steps &steps)
{
    store.loadShortcutConfiguration(QString());
    for (const ShortcutTransformation &step : steps) {
        if (step.kind() == ShortcutTransformation::Assign)
            store.assignShortcut(step.actionId(), step.shortcut(), QString());
        else
            store.unassignShortcut(step.actionId(), step.shortcut(), QString());
    }
    return {store.getShortcuts().begin(), store.getShortcuts().end()};
}

/// The rule for one value that the two sides did not change in two ways.
template <typename Value>
Value chosen(const Value &base, const Value &mine, const Value &theirs)
{
    return mine == base ? theirs : mine;
}

/// '+' or '-' as the set gives the hotkey to the action or takes it; otherwise a blank.
QChar signOf(const QString &set, const QString &action, const QString &key)
{
    const QStringList words = set.split(QLatin1Char(' '));
    const int assigned = words.indexOf(action + QLatin1Char('+') + key);
    const int removed = words.indexOf(action + QLatin1Char('-') + key);
    return QLatin1Char(assigned >= 0 ? '+' : removed >= 0 ? '-' : ' ');
}

/// The last of these actions that the set gives the hotkey to; null for none.
QString takerOf(const QString &set, const QString &among, const QString &key)
{
    QString taker;
    for (const QString &word : set.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (among.contains(word.at(0)) && word.mid(1) == QLatin1Char('+') + key)
            taker = word.left(1);
    }
    return taker;
}

/// Who of the actions of one context holds the hotkey after the merge of sets that do not clash,
/// when @p holder holds it in the base configuration.
QString plainHolder(const QStringList &sets, const QString &context, const QString &key,
                    const QString &holder)
{
    QStringList takers;
    QString removedFrom;
    for (const QChar action : context) {
        const QChar sign = chosen(signOf(sets.at(0), action, key), signOf(sets.at(1), action, key),
                                  signOf(sets.at(2), action, key));
        if (sign == QLatin1Char('+'))
            takers << action;
        if (sign == QLatin1Char('-'))
            removedFrom += action;
    }
    if (takers.isEmpty())
        return removedFrom.contains(holder) ? QString() : holder;
    if (takers.size() == 1)
        return takers.constFirst();
    const QString mine = takerOf(sets.at(1), context, key);
    const QString theirs = takerOf(sets.at(2), context, key);
    if (mine.isEmpty() || theirs.isEmpty())
        return mine + theirs;
    return chosen(takerOf(sets.at(0), context, key), mine, theirs);
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
    Steps edited(const Steps &steps, int edits);
    unsigned pick(unsigned count) { return unsigned(m_random() % count); }

    TestHost m_host;
    CUI::QvelShortcutManager m_store;
    std::mt19937 m_random{4711};
};

void TestHotkeySetMerge::initTestCase()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel({});
    for (const char *action : {"a", "b", "c"})
        m_host.registry()->addAction(idOf(s(action)), s(action), 1, QString(), false);
    m_host.registry()->addAction(idOf(s("d")), s("d"), 2, QString(), false);
    m_host.registry()->accelerators = {
            {idOf(s("a")), s("K0")}, {idOf(s("b")), s("K1")}, {idOf(s("d")), s("K0")}};
}

void TestHotkeySetMerge::merges_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("mine");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("clashes");
    QTest::addColumn<QString>("undecided");
    QTest::addColumn<QString>("withMine");
    QTest::addColumn<QString>("withTheirs");

    const auto row = [](const char *name, const char *base, const char *mine, const char *theirs,
                        const char *clashes, const char *undecided, const char *withMine,
                        const char *withTheirs) {
        QTest::newRow(name) << s(base) << s(mine) << s(theirs) << s(clashes) << s(undecided)
                            << s(withMine) << s(withTheirs);
    };
    const auto clean = [&row](const char *name, const char *base, const char *mine,
                              const char *theirs, const char *result) {
        row(name, base, mine, theirs, "", result, result, result);
    };
    clean("nothing", "", "", "", "");
    clean("only mine", "a+X", "b-Y a+X", "a+X", "b-Y a+X");
    clean("only theirs", "b-Y a+X", "b-Y a+X", "", "");
    clean("different actions", "a+X", "a+X b+Y", "c-Z", "b+Y c-Z");
    clean("both the same", "a+X", "b+Y a-X", "a-X b+Y", "b+Y a-X");
    clean("the same in another order", "", "a+Y a+X", "a+X a+Y", "a+X a+Y");
    clean("opposite steps are none", "", "a+X a-X b+Y", "c+Z", "b+Y c+Z");
    clean("a hotkey moved, and its first action got another", "a+X", "a+X b+X", "a+X a+Y",
          "b+X a+Y");
    clean("a hotkey moved, and taken from who had it", "", "b+X", "a-X", "b+X a-X");
    clean("one hotkey in two contexts", "", "a+X", "d+X", "a+X d+X");
    clean("one hotkey for an action that is not registered", "", "a+X", "z+X", "a+X z+X");
    row("one hotkey for two actions", "", "a+X c+Z", "b+X", "X: a+X | b+X", "c+Z", "a+X c+Z",
        "c+Z b+X");
    row("one hotkey in two spellings", "", "a+X", "b+x", "X: a+X | b+x", "", "a+X", "b+x");
    row("a hotkey moved to two actions", "a+X", "a+X b+X", "a+X c+X", "X: b+X | c+X", "a+X", "b+X",
        "c+X");
    row("given and taken", "c+Z", "c+Z a+X", "a-X c+Z", "a: a+X | a-X", "c+Z", "c+Z a+X",
        "c+Z a-X");
    row("two hotkeys for one action", "", "a+X", "a+Y", "a: a+X | a+Y", "", "a+X", "a+Y");
    row("a change undone and changed again", "a+X", "", "a+X a+Y", "a:  | a+X a+Y", "a+X", "",
        "a+X a+Y");
    row("a hotkey moved to an action that the other side changed", "a+X", "a+X b+X", "a+X b+Y",
        "b: b+X | b+Y", "a+X", "b+X", "a+X b+Y");
}

void TestHotkeySetMerge::merges()
{
    QFETCH(QString, base);
    QFETCH(QString, mine);
    QFETCH(QString, theirs);
    HotkeySetMerge merge(stepsOf(base), stepsOf(mine), stepsOf(theirs));
    QStringList clashes;
    for (const HotkeySetMerge::Clash &clash : merge.clashes()) {
        const bool isAction = clash.kind == HotkeySetMerge::ClashKind::Action;
        clashes << s("%1: %2 | %3")
                           .arg(isAction ? clash.actionId.actionId : clash.shortcut,
                                textOf(clash.mine), textOf(clash.theirs));
    }
    QTEST(clashes.join(QLatin1Char('\n')), "clashes");
    QCOMPARE(merge.isSettled(), clashes.isEmpty());
    QTEST(textOf(merge.result()), "undecided");
    merge.chooseAll(HotkeySetMerge::Side::Mine);
    QVERIFY(merge.isSettled());
    QTEST(textOf(merge.result()), "withMine");
    merge.chooseAll(HotkeySetMerge::Side::Theirs);
    QTEST(textOf(merge.result()), "withTheirs");
}

/// The steps with random edits behind them, cancelled.
Steps TestHotkeySetMerge::edited(const Steps &steps, int edits)
{
    QString text = textOf(steps);
    for (int i = 0; i < edits; ++i) {
        text += s(" %1%2K%3").arg(s("abcdz").at(int(pick(5))), s("++-").at(int(pick(3))));
        text = text.arg(pick(5));
    }
    replayed(m_store, stepsOf(text));
    return m_store.currentTransformations();
}

void TestHotkeySetMerge::keepsItsPromisesOnRandomSets()
{
    int merged = 0;
    for (int round = 0; round < 3000; ++round) {
        const Steps base = edited({}, int(pick(4)));
        const Steps mine = edited(base, int(pick(4)));
        const Steps theirs = edited(base, int(pick(4)));
        const QStringList sets = {textOf(base), textOf(mine), textOf(theirs)};
        QCOMPARE(textOf(HotkeySetMerge(base, base, theirs).result()), sets.at(2));
        QCOMPARE(textOf(HotkeySetMerge(base, mine, base).result()), sets.at(1));
        QCOMPARE(textOf(HotkeySetMerge(base, mine, mine).result()), sets.at(1));

        const HotkeySetMerge merge(base, mine, theirs);
        const HotkeySetMerge swapped(base, theirs, mine);
        QCOMPARE(merge.clashes().size(), swapped.clashes().size());
        if (!merge.isSettled())
            continue;
        ++merged;
        const Hotkeys result = replayed(m_store, merge.result());
        const QString what = sets.join(s(" | "));
        QVERIFY2(result == replayed(m_store, swapped.result()), qPrintable(what));
        for (const QString &context : {s("abc"), s("d")}) {
            const QStringList baseHolders = context == s("d") ? list("d||||") : list("a|b|||");
            for (int key = 0; key < 5; ++key) {
                const QString text = s("K%1").arg(key);
                const QString holder = plainHolder(sets, context, text, baseHolders.at(key));
                const ActionIdentifier actual =
                        m_store.getActionIdFromShortcut(text, context == s("d") ? 2 : 1);
                QVERIFY2(actual.actionId == holder, qPrintable(what + s(" ") + text));
            }
        }
    }
    QVERIFY(merged > 600);
}

QTEST_GUILESS_MAIN(TestHotkeySetMerge)
#include "tst_HotkeySetMerge.moc"
