#pragma once

#include <functional>

/// Opens both databases with their record sets. On any failure it shows the critical message and ends the process.
void OpenDatabases();

/// The same for another way of opening them. False when it failed.
bool OpenOrEnd(const std::function<void()>& open);

/// Closes and compacts both databases, tells the player what failed, and ends the process.
void CloseAndCompact();

/// How the process ends. The tests put something in its place that lets them go on.
extern std::function<void()> EndProcess;
