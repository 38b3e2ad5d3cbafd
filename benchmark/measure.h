#pragma once

#include <QString>

#include <functional>
#include <vector>

/// How long an action takes, in milliseconds.
double Milliseconds(const std::function<void()>& action);

/// The ratio of program to floor that is to be reached on the starter history, and on the long one.
struct Bounds
{
    double onStarter;
    double onLong;
};

/// Something that a player waits for, and the floor that is measured beside it. Each call makes one measurement, of
/// which only the part that counts is in the result; both give the same unit.
struct Row
{
    QString name;
    Bounds bounds;
    std::function<double()> program;
    std::function<double()> floor;
    const char* unit = "ms";
};

double Median(std::vector<double> values);

/// Measures program and floor in turn, so many times or, where that is soon done, more often; the first turn does not
/// count. Prints the row of the table: the medians of both, and the median of the ratios of neighbouring runs, which a
/// load that comes and goes disturbs least. Throws std::runtime_error where either took no measurable time.
void MeasureRow(const Row& row, int runs, bool onLong);

/// Runs the program's part of the row once, and once more with what it times in a function of the name CountedAction,
/// for a tool that counts the instructions in there.
void CountRow(const Row& row);

void PrintHeading(const QString& heading);
