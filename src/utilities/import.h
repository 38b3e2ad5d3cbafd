#pragma once

#include "records/held_file.h"
#include "utilities/database_file.h"

#include <optional>

/// The replacement of a live file by another one. The chosen file is copied beside the live one and proved there, so
/// that the live file is, at every moment, the old one or the whole new one, of which every row could be read. Until
/// the import is over, no other copy of the program opens the live file. Both databases are closed at the beginning.
class Import
{
public:
    /// Copies the chosen file, whose content is not looked at. Throws Failure when another copy of the program has the
    /// live file open, the chosen one is in the middle of a change, or the disk refuses.
    Import(const DatabaseFile& imported, const std::filesystem::path& chosen);

    /// Opens both databases, with the copy in the place of the live file, reads every row and closes them again. Throws
    /// Failure; the import is over then, and nothing is left of it.
    void Prove();

    /// Puts the copy in the place of the live file. Throws Failure; the live file is as it was then.
    void Complete();

private:
    DatabaseFile file;
    std::optional<HeldFile> live;
    std::optional<TemporaryFile> copy;
};
