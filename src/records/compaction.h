#pragma once

#include <filesystem>
#include <string>

/// Compacts a database file into an empty one: the same tables, rows in the same order, stored queries and marks,
/// without the room that deleted rows left. `connect` is the source's connect string, and the new file keeps its
/// password. It need not be on the disk yet: what is to outlast a crash is a synced copy of it. Throws Failure; the
/// destination is worthless then.
void CompactDatabase(const std::filesystem::path& source, const std::filesystem::path& destination,
                     const std::string& connect);
