#include "records/guarded_engine.h"

#include "platform/failure.h"
#include "records/engine.h"
#include "records/key_store.h"

namespace {

constexpr std::string_view PlainFileStart = "SQLite format 3";
constexpr int LongestFieldBytes = 64 * 1024 * 1024;
constexpr int BusyMilliseconds = 3000;

void SetGuards(sqlite3* engine)
{
    sqlite3_extended_result_codes(engine, 1);
    sqlite3_busy_timeout(engine, BusyMilliseconds);
    sqlite3_limit(engine, SQLITE_LIMIT_LENGTH, LongestFieldBytes);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
}

void ApplyKey(sqlite3* engine, const std::string& password, std::string_view firstBytes, const std::string& doing)
{
    if (firstBytes.size() < SaltBytes || firstBytes.starts_with(PlainFileStart))
        throw Failure(doing, "the file is damaged or is not one of this program's files",
                      "not protected by a password");
    const std::string key = DerivedKeySpecification(password, firstBytes.substr(0, SaltBytes));
    const int code = sqlite3_key(engine, key.data(), static_cast<int>(key.size()));
    if (code != SQLITE_OK)
        ThrowEngineFailure(engine, code, doing);
}

} // namespace

std::string PasswordOf(const std::string& connect)
{
    constexpr std::string_view mark = ";pwd=";
    return connect.starts_with(mark) ? connect.substr(mark.size()) : std::string();
}

sqlite3* OpenGuarded(const std::filesystem::path& file, const std::string& connect, std::string_view firstBytes,
                     const std::string& doing)
{
    sqlite3* engine = nullptr;
    const int code = sqlite3_open_v2(file.c_str(), &engine, SQLITE_OPEN_READWRITE, nullptr);
    try {
        if (code != SQLITE_OK)
            ThrowEngineFailure(engine, code, doing);
        SetGuards(engine);
        const std::string password = PasswordOf(connect);
        if (!password.empty())
            ApplyKey(engine, password, firstBytes, doing);
        // The first key of a run wakes the engine's own log up, so it is silenced after it.
        Execute(engine, "PRAGMA cipher_log_level = NONE; PRAGMA cell_size_check = 1", doing);
        Execute(engine, "SELECT count(*) FROM sqlite_master", doing);
    } catch (...) {
        sqlite3_close_v2(engine);
        throw;
    }
    return engine;
}
