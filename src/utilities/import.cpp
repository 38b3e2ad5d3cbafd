#include "utilities/import.h"

#include "base/failure.h"
#include "base/files.h"
#include "store/open_databases.h"
#include "utilities/database_file.h"

#include <fstream>
#include <vector>

namespace {

std::filesystem::path KeptAside(const std::filesystem::path& live)
{
    return WithEnding(live, ".tp0");
}

std::string NotReplaced(const std::filesystem::path& live)
{
    return "The file " + live.filename().string() + " could not be replaced";
}

/// A file that is being changed, or whose last change was cut short, is whole only together with the engine's journal
/// beside it, which is not imported.
void RefuseUnfinished(const std::filesystem::path& chosen, const std::string& doing)
{
    for (const char* ending : {"-journal", "-wal"}) {
        auto journal = FileBehind(chosen);
        journal += ending;
        // The engine begins a journal that does not count any more with a zero.
        if (std::ifstream(journal, std::ios::binary).get() > 0)
            throw Failure(doing, "the chosen file is being changed, or a change of it was cut short", journal.string());
    }
}

void PutBack(const std::filesystem::path& live)
{
    // What the engine left beside the file that failed would be taken for a journal of the one that comes back.
    DeleteJournals(live);
    MoveFileOver(KeptAside(live), live);
}

std::vector<std::filesystem::path> UnfinishedFiles(const std::filesystem::path& live)
{
    std::vector<std::filesystem::path> files{BesideFile(FileBehind(live)), BesideFile(KeptAside(live))};
    for (const char* ending : {".tp1", ".tp2"}) {
        files.push_back(WithEnding(live, ending));
        files.push_back(BesideFile(files.back()));
    }
    return files;
}

bool AnyLeft(const std::filesystem::path& live)
{
    bool any = std::filesystem::is_regular_file(KeptAside(live));
    for (const auto& file : UnfinishedFiles(live))
        any = any || std::filesystem::exists(file);
    return any;
}

void PutBackKeptFile(const std::filesystem::path& live)
{
    if (!AnyLeft(live))
        return;
    const std::string doing = "The file " + live.filename().string() + " could not be put back";
    FileLock lock;
    if (std::filesystem::exists(live)) {
        lock.Share(live, doing);
        if (!lock.TryAlone())
            return;
    }
    if (std::filesystem::is_regular_file(KeptAside(live)))
        PutBack(live);
    for (const auto& file : UnfinishedFiles(live)) {
        try {
            DeleteFileIfThere(file);
            DeleteJournals(file);
        } catch (const Failure&) {
            // What cannot be cleared away is no reason not to start; it is told when it stands in the way.
            continue;
        }
    }
}

} // namespace

Import::Import(const DatabaseFile& file, const std::filesystem::path& chosen)
    : live(file.live, file.connect, NotReplaced(file.live))
{
    if (!live.Alone())
        throw Failure(NotReplaced(file.live), "another copy of the program is using it, or it may not be changed",
                      file.live.string());
    RefuseUnfinished(chosen, NotReplaced(file.live));
    live.Settle();
    CopyFileOver(live.Path(), KeptAside(live.Path()));
    try {
        live.ReplaceBy(chosen);
    } catch (...) {
        DeleteFileIfThere(KeptAside(live.Path()));
        throw;
    }
    live.LetOpen();
}

void Import::Complete()
{
    DeleteFileIfThere(KeptAside(live.Path()));
    // A kept file that came back after a power cut would take the new rows away.
    SyncFolder(live.Path().parent_path());
}

void PutBackKeptFiles()
{
    PutBackKeptFile(DrawDataPath);
    PutBackKeptFile(UserDataPath);
}
