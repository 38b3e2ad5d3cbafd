#include "records/held_file.h"

#include "base/failure.h"
#include "records/journals.h"
#include "records/statement.h"

namespace {

std::filesystem::path WithEnding(std::filesystem::path file, const char* ending)
{
    return file.replace_extension(ending);
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
    next.RenameOver();
    engine.reset();
    lock = std::move(nextLock);
}

void HeldFile::Compact()
{
    ClearTemporaries();
    Settle();
    TemporaryFile first(WithEnding(file, ".tp1"));
    CopyTo(first);
    const TemporaryFile second(WithEnding(file, ".tp2"));
    Export(first, second);
    DeleteFileIfThere(first.Path());
    TemporaryFile next = TemporaryFile::Beside(file, file.filename().string());
    next.CopyFrom(second.Number());
    ReplaceBy(std::move(next));
    DeleteFileIfThere(second.Path());
}

/// Only while the file is held alone: what bears these names was left by a run that was cut short then.
void HeldFile::ClearTemporaries() const
{
    for (const char* ending : {".tp1", ".tp2"}) {
        DeleteFileIfThere(WithEnding(file, ending));
        DeleteJournals(WithEnding(file, ending));
    }
    const std::string unfinished = file.filename().string() + UnfinishedMark;
    for (const auto& entry : std::filesystem::directory_iterator(FileBehind(file).parent_path()))
        if (entry.path().filename().string().starts_with(unfinished) && entry.is_regular_file())
            DeleteFileIfThere(entry.path());
}

void HeldFile::Export(const TemporaryFile& source, const TemporaryFile& destination) const
{
    // A copy has the key of the file that it was taken from.
    const Engine exporting = OpenGuarded(source.Path(), connect, lock.FirstBytes(SaltBytes), doing);
    AllowExport(exporting.get());
    // The engine attaches only a file that is there; without a key of its own that takes over the source's key and
    // salt.
    Statement attach(exporting.get(), "ATTACH DATABASE ?1 AS compacted", doing);
    attach.Bind(1, destination.Path().native());
    attach.Step();
    // The new file is copied, and the copy synced, before it takes the place of anything; after a crash it is
    // worthless.
    Execute(exporting.get(), "PRAGMA compacted.synchronous = OFF; BEGIN; SELECT sqlcipher_export('compacted')", doing);
    // The export leaves these two behind.
    for (const std::string mark : {"user_version", "application_id"}) {
        Statement query(exporting.get(), "PRAGMA main." + mark, doing);
        query.Step();
        Execute(exporting.get(), "PRAGMA compacted." + mark + " = " + std::to_string(query.WholeNumber(0)), doing);
    }
    Execute(exporting.get(), "COMMIT", doing);
}
