#include "TransformationCollapser.h"

#include <QtTest>

#include <list>
#include <random>

using CUI::ActionIdentifier;
using CUI::ShortcutTransformation;
using CUI::TransformationCollapser;
using Steps = TransformationCollapser::Steps;

namespace {

// The rule in its plain form: take the first step, scan the rest for its opposite.
void collapsePlainly(Steps &steps, std::size_t start)
{
    std::list<ShortcutTransformation> rest(steps.begin() + std::ptrdiff_t(start), steps.end());
    steps.resize(start);
    while (!rest.empty()) {
        const ShortcutTransformation step = rest.front();
        rest.pop_front();
        bool cancelled = false;
        for (auto it = rest.begin(); it != rest.end() && !cancelled;) {
            if (it->actionId() != step.actionId() || it->shortcut() != step.shortcut()) {
                ++it;
                continue;
            }
            cancelled = it->kind() != step.kind();
            it = rest.erase(it);
        }
        if (!cancelled)
            steps.push_back(step);
    }
}

// A step written as "+X a": assign X to action a; "-X a": take it away. The description numbers the
// steps, so that lists are told apart even where the same step survives at another place.
ShortcutTransformation step(const QString &text, int number)
{
    const QStringList parts = text.mid(1).split(QLatin1Char(' '));
    return {text.startsWith(QLatin1Char('+')) ? ShortcutTransformation::Assign
                                              : ShortcutTransformation::Unassign,
            {1, parts.at(1)},
            parts.at(0),
            QString::number(number)};
}

Steps steps(const QString &text)
{
    Steps result;
    for (const QString &part : text.split(QStringLiteral(", "), Qt::SkipEmptyParts))
        result.push_back(step(part, int(result.size())));
    return result;
}

QString text(const Steps &list)
{
    QStringList parts;
    for (const ShortcutTransformation &s : list)
        parts << (s.kind() == ShortcutTransformation::Assign ? QStringLiteral("+")
                                                             : QStringLiteral("-"))
                         + s.shortcut() + QLatin1Char(' ') + s.actionId().actionId;
    return parts.join(QStringLiteral(", "));
}

QString numberedText(const Steps &list)
{
    QString result;
    for (const ShortcutTransformation &s : list)
        result += s.toString() + QLatin1Char('/') + s.actionId().actionId + QLatin1Char(';');
    return result;
}

Steps randomSteps(std::mt19937 &random, int count, int variety)
{
    Steps result;
    for (int i = 0; i < count; ++i) {
        const auto pick = [&] { return int(random() % unsigned(variety)); };
        result.push_back({random() % 2 == 0 ? ShortcutTransformation::Assign
                                            : ShortcutTransformation::Unassign,
                          {1 + random() % 2, QString::number(pick())},
                          QString(QChar('A' + pick())),
                          QString::number(i)});
    }
    return result;
}

} // namespace

class TestTransformationCollapser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void collapses_data();
    void collapses();
    void equalsPlainRule();
    void settlingStepByStepEqualsPlainRule();
    void queriesFollowTheOpenSteps();
};

void TestTransformationCollapser::collapses_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("result");

    QTest::newRow("empty") << "" << 0 << "";
    QTest::newRow("assign, remove") << "+E a, -E a" << 0 << "";
    QTest::newRow("remove, assign") << "-E a, +E a" << 0 << "";
    QTest::newRow("repetition before the opposite") << "+E a, +E a, -E a" << 0 << "";
    QTest::newRow("repetition") << "+E a, +E a" << 0 << "+E a";
    QTest::newRow("letter case differs") << "+E a, -e a" << 0 << "+E a, -e a";
    QTest::newRow("action differs") << "+E a, -E A" << 0 << "+E a, -E A";
    QTest::newRow("others stay") << "+X a, +Y b, -X a" << 0 << "+Y b";
    QTest::newRow("opens again") << "+X a, -X a, +X a, +Y a" << 0 << "+X a, +Y a";
    QTest::newRow("before the start") << "+X a, -X a" << 1 << "+X a, -X a";
    QTest::newRow("start at the end") << "+X a, -X a" << 2 << "+X a, -X a";
    QTest::newRow("start beyond the end") << "+X a, -X a" << 9 << "+X a, -X a";
}

void TestTransformationCollapser::collapses()
{
    QFETCH(QString, list);
    QFETCH(int, start);
    Steps collapsed = steps(list);
    TransformationCollapser::collapse(collapsed, std::size_t(start));
    QTEST(text(collapsed), "result");
}

void TestTransformationCollapser::equalsPlainRule()
{
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        const Steps list = randomSteps(random, int(random() % 40), 1 + int(random() % 4));
        const std::size_t start = list.empty() ? 0 : random() % (list.size() + 1);
        Steps plain = list;
        collapsePlainly(plain, start);
        Steps collapsed = list;
        TransformationCollapser::collapse(collapsed, start);
        QCOMPARE(numberedText(collapsed), numberedText(plain));
    }
}

void TestTransformationCollapser::settlingStepByStepEqualsPlainRule()
{
    std::mt19937 random(2);
    for (int round = 0; round < 60; ++round) {
        TransformationCollapser collapser;
        Steps list;
        Steps plain;
        std::size_t start = 0;
        for (const ShortcutTransformation &next : randomSteps(random, 200, 4 + round % 20)) {
            list.push_back(next);
            plain.push_back(next);
            if (random() % 50 == 0)
                start = random() % plain.size(); // as when a set is saved in between
            collapser.settle(list, start);
            collapsePlainly(plain, start);
            QCOMPARE(collapser.count(list), plain.size());
            QVERIFY(collapser.hasSettled(list, start));
            if (random() % 20 == 0) {
                collapser.compact(list);
                QCOMPARE(numberedText(list), numberedText(plain));
            }
            start = std::min(start, plain.size());
        }
        collapser.compact(list);
        QCOMPARE(numberedText(list), numberedText(plain));
    }
}

void TestTransformationCollapser::queriesFollowTheOpenSteps()
{
    TransformationCollapser collapser;
    Steps list = steps(QStringLiteral("+X a, +Y b, +Z b, -Y b"));
    collapser.settle(list, 1);
    const ActionIdentifier a{1, QStringLiteral("a")};
    const ActionIdentifier b{1, QStringLiteral("b")};
    QVERIFY(!collapser.touches(a)); // before the start
    QVERIFY(collapser.touches(b));
    QVERIFY(!collapser.touches(list, b, QStringLiteral("Y")));
    QVERIFY(collapser.touches(list, b, QStringLiteral("Z")));
    list.push_back(step(QStringLiteral("-Z b"), 5));
    QVERIFY(!collapser.hasSettled(list, 1));
    collapser.settle(list, 1);
    QVERIFY(!collapser.touches(b));
    QVERIFY(!collapser.hasSettled(list, 0));
}

QTEST_GUILESS_MAIN(TestTransformationCollapser)
#include "tst_TransformationCollapser.moc"
