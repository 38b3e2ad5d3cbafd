#pragma once

#include "records/held_file.h"

#include <filesystem>
#include <string>

struct DatabaseFile;

/// The replacement of a live file by another one, as one transaction: from the first step on the old file lies aside,
/// as .tp0 in the program folder, until the import is completed. Where that does not come, for whatever reason, the
/// next start puts the old file back. Both databases are closed at the beginning.
class Import
{
public:
    /// Keeps the live file aside and replaces it by a copy of the chosen one, whose content is not looked at. Throws
    /// Failure when another copy of the program has the file open, the chosen one is in the middle of a change, or the
    /// disk refuses; the live file is then as it was and nothing lies aside.
    Import(const DatabaseFile& file, const std::filesystem::path& chosen);

    /// To be called when both databases are open on the new file and proved readable: lets go of the old one. Throws
    /// Failure; the next start puts the old file back then.
    void Complete();

private:
    HeldFile live;
};

/// Puts back the live files that unfinished imports kept aside, and clears away what else an interrupted run left in
/// the program folder. What belongs to another running copy of the program is left alone. Both databases are closed.
/// Throws Failure where a kept file cannot be put back.
void PutBackKeptFiles();
