#pragma once

#include <QString>

#include <ctime>
#include <functional>
#include <vector>

namespace CUI::Bench {

/// One thing that is measured, and its rival.
struct Trial {
    /// What is wrong with the result; empty when nothing is. A wrong answer is not worth timing.
    QString fault;
    /// The seconds of one repetition.
    std::function<double()> measured;
    /// Null when there is no rival on this machine.
    std::function<double()> rival;
};

/// A row of the table of benchmarks.
struct Row {
    const char *name;
    const char *rival; ///< what it is compared with
    double limit; ///< of the measured time, as a multiple of the rival's
    int rounds;
    /// Makes what is measured, and checks that it gives the right result.
    Trial (*prepare)();
};

/// Measures the rows whose names contain one of @p names, or all without names, and prints a line
/// for each. Returns whether all kept to their limits.
///
/// The two sides of a row take turns, each first every other time, and the shortest time of the one
/// is compared with the shortest of the other: what else the machine does only ever adds to a time.
bool measure(const std::vector<Row> &rows, const std::vector<QString> &names);

/// The processor time of @p run: a run of some length is sure to be interrupted on a machine that
/// does other things as well.
template <typename Run>
double secondsOf(Run run)
{
    const std::clock_t start = std::clock();
    run();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Measures @p run, each time after @p prepare, beside a frame of 60 Hz: what has to be on the
/// screen at once.
template <typename Prepare, typename Run>
Trial besideFrame(const QString &fault, Prepare prepare, Run run)
{
    const auto measured = [prepare, run] {
        prepare();
        return secondsOf(run);
    };
    return {fault, measured, [] { return 1.0 / 60.0; }};
}

/// @p fault unless @p isRight.
inline QString faultUnless(bool isRight, const char *fault)
{
    return isRight ? QString() : QString::fromLatin1(fault);
}

} // namespace CUI::Bench
