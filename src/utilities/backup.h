#pragma once

#include <filesystem>

struct DatabaseFile;

/// Compacts a live file and copies it to the chosen path, where the copy replaces another file only when it is the same
/// byte by byte and on the disk. Both databases are closed. A live file that another copy of the program has open is
/// not compacted; the copy is then what it holds between two changes. Throws Failure; the chosen path and the live file
/// then hold what they held before, and no temporary file is left.
void BackUp(const DatabaseFile& file, const std::filesystem::path& chosen);
