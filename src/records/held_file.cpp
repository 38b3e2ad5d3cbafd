#include "records/held_file.h"

#include "base/failure.h"
#include "records/compaction.h"
#include "records/journals.h"
#include "records/statement.h"

namespace {

std::filesystem::path WithEnding(std::filesystem::path file, const char* ending)
{
    return file.replace_extension(ending);
}

/// Only while the file is held alone: what bears these names was left by a run that was cut short then.
void ClearTemporaries(const std::filesystem::path& file)
{
    for (const char* ending : {".tp1", ".tp2"}) {
        DeleteFileIfThere(WithEnding(file, ending));
        DeleteJournals(WithEnding(file, ending));
    }
    const std::string unfinished = file.filename().string() + UnfinishedMark;
    for (const auto& entry : std::filesystem::directory_iterator(FileBehind(file).parent_path()))
        if (entry.path().filename().string().starts_with(unfinished) && entry.is_regular_file() && !entry.is_symlink())
            DeleteFileIfThere(entry.path());
}

} // namespace

HeldFile::HeldFile(std::filesystem::path heldFile, std::string connectString, std::string doingClause)
    : file(std::move(heldFile)), connect(std::move(connectString)), doing(std::move(doingClause))
{
    lock.Share(file, doing);
    alone = lock.TryAlone();
}

void HeldFile::Settle()
{
    engine = OpenGuarded(file, connect, lock.FirstBytes(SaltBytes), doing);
    // Another tool, which knows nothing of the program's own mark, may be in the middle of a change.
    Execute(engine.get(), alone ? "BEGIN IMMEDIATE" : "BEGIN; SELECT count(*) FROM sqlite_master", doing);
    auto log = FileBehind(file);
    log += "-wal";
    std::error_code missing;
    if (std::filesystem::exists(log, missing))
        throw Failure(doing, "changes that another tool made are not in the file yet", log.filename().string());
    if (alone)
        DeleteJournals(file);
}

void HeldFile::ReplaceBy(TemporaryFile next)
{
    next.TakeRightsOf(lock.Number());
    FileLock nextLock;
    nextLock.Share(next.Path(), doing);
    nextLock.TryAlone();
    next.RenameOver();
    engine.reset();
    lock = std::move(nextLock);
}

void HeldFile::Compact()
{
    ClearTemporaries(file);
    Settle();
    TemporaryFile first(WithEnding(file, ".tp1"));
    CopyTo(first);
    const TemporaryFile second(WithEnding(file, ".tp2"));
    CompactDatabase(first.Path(), second.Path(), connect);
    DeleteFileIfThere(first.Path());
    TemporaryFile next = TemporaryFile::Beside(file, file.filename().string());
    next.CopyFrom(second.Number());
    ReplaceBy(std::move(next));
    DeleteFileIfThere(second.Path());
}
