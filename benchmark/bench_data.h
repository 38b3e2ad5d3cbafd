#pragma once

#include "game/entry_row.h"

#include <filesystem>
#include <vector>

/// How much one of the two histories holds. Without draws the starter history is taken.
struct DataSize
{
    const char* name;
    int draws;
    int users;
    int entries;
    /// So many of the entries, or all of them, belong to the first user in the file of FirstUserFile.
    int entriesOfFirstUser;
};

/// A copy of userdata.tv3 in which one user holds many entries.
inline const char* const FirstUserFile = "first_user.tv3";

/// Makes the files of a history in a folder, always the same ones for the same size.
void MakeData(const DataSize& size, const std::filesystem::path& starter, const std::filesystem::path& folder);

/// As many lines as a player may have built at once.
inline constexpr int BuiltLines = 200;

/// Lines as the entry generator builds them.
std::vector<EntryRow> MakeLines(int count);
