#pragma once

#include "measure.h"

#include <filesystem>

class MainWindow;

// The rows of the table. The databases of the history are open, and shown in the window.

/// Start, end and memory of the program itself, which runs as a child.
std::vector<Row> ProcessRows(const std::filesystem::path& data, const std::filesystem::path& work);

/// What is done on the records alone; the floors work on copies of the files in the folder `work`.
std::vector<Row> RecordRows(const std::filesystem::path& work);

/// What is done and shown on a page.
std::vector<Row> PageRows(MainWindow& window);

/// Takes every step of a player through the pages again and again, each time on a fresh copy of the files and in a new
/// window, and prints the slowest ones.
void MeasureHandlers(const std::filesystem::path& data, const std::filesystem::path& work, int runs);
