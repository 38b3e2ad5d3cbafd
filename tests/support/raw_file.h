#pragma once

#include "records/engine.h"
#include "records/statement.h"

#include <filesystem>
#include <string>

/// Runs statements on a database file with a bare engine, as anybody's tool would; what must not work in the program
/// works here. Throws Failure when a statement fails.
inline void RunSql(const std::filesystem::path& file, const std::string& connect, const std::string& sql)
{
    const std::string doing = "The test's own file could not be made";
    const Engine engine = OpenEngine(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, doing);
    const std::string password = PasswordOf(connect);
    sqlite3_key(engine.get(), password.data(), static_cast<int>(password.size()));
    sqlite3_db_config(engine.get(), SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
    Execute(engine.get(), sql, doing);
}
