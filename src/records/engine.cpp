#include "records/engine.h"

#include "base/failure.h"
#include "records/journals.h"
#include "records/key_store.h"
#include "records/statement.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <system_error>

namespace {

constexpr std::string_view PlainFileStart = "SQLite format 3";
// Several times what any field of the program takes.
constexpr int LongestFieldBytes = 1024 * 1024;
// More than a million draws or entries. A file of another kind could take all the computer's memory while it is read.
constexpr std::uintmax_t LargestFileBytes = std::uintmax_t{64} * 1024 * 1024;
constexpr int BusyMilliseconds = 3000;
constexpr int InstructionsBetweenLooks = 100000;
// A row takes at least six bytes, and the reading of one with sixteen fields twenty instructions of the engine.
constexpr std::uintmax_t MostInstructionsPerByte = 8;

// Statements run one after another on the one thread of the program.
std::uintmax_t LooksAtStatement = 0;

int NoteStart(unsigned /*event*/, void* /*unused*/, void* /*statement*/, void* /*sql*/)
{
    LooksAtStatement = 0;
    return 0;
}

// An honest statement ends: the longest looks at every field of its file once.
int EndWhenEndless(void* engine)
{
    std::error_code unknown;
    const char* const file = sqlite3_db_filename(static_cast<sqlite3*>(engine), "main");
    const auto bytes = std::min(std::filesystem::file_size(file, unknown), LargestFileBytes);
    const std::uintmax_t most = InstructionsBetweenLooks + bytes * MostInstructionsPerByte;
    return ++LooksAtStatement * InstructionsBetweenLooks > most ? 1 : 0;
}

bool IsOneOf(const char* name, std::initializer_list<std::string_view> names)
{
    return name != nullptr && std::find(names.begin(), names.end(), name) != names.end();
}

// What the program itself asks for when it reads and changes rows. A stored query or trigger on whose behalf something
// happens is named in the last argument, and neither is ever let in.
int AdmitRecords(void* /*unused*/, int action, const char* first, const char* second, const char* /*schema*/,
                 const char* inner)
{
    if (inner != nullptr)
        return SQLITE_DENY;
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
    case SQLITE_TRANSACTION:
        return SQLITE_OK;
    case SQLITE_FUNCTION:
        return IsOneOf(second, {"count"}) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_PRAGMA:
        return IsOneOf(first, {"cell_size_check", "cipher_log_level", "data_version", "max_page_count", "page_size",
                               "synchronous", "table_xinfo"}) ||
                       (IsOneOf(first, {"journal_mode"}) && IsOneOf(second, {"delete"}))
                   ? SQLITE_OK
                   : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

// What the export needs besides: it makes the objects anew in the file that is attached for it.
int AdmitExport(void* unused, int action, const char* first, const char* second, const char* schema, const char* inner)
{
    switch (action) {
    case SQLITE_ATTACH:
    case SQLITE_DETACH:
    case SQLITE_REINDEX:
        return SQLITE_OK;
    case SQLITE_CREATE_TABLE:
    case SQLITE_CREATE_INDEX:
        return IsOneOf(schema, {"compacted"}) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_FUNCTION:
        // Those of the export itself, and some harmless ones that a file's own indexes and checks may be made with.
        return IsOneOf(second,
                       {"abs", "coalesce", "count", "ifnull", "instr", "length", "like", "lower", "ltrim", "nullif",
                        "quote", "round", "rtrim", "sqlcipher_export", "substr", "trim", "typeof", "upper"})
                   ? SQLITE_OK
                   : SQLITE_DENY;
    case SQLITE_PRAGMA:
        return IsOneOf(first, {"application_id", "synchronous", "user_version"}) ? SQLITE_OK : SQLITE_DENY;
    default:
        return AdmitRecords(unused, action, first, second, schema, inner);
    }
}

void SetGuards(sqlite3* engine)
{
    sqlite3_busy_timeout(engine, BusyMilliseconds);
    sqlite3_limit(engine, SQLITE_LIMIT_LENGTH, LongestFieldBytes);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_ENABLE_FKEY, 0, nullptr);
    sqlite3_drop_modules(engine, nullptr);
    sqlite3_set_authorizer(engine, AdmitRecords, nullptr);
    sqlite3_trace_v2(engine, SQLITE_TRACE_STMT, NoteStart, nullptr);
    sqlite3_progress_handler(engine, InstructionsBetweenLooks, EndWhenEndless, engine);
}

void ApplyKey(sqlite3* engine, const std::string& password, std::string_view firstBytes, const std::string& doing)
{
    if (firstBytes.size() < SaltBytes || firstBytes.starts_with(PlainFileStart))
        throw Failure(doing, "the file is damaged or is not one of this program's files",
                      "not protected by a password");
    const std::string& key = DerivedKeyText(password, firstBytes.substr(0, SaltBytes));
    const int code = sqlite3_key(engine, key.data(), static_cast<int>(key.size()));
    if (code != SQLITE_OK)
        throw EngineFailure(engine, code, doing);
}

/// A change that would make the file too large to be opened again is refused.
void LimitGrowth(sqlite3* engine, const std::string& doing)
{
    Statement pageSize(engine, "PRAGMA page_size", doing);
    pageSize.Step();
    const auto pages = static_cast<std::int64_t>(LargestFileBytes) / std::max<std::int64_t>(pageSize.WholeNumber(0), 1);
    Execute(engine, "PRAGMA max_page_count = " + std::to_string(pages), doing);
}

} // namespace

void CloseEngine::operator()(sqlite3* engine) const
{
    sqlite3_close_v2(engine);
}

Engine OpenEngine(const std::filesystem::path& file, int flags, const std::string& doing)
{
    sqlite3* opened = nullptr;
    // The program has one thread, and the engine need not lock itself for others.
    const int code = sqlite3_open_v2(file.c_str(), &opened, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    Engine engine(opened);
    if (code != SQLITE_OK)
        throw EngineFailure(opened, code, doing);
    return engine;
}

std::string PasswordOf(const std::string& connect)
{
    constexpr std::string_view mark = ";pwd=";
    return connect.starts_with(mark) ? connect.substr(mark.size()) : std::string();
}

Engine OpenGuarded(const std::filesystem::path& file, const std::string& connect, std::string_view firstBytes,
                   const std::string& doing)
{
    std::error_code missing;
    if (const auto bytes = std::filesystem::file_size(file, missing); !missing && bytes > LargestFileBytes)
        throw Failure(doing, "it is far larger than any file of this program", std::to_string(bytes) + " bytes");
    RefuseJournalOfSeveralFiles(file, doing);
    Engine owner = OpenEngine(file, SQLITE_OPEN_READWRITE, doing);
    sqlite3* const engine = owner.get();
    SetGuards(engine);
    const std::string password = PasswordOf(connect);
    if (!password.empty())
        ApplyKey(engine, password, firstBytes, doing);
    // The first key of a run wakes the engine's own log up, so it is silenced after it.
    Execute(engine, "PRAGMA cipher_log_level = NONE; PRAGMA cell_size_check = 1", doing);
    // A change is stored when its journal is gone from the disk too: it would take the change back after a power cut.
    Execute(engine, "PRAGMA synchronous = EXTRA", doing);
    Execute(engine, "SELECT count(*) FROM sqlite_master", doing);
    LimitGrowth(engine, doing);
    // Another tool may have had the file keep a log beside it. Its locks last as long as the file is open, and the
    // closing of any other descriptor of the file would drop them. Where the tool still has it open, the log stays.
    sqlite3_exec(engine, "PRAGMA journal_mode = delete", nullptr, nullptr, nullptr);
    return owner;
}

void AllowExport(sqlite3* engine)
{
    // The export writes the schema table itself, which the defensive mode forbids.
    sqlite3_db_config(engine, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
    sqlite3_set_authorizer(engine, AdmitExport, nullptr);
}
