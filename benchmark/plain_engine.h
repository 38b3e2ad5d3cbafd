#pragma once

#include "game/entry_row.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// A database file used by the engine's plain calls: the least that any program on it has to do. What fails ends the
/// measurement by an exception.
class PlainFile
{
public:
    /// `key` is the file's key as the engine takes it; empty for a file without a password. The first read proves it.
    PlainFile(const std::filesystem::path& file, const std::string& key);
    ~PlainFile();
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;

    void Run(const std::string& sql);
    /// Reads every field of every row; returns how many rows there were.
    std::int64_t ReadAll(const std::string& sql);
    /// The first row of a query, as whole numbers.
    std::vector<std::int64_t> FirstRow(const std::string& sql);
    /// Stores the entries in one transaction, by one statement that is prepared once.
    void Insert(std::span<const EntryRow> entries);

private:
    sqlite3_stmt* Prepare(const std::string& sql);

    sqlite3* engine = nullptr;
    sqlite3_stmt* insert = nullptr;
};

/// The key of a file, derived from the password; each call for the same file after the first one gives the kept key.
std::string KeyOf(const std::filesystem::path& file, const std::string& password);

/// Copies the file beside itself, exports the copy into a compact one, and copies the compact one over the file.
void CompactPlainly(const std::filesystem::path& file, const std::string& key);
