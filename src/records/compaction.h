#pragma once

#include <filesystem>
#include <string>

/// Compacts a database file into a new one: the same tables, rows in the same order, stored queries and marks, without
/// the room that deleted rows left. `connect` is the source's connect string, and the new file keeps its password; the
/// destination must not exist. Throws Failure; no destination is left then.
void CompactDatabase(const std::filesystem::path& source, const std::filesystem::path& destination,
                     const std::string& connect);
