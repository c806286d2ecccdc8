#include "Rows.h"

#include <cstdio>
#include <string>

namespace CUI::Bench {

namespace {

constexpr const char *measuredCounter = "measured";
constexpr const char *rivalCounter = "rival";
constexpr const char *limitCounter = "limit"; // absent from a row that counts
constexpr const char *ratioCounter = "ratio";

std::string timeText(double seconds)
{
    struct Unit {
        double seconds;
        const char *name;
    };
    constexpr Unit units[] = {{1.0, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
    const Unit *unit = units;
    while (seconds < unit->seconds && unit != std::end(units) - 1)
        ++unit;
    char text[32];
    std::snprintf(text, sizeof text, "%.4g %s", seconds / unit->seconds, unit->name);
    return text;
}

void printLine(const std::string &name, const std::string &measured, const std::string &rival,
               const std::string &ratio, const std::string &limit, const std::string &verdict)
{
    std::printf("%-34s %10s %10s %7s %7s  %s\n", name.c_str(), measured.c_str(), rival.c_str(),
                ratio.c_str(), limit.c_str(), verdict.c_str());
    std::fflush(stdout);
}

std::string ratioText(double ratio)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", ratio);
    return text;
}

} // namespace

void setRatio(benchmark::State &state, double measured, double rival, double limit)
{
    state.counters[measuredCounter] = measured;
    state.counters[rivalCounter] = rival;
    state.counters[ratioCounter] = measured / rival;
    state.counters[limitCounter] = limit;
}

void setCount(benchmark::State &state, int counted, int expected)
{
    state.counters[measuredCounter] = counted;
    state.counters[rivalCounter] = expected;
}

bool isWrong(benchmark::State &state, const QString &fault)
{
    if (fault.isEmpty())
        return false;
    state.SkipWithError(fault.toUtf8().constData());
    return true;
}

bool Table::ReportContext(const Context &)
{
#ifndef __OPTIMIZE__
    std::puts("Built without optimisation: the figures mean little.");
#endif
    std::puts(
            "Times are the shortest of several rounds in which row and rival take turns; those of\n"
            "loading and listing are processor times.\n");
    printLine("row", "measured", "rival", "ratio", "limit", "");
    return true;
}

void Table::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type == Run::RT_Iteration)
            print(run);
    }
}

void Table::print(const Run &run)
{
    const std::string &name = run.run_name.function_name;
    if (run.error_occurred) {
        m_withinLimits = false;
        printLine(name, "-", "-", "-", "-", "WRONG: " + run.error_message);
        return;
    }
    const auto counter = [&run](const char *key) { return run.counters.at(key).value; };
    const double measured = counter(measuredCounter);
    const double rival = counter(rivalCounter);
    const bool counts = run.counters.find(limitCounter) == run.counters.end();
    const bool within = counts ? measured == rival : counter(ratioCounter) <= counter(limitCounter);
    m_withinLimits = m_withinLimits && within;

    const std::string verdict = (within ? "OK    against " : "OVER  against ") + run.report_label;
    if (counts) {
        printLine(name, std::to_string(static_cast<int>(measured)),
                  std::to_string(static_cast<int>(rival)), "-", "equal", verdict);
    } else {
        printLine(name, timeText(measured), timeText(rival), ratioText(counter(ratioCounter)),
                  ratioText(counter(limitCounter)), verdict);
    }
}

} // namespace CUI::Bench
