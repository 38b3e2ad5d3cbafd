#include "records/held_file.h"

#include "base/failure.h"
#include "base/files.h"
#include "records/compaction.h"
#include "records/engine.h"
#include "records/statement.h"

namespace {

void ClearTemporaries(const std::filesystem::path& file)
{
    for (const char* ending : {".tp1", ".tp2"}) {
        DeleteFileIfThere(WithEnding(file, ending));
        DeleteJournals(WithEnding(file, ending));
    }
}

} // namespace

HeldFile::HeldFile(std::filesystem::path heldFile, std::string connectString, std::string doingClause)
    : file(std::move(heldFile)),
      connect(std::move(connectString)),
      doing(std::move(doingClause)),
      lock(std::make_unique<FileLock>())
{
    lock->Share(file, doing);
    alone = lock->TryAlone();
}

void HeldFile::Settle() const
{
    {
        const Engine engine = OpenGuarded(file, connect, lock->FirstBytes(SaltBytes), doing);
        // Another tool, which knows nothing of the program's own mark, may be in the middle of a change.
        Execute(engine.get(), "BEGIN IMMEDIATE; COMMIT", doing);
    }
    auto log = FileBehind(file);
    log += "-wal";
    std::error_code missing;
    if (std::filesystem::exists(log, missing))
        throw Failure(doing, "changes that another tool made are not in the file yet", log.filename().string());
    DeleteJournals(file);
}

void HeldFile::ReplaceBy(const std::filesystem::path& source)
{
    auto next = std::make_unique<FileLock>();
    CopyFileOver(source, file, [&](const std::filesystem::path& beside) {
        std::error_code unchanged;
        std::filesystem::permissions(beside, std::filesystem::status(file, unchanged).permissions(), unchanged);
        next->Share(beside, doing);
        next->TryAlone();
    });
    lock = std::move(next);
}

void HeldFile::Compact()
{
    const auto first = WithEnding(file, ".tp1");
    const auto second = WithEnding(file, ".tp2");
    try {
        // What an interrupted run left behind must not stand in the way of this one.
        ClearTemporaries(file);
        Settle();
        CopyWorkingFile(file, first);
        CompactDatabase(first, second, connect);
        DeleteFileIfThere(first);
        ReplaceBy(second);
        DeleteFileIfThere(second);
    } catch (...) {
        ClearTemporaries(file);
        throw;
    }
}

std::filesystem::path WithEnding(std::filesystem::path file, const char* ending)
{
    return file.replace_extension(ending);
}

void DeleteJournals(const std::filesystem::path& file)
{
    for (const char* ending : {"-journal", "-wal", "-shm"}) {
        auto journal = FileBehind(file);
        journal += ending;
        DeleteFileIfThere(journal);
    }
}
