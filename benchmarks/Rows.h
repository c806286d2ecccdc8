#pragma once

#include <QString>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <limits>

namespace CUI::Bench {

class Stages;
class Stages;
class Workload;

/// The rows of the table, each file its own. They keep a reference to the argument.
void addSchemaRows(Workload &workload);
void addLoadRows(Workload &workload);
void addStoreRows(Workload &workload);
void addEditRows(Workload &workload);
void addPresetRows(Workload &workload);
void addEditorRows(Workload &workload, Stages &stages);
void addTypingRows(Stages &stages);
void addTableRows(Stages &stages);
void addFindingRows(Stages &stages);

/// Registers a row that is measured in that many rounds. @p rival says what it is compared with.
template <typename Measure>
void addRow(const char *name, const char *rival, std::int64_t rounds, Measure measure)
{
    benchmark::RegisterBenchmark(name,
                                 [rival, measure](benchmark::State &state) {
                                     state.SetLabel(rival);
                                     measure(state);
                                 })
            ->UseManualTime()
            ->Iterations(rounds);
}

/// The seconds that @p run takes on the clock.
template <typename Run>
double secondsOf(Run run)
{
    const auto start = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The seconds that @p run keeps the processor busy: a run of some length is sure to be interrupted
/// on a machine that does other things as well. Too coarse for a short one.
template <typename Run>
double busySecondsOf(Run run)
{
    const std::clock_t start = std::clock();
    run();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void setRatio(benchmark::State &state, double measured, double rival, double limit);

/// Sets a row that has no time: what was counted must be what was expected.
void setCount(benchmark::State &state, int counted, int expected);

/// Fails the row with @p fault, if there is one: a wrong answer is not worth timing.
bool isWrong(benchmark::State &state, const QString &fault);

/// Runs the two in turn, each first every other time, and compares the shortest time of the one
/// with the shortest of the other: what else the machine does only ever adds to a time. Each of
/// the two returns the seconds of one repetition.
template <typename Measured, typename Rival>
void compare(benchmark::State &state, double limit, Measured measured, Rival rival)
{
    double shortest = std::numeric_limits<double>::max();
    double shortestOfRival = shortest;
    bool rivalFirst = false;
    for (auto round : state) {
        Q_UNUSED(round)
        if (rivalFirst)
            shortestOfRival = std::min(shortestOfRival, rival());
        const double seconds = measured();
        if (!rivalFirst)
            shortestOfRival = std::min(shortestOfRival, rival());
        rivalFirst = !rivalFirst;
        shortest = std::min(shortest, seconds);
        state.SetIterationTime(seconds);
    }
    setRatio(state, shortest, shortestOfRival, limit);
}

/// Prints a line for each row and remembers whether all of them kept to their limits.
class Table : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

    bool isWithinLimits() const { return m_withinLimits; }

private:
    void print(const Run &run);

    bool m_withinLimits = true;
};

} // namespace CUI::Bench
