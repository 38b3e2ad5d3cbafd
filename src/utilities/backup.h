#pragma once

#include <filesystem>

struct DatabaseFile;

/// Compacts a live file and copies it to the chosen path, where the copy replaces another file only when it has been
/// opened and found complete. Both databases are closed. A live file that another copy of the program has open is not
/// compacted; the copy is then what the engine reads of it at one moment. Throws Failure; the chosen path and the live
/// file then hold what they held before, and no temporary file is left.
void BackUp(const DatabaseFile& file, const std::filesystem::path& chosen);
