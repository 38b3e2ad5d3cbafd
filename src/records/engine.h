#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

struct CloseEngine
{
    void operator()(sqlite3* engine) const;
};

/// An open handle of the database engine, which is closed with its owner.
using Engine = std::unique_ptr<sqlite3, CloseEngine>;

/// Opens a file in the engine, which may be told to make it. Throws Failure with the given clause.
Engine OpenEngine(const std::filesystem::path& file, int flags, const std::string& doing);

/// The length of the salt at the start of a protected file.
inline constexpr std::size_t SaltBytes = 16;

/// Opens an existing file in the engine with every protection against what a file of unknown origin may carry, and
/// proves the key by reading. `firstBytes` are the first bytes of the file. Throws Failure with the given clause, also
/// where the file has more than 64 MiB.
Engine OpenGuarded(const std::filesystem::path& file, const std::string& connect, std::string_view firstBytes,
                   const std::string& doing);

/// Lets the engine make a copy of the whole file in one attached under the name "compacted".
void AllowExport(sqlite3* engine);

/// The password of a connect string: what follows ";pwd="; empty for an empty connect string.
std::string PasswordOf(const std::string& connect);
