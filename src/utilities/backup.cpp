#include "utilities/backup.h"

#include "base/failure.h"
#include "base/files.h"
#include "records/compaction.h"
#include "records/held_file.h"
#include "store/open_databases.h"
#include "utilities/database_file.h"

namespace {

/// Whether a path is that of a file which the program itself puts beside a live file for a while, and would delete or
/// take for its own there.
bool IsWorkingFile(const std::filesystem::path& chosen, const std::filesystem::path& live)
{
    std::error_code missing;
    if (!std::filesystem::equivalent(chosen.parent_path(), live.parent_path(), missing))
        return false;
    const std::string name = chosen.filename().string();
    const std::string liveName = live.filename().string();
    return name.starts_with(live.stem().string() + ".tp") || name == BesideFile(liveName) ||
           name.starts_with(liveName + '-');
}

/// Refuses a target that some copy of the program works on, whatever path leads to it.
void RefuseFileInUse(const std::filesystem::path& chosen, const std::string& doing)
{
    std::error_code missing;
    for (const auto& live : {DrawDataPath, UserDataPath})
        if (std::filesystem::equivalent(chosen, live, missing) || IsWorkingFile(chosen, live))
            throw Failure(doing, "it would take the place of one of the program's own files", chosen.string());
    if (!std::filesystem::exists(chosen, missing))
        return;
    FileLock lock;
    lock.Share(chosen, doing);
    if (!lock.TryAlone())
        throw Failure(doing, "another copy of the program is using the chosen file, or it may not be changed",
                      chosen.string());
}

/// Copies a file that stands still to the chosen path, beside it first.
void CopyProved(const std::filesystem::path& source, const std::filesystem::path& chosen, const std::string& connect,
                const std::string& doing)
{
    CopyFileOver(source, chosen, [&](const std::filesystem::path& copy) {
        if (CountRows(copy, connect, doing) != CountRows(source, connect, doing))
            throw Failure(doing, "rows were missing in the copy", chosen.filename().string());
        DeleteJournals(chosen);
    });
}

} // namespace

void BackUp(const DatabaseFile& file, const std::filesystem::path& chosen)
{
    const std::string doing = "The file " + file.live.filename().string() + " could not be copied";
    RefuseFileInUse(chosen, doing);
    HeldFile live(file.live, file.connect, doing);
    if (live.Alone()) {
        live.Compact();
        CopyProved(live.Path(), chosen, file.connect, doing);
        return;
    }
    const auto snapshot = WithEnding(file.live, ".tp2");
    DeleteFileIfThere(snapshot);
    CompactDatabase(live.Path(), snapshot, file.connect);
    try {
        CopyProved(snapshot, chosen, file.connect, doing);
    } catch (...) {
        DeleteFileIfThere(snapshot);
        throw;
    }
    DeleteFileIfThere(snapshot);
}
