#pragma once

#include "records/engine.h"
#include "records/statement.h"

#include <filesystem>
#include <string>

/// Runs statements on a database file with a bare engine, as anybody's tool would; what must not work in the program
/// works here. Throws Failure when a statement fails.
inline void RunSql(const std::filesystem::path& file, const std::string& connect, const std::string& sql)
{
    sqlite3* engine = nullptr;
    sqlite3_open(file.c_str(), &engine);
    const std::string password = PasswordOf(connect);
    if (!password.empty())
        sqlite3_key(engine, password.data(), static_cast<int>(password.size()));
    sqlite3_db_config(engine, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
    try {
        Execute(engine, sql, "The test's own file could not be made");
    } catch (...) {
        sqlite3_close_v2(engine);
        throw;
    }
    sqlite3_close_v2(engine);
}
