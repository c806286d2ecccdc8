#include "Table.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace CUI::Bench {

namespace {

QString textOf(double seconds)
{
    return QString::number(seconds * 1e3, 'g', 4) + QStringLiteral(" ms");
}

void print(const char *name, const QString &measured, const QString &rival, const QString &ratio,
           const QString &limit, const QString &verdict)
{
    std::printf("%-30s %10s %10s %6s %6s  %s\n", name, qPrintable(measured), qPrintable(rival),
                qPrintable(ratio), qPrintable(limit), qPrintable(verdict));
    std::fflush(stdout);
}

bool measure(const Row &row)
{
    const Trial trial = row.prepare();
    if (!trial.fault.isEmpty()) {
        print(row.name, {}, {}, {}, {}, QStringLiteral("WRONG: ") + trial.fault);
        return false;
    }
    const QString rival = QString::fromLatin1(row.rival);
    if (trial.rival == nullptr) {
        print(row.name, {}, {}, {}, {}, QStringLiteral("left out without ") + rival);
        return true;
    }
    double shortest = std::numeric_limits<double>::max();
    double shortestOfRival = shortest;
    for (int round = 0; round < row.rounds; ++round) {
        if (round % 2 == 0)
            shortestOfRival = std::min(shortestOfRival, trial.rival());
        shortest = std::min(shortest, trial.measured());
        if (round % 2 == 1)
            shortestOfRival = std::min(shortestOfRival, trial.rival());
    }
    const double ratio = shortest / shortestOfRival;
    const bool isWithin = ratio <= row.limit;
    print(row.name, textOf(shortest), textOf(shortestOfRival), QString::number(ratio, 'f', 3),
          QString::number(row.limit, 'f', 2),
          (isWithin ? QStringLiteral("OK    ") : QStringLiteral("OVER  ")) + rival);
    return isWithin;
}

} // namespace

bool measure(const std::vector<Row> &rows, const std::vector<QString> &names)
{
#ifndef __OPTIMIZE__
    std::puts("Built without optimisation: the figures mean little.");
#endif
    std::puts("Processor times, each the shortest of several rounds.\n");
    print("row", QStringLiteral("measured"), QStringLiteral("rival"), QStringLiteral("ratio"),
          QStringLiteral("limit"), QStringLiteral("      compared with"));
    bool areWithin = true;
    for (const Row &row : rows) {
        const auto isMeant = [&row](const QString &name) {
            return QLatin1String(row.name).contains(name);
        };
        if (names.empty() || std::any_of(names.begin(), names.end(), isMeant))
            areWithin = measure(row) && areWithin;
    }
    return areWithin;
}

} // namespace CUI::Bench
