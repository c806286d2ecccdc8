#include "PlainStore.h"
#include "RecordedSteps.h"
#include "Text.h"

#include <QtTest>

#include <random>

using CUI::RecordedSteps;
using Step = CUI::ShortcutTransformation;
using Steps = RecordedSteps::Steps;

namespace {

QStringList texts(const Steps &steps)
{
    QStringList result;
    for (const Step &step : steps)
        result << step.toString() + s(" ") + step.actionId().toString();
    return result;
}

Steps randomSteps(std::mt19937 &random, int count, int variety)
{
    Steps result;
    for (int i = 0; i < count; ++i) {
        const auto pick = [&] { return int(random() % unsigned(variety)); };
        result.push_back({random() % 2 == 0 ? Step::Assign : Step::Unassign,
                          {1 + random() % 2, QString::number(pick())},
                          QString(QChar('A' + pick())),
                          QString::number(i)});
    }
    return result;
}

} // namespace

class TestRecordedSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsPlainRule();
    void growingEqualsPlainRule();
};

void TestRecordedSteps::equalsPlainRule()
{
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        const Steps list = randomSteps(random, int(random() % 40), 1 + int(random() % 4));
        const std::size_t start = list.empty() ? 0 : random() % (list.size() + 1);
        Steps plain = list;
        collapsePlainly(plain, start);
        Steps collapsed = list;
        RecordedSteps::cancel(collapsed, start);
        QCOMPARE(texts(collapsed), texts(plain));
    }
}

void TestRecordedSteps::growingEqualsPlainRule()
{
    std::mt19937 random(2);
    for (int round = 0; round < 60; ++round) {
        RecordedSteps recorded;
        Steps plain;
        std::size_t savedCount = 0;
        for (const Step &next : randomSteps(random, 200, 4 + round % 20)) {
            recorded.append(next);
            plain.push_back(next);
            const bool isSaved = random() % 50 == 0;
            if (isSaved) {
                recorded.markSaved();
                savedCount = plain.size();
            }
            recorded.cancelUnsaved();
            collapsePlainly(plain, savedCount);
            QCOMPARE(recorded.isModified(), plain.size() > savedCount);
            const auto isTouched = [&](auto concerns) {
                return std::any_of(plain.begin() + std::ptrdiff_t(savedCount), plain.end(),
                                   concerns);
            };
            QCOMPARE(recorded.touches(next.actionId()), isTouched([&](const Step &step) {
                         return step.actionId() == next.actionId();
                     }));
            QCOMPARE(recorded.touches(next.actionId(), next.shortcut()),
                     isTouched([&](const Step &step) {
                         return step.actionId() == next.actionId()
                                && step.shortcut() == next.shortcut();
                     }));
        }
        QCOMPARE(texts(recorded.steps()), texts(plain));
    }
}

QTEST_GUILESS_MAIN(TestRecordedSteps)
#include "tst_RecordedSteps.moc"
