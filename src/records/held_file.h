#pragma once

#include "records/file_lock.h"

#include <filesystem>
#include <memory>
#include <string>

/// A database file that is closed and on which something is done as a whole: copied, compacted, replaced. While it is
/// held alone, no other copy of the program opens it.
class HeldFile
{
public:
    /// `connect` is the file's connect string, `doing` the clause that a failure carries. Throws Failure.
    HeldFile(std::filesystem::path heldFile, std::string connectString, std::string doingClause);

    /// False when another copy of the program has the file open; it must not be replaced then.
    bool Alone() const { return alone; }
    const std::filesystem::path& Path() const { return file; }

    /// Has the engine take back what a killed process left half done, so that the file is whole without the engine's
    /// journal beside it. Only while it is held alone. Throws Failure, also where another tool is about to change it.
    void Settle() const;

    /// Replaces the file, which must be settled, by a copy of another one; its access rights stay. The new file is held
    /// alone before it takes the name. Throws Failure; the file is then as it was.
    void ReplaceBy(const std::filesystem::path& source);

    /// Compacts the file through its two temporary files, .tp1 and .tp2 in the same folder, which are gone afterwards.
    /// Only while it is held alone. Throws Failure; the file is then as it was.
    void Compact();

    /// From now on the file may be opened, but not replaced by another copy of the program.
    void LetOpen() const { lock->ShareAgain(); }

private:
    std::filesystem::path file;
    std::string connect;
    std::string doing;
    std::unique_ptr<FileLock> lock;
    bool alone;
};

/// The path with another ending, for the files that lie beside a database file for a while.
std::filesystem::path WithEnding(std::filesystem::path file, const char* ending);

/// Deletes what the engine keeps beside a file while it changes it. Beside a file that takes another one's name it
/// would be taken for that file's own. Throws Failure.
void DeleteJournals(const std::filesystem::path& file);
