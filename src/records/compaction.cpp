#include "records/compaction.h"

#include "base/failure.h"
#include "records/engine.h"
#include "records/file_lock.h"
#include "records/statement.h"

#include <vector>

namespace {

std::vector<std::string> TableNames(sqlite3* engine, const std::string& doing)
{
    std::vector<std::string> names;
    // Virtual tables, which the engine is not let into, have no page of their own.
    Statement query(engine, "SELECT name FROM main.sqlite_master WHERE type = 'table' AND rootpage > 0 ORDER BY rowid",
                    doing);
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

std::int64_t Rows(sqlite3* engine, const std::string& schema, const std::string& table, const std::string& doing)
{
    return SingleNumber(engine, "SELECT count(*) FROM " + schema + "." + Quoted(table), doing);
}

// An export that lost rows may still look whole to the engine, so every table is counted on both sides.
void CompareRowCounts(sqlite3* engine, const std::string& doing)
{
    for (const std::string& table : TableNames(engine, doing))
        if (Rows(engine, "main", table, doing) != Rows(engine, "compacted", table, doing))
            throw Failure(doing, "rows were missing in the compacted file", table);
}

// The export leaves these two marks behind.
void CopyMarks(sqlite3* engine, const std::string& doing)
{
    for (const char* mark : {"user_version", "application_id"}) {
        const auto value = SingleNumber(engine, std::string("PRAGMA main.") + mark, doing);
        Execute(engine, std::string("PRAGMA compacted.") + mark + " = " + std::to_string(value), doing);
    }
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
    // The new file is copied, and the copy synced, before it takes the place of anything; after a crash it is
    // worthless.
    Execute(engine, "PRAGMA compacted.synchronous = OFF", doing);
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
    FileLock lock;
    lock.Share(source, doing);
    const Engine engine = OpenGuarded(source, connect, lock.FirstBytes(SaltBytes), doing);
    AllowExport(engine.get());
    Export(engine.get(), destination, doing);
}
