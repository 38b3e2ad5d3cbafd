#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

/// Compacts a database file into a new one: the same tables, rows in the same order, stored queries and marks, without
/// the room that deleted rows left. `connect` is the source's connect string, and the new file keeps its password; the
/// destination must not exist. It need not be on the disk yet: what is to outlast a crash is a synced copy of it.
/// Throws Failure; no destination is left then.
void CompactDatabase(const std::filesystem::path& source, const std::filesystem::path& destination,
                     const std::string& connect);

/// The number of rows of every table of a file that stands still and is not open in the program. Throws Failure with
/// the given clause.
std::map<std::string, std::int64_t> CountRows(const std::filesystem::path& file, const std::string& connect,
                                              const std::string& doing);
