#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <vector>

/// How long an action takes, in milliseconds.
template <typename Action>
double Milliseconds(Action action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// Something that a player waits for, and the floor that is measured beside it. Each call makes one measurement, of
/// which only the part that counts is in the result; both give the same unit.
struct Row
{
    QString name;
    /// The ratio of program to floor that is to be reached.
    double bound;
    std::function<double()> program;
    std::function<double()> floor;
    const char* unit = "ms";
};

double Median(std::vector<double> values);

/// Measures program and floor in turn, after one turn that does not count, and prints the row of the table: the medians
/// of both, and the median of the ratios of neighbouring runs, which a load that comes and goes disturbs least.
/// Throws std::runtime_error where either took no measurable time.
void MeasureRow(const Row& row, int runs);

void PrintHeading(const QString& heading);
