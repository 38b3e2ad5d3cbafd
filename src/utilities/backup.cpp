#include "utilities/backup.h"

#include "base/failure.h"
#include "records/held_file.h"
#include "records/journals.h"
#include "store/open_databases.h"
#include "utilities/database_file.h"

namespace {

/// Holds the file that the copy is to replace, if there is one, so that no copy of the program opens it meanwhile.
FileLock HoldReplaced(const std::filesystem::path& chosen, const std::string& doing)
{
    FileLock lock;
    std::error_code error;
    if (!std::filesystem::exists(chosen, error)) {
        if (error == std::errc::filename_too_long)
            throw Failure(doing, "the chosen name is too long", error.message());
        return lock;
    }
    lock.Share(chosen, doing);
    if (!lock.TryAlone())
        throw Failure(doing, "another copy of the program is using the chosen file, or it may not be changed",
                      chosen.string());
    return lock;
}

} // namespace

void BackUp(const DatabaseFile& file, const std::filesystem::path& chosen)
{
    const std::string doing = "The file " + file.live.filename().string() + " could not be copied";
    RefuseWorkingFile(chosen, doing);
    std::error_code missing;
    for (const auto& own : {DrawDataPath, UserDataPath})
        if (std::filesystem::equivalent(chosen, own, missing))
            throw Failure(doing, "it would take the place of one of the program's own files", chosen.string());
    RefuseUnfinished(chosen, doing);
    const FileLock replaced = HoldReplaced(chosen, doing);
    HeldFile live(file.live, file.connect, doing);
    if (live.Alone())
        live.Compact();
    live.Settle();
    // Not earlier: the compaction clears away what bears such a name in the program's folder.
    TemporaryFile copy = TemporaryFile::Beside(chosen, file.live.filename().string());
    live.CopyTo(copy);
    copy.RenameOver();
}
