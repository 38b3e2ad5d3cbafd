#pragma once

#include "base/files.h"
#include "records/engine.h"
#include "records/file_lock.h"

/// A database file that is closed and on which something is done as a whole: copied, compacted, replaced. While it is
/// held alone, no other copy of the program opens it.
class HeldFile
{
public:
    /// `connect` is the file's connect string, `doing` the clause that a failure carries. Throws Failure.
    HeldFile(std::filesystem::path heldFile, std::string connectString, std::string doingClause);

    /// False when another copy of the program has the file open, or it may not be changed; it must not be replaced
    /// then.
    bool Alone() const { return alone; }

    /// Has the engine take back what a killed process left half done, and from then on keeps every tool from changing
    /// the file: it is whole without the engine's journal. Throws Failure, also where another tool is changing it.
    void Settle();

    /// Copies the settled file. Throws Failure.
    void CopyTo(TemporaryFile& copy) const { copy.CopyFrom(lock.Number()); }

    /// Replaces the file, which must be settled and held alone, by another one, which is held in its place from then
    /// on, though other copies may open it; owner and access rights stay. Throws Failure; the file is then as it was.
    void ReplaceBy(TemporaryFile next);

    /// Compacts the file through its two temporary files, .tp1 and .tp2 in the same folder, which are gone afterwards,
    /// as is what earlier runs left: the same tables, rows in the same order, stored queries and marks, without the
    /// room that deleted rows left, under the same password. Only while it is held alone. Throws Failure; the file is
    /// then as it was.
    void Compact();

private:
    void ClearTemporaries() const;
    void Export(const TemporaryFile& source, const TemporaryFile& destination) const;

    std::filesystem::path file;
    std::string connect;
    std::string doing;
    // The engine closes before the lock's own descriptor of the file, which would take the engine's locks with it.
    FileLock lock;
    Engine engine;
    bool alone;
};
