#pragma once

#include <functional>

/// How the process ends. The tests put something in its place that lets them go on.
extern std::function<void()> EndProcess;

/// Closes and compacts both databases, tells the player what failed, and ends the process.
void CloseAndCompact();
