#include "measure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>

namespace {

bool Counting = false;

__attribute__((noinline)) void CountedAction(const std::function<void()>& action)
{
    action();
}

} // namespace

double Milliseconds(const std::function<void()>& action)
{
    const auto start = std::chrono::steady_clock::now();
    if (Counting)
        CountedAction(action);
    else
        action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

void MeasureRow(const Row& row, int runs, bool onLong)
{
    const double bound = onLong ? row.bounds.onLong : row.bounds.onStarter;
    row.floor();
    row.program();
    std::vector<double> program;
    std::vector<double> floor;
    std::vector<double> ratios;
    // What is over in a moment is measured more often, so that no moment of another program's weighs much.
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(50 * (runs - 1));
    for (int run = 0; run < runs || std::chrono::steady_clock::now() < end; ++run) {
        floor.push_back(row.floor());
        program.push_back(row.program());
        if (!(floor.back() > 0 && program.back() > 0))
            throw std::runtime_error(row.name.toStdString() + " could not be measured");
        ratios.push_back(program.back() / floor.back());
    }
    const double ratio = Median(ratios);
    std::printf("%-50s %10.3f %10.3f %-3s %6.2f %6.2f  %s\n", qPrintable(row.name), Median(program), Median(floor),
                row.unit, ratio, bound, ratio <= bound ? "reached" : "NOT REACHED");
    std::fflush(stdout);
}

void CountRow(const Row& row)
{
    row.program();
    Counting = true;
    row.program();
    Counting = false;
}

void PrintHeading(const QString& heading)
{
    std::printf("\n%s\n%-50s %10s %10s     %6s %6s\n", qPrintable(heading), "", "program", "floor", "ratio", "bound");
}
