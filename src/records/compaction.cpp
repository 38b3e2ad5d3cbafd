#include "records/compaction.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "records/engine.h"
#include "records/file_lock.h"
#include "records/guarded_engine.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <vector>

namespace {

/// Closes the engine's handle on every way out.
class Handle
{
public:
    explicit Handle(sqlite3* owned) : engine(owned) {}
    ~Handle() { sqlite3_close_v2(engine); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    sqlite3* Get() const { return engine; }

private:
    sqlite3* engine;
};

std::vector<std::string> TableNames(sqlite3* engine, const std::string& doing)
{
    std::vector<std::string> names;
    Statement query(engine, "SELECT name FROM main.sqlite_master WHERE type = 'table' ORDER BY rowid", doing);
    while (query.Step())
        names.emplace_back(query.Text(0));
    return names;
}

std::int64_t SingleNumber(sqlite3* engine, const std::string& sql, const std::string& doing)
{
    Statement query(engine, sql, doing);
    query.Step();
    return query.WholeNumber(0);
}

// An export that lost rows may still look whole to the engine, so every table is counted on both sides.
void CompareRowCounts(sqlite3* engine, const std::string& doing)
{
    for (const std::string& table : TableNames(engine, doing)) {
        const auto rows = [&](const char* schema) {
            return SingleNumber(engine, "SELECT count(*) FROM " + std::string(schema) + "." + Quoted(table), doing);
        };
        if (rows("main") != rows("compacted"))
            throw Failure(doing, "rows were missing in the compacted file", table);
    }
}

// The export leaves these two marks behind.
void CopyMarks(sqlite3* engine, const std::string& doing)
{
    for (const char* mark : {"user_version", "application_id"}) {
        const auto value = SingleNumber(engine, std::string("PRAGMA main.") + mark, doing);
        Execute(engine, std::string("PRAGMA compacted.") + mark + " = " + std::to_string(value), doing);
    }
}

void MakeEmptyFile(const std::filesystem::path& file, const std::string& doing)
{
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (descriptor < 0)
        throw Failure(doing, errno == EEXIST ? "an old temporary file is in the way" : "the folder may not be changed",
                      file.filename().string());
    ::close(descriptor);
}

void Export(sqlite3* engine, const std::filesystem::path& destination, const std::string& doing)
{
    {
        // The engine attaches only a file that is there; without a key of its own that takes over the source's key and
        // salt.
        Statement attach(engine, "ATTACH DATABASE ?1 AS compacted", doing);
        const std::string target = destination.string();
        attach.Bind(1, Value(std::string_view(target)));
        attach.Step();
    }
    Execute(engine, "BEGIN", doing);
    Execute(engine, "SELECT sqlcipher_export('compacted')", doing);
    CompareRowCounts(engine, doing);
    CopyMarks(engine, doing);
    Execute(engine, "COMMIT", doing);
    Execute(engine, "DETACH DATABASE compacted", doing);
}

} // namespace

void CompactDatabase(const std::filesystem::path& source, const std::filesystem::path& destination,
                     const std::string& connect)
{
    const std::string doing = "The file " + source.filename().string() + " could not be compacted";
    MakeEmptyFile(destination, doing);
    try {
        FileLock lock;
        lock.Share(source, doing);
        const Handle handle(OpenGuarded(source, connect, lock.FirstBytes(SaltBytes), doing));
        // The export writes the schema table itself, which the defensive mode forbids.
        sqlite3_db_config(handle.Get(), SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
        Export(handle.Get(), destination, doing);
        std::filesystem::permissions(destination, std::filesystem::status(source).permissions());
    } catch (const std::filesystem::filesystem_error& error) {
        DeleteFileIfThere(destination);
        throw Failure(doing, "the access rights could not be copied", error.what());
    } catch (...) {
        DeleteFileIfThere(destination);
        throw;
    }
}
