#pragma once

// The only header through which the program meets the database engine.

#include "records/value.h"

#include <sqlite3.h>

#include <string>
#include <string_view>
#include <vector>

/// The failure of an engine call, told in a player's words. `code` is the engine's result code.
[[noreturn]] void ThrowEngineFailure(sqlite3* engine, int code, const std::string& doing);

/// A prepared statement. `doing` is the clause that a failure of it carries.
class Statement
{
public:
    Statement(sqlite3* owner, std::string_view sql, std::string doingClause);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Binds the parameter of the given number, counted from 1. A text must live until the next Step or Reset.
    void Bind(int parameter, const Value& value);
    /// Binds the first parameters in their order.
    void BindAll(const std::vector<Value>& values);

    /// Runs on to the next row; false when there is none. Throws Failure on every other result, so that damage in the
    /// middle of a table never looks like its end.
    bool Step();

    /// The value of a column of the current row, counted from 0. A text lives until the next Step or Reset; bytes that
    /// are none are given as one.
    Value Column(int column) const;
    bool IsBytes(int column) const { return sqlite3_column_type(statement, column) == SQLITE_BLOB; }
    std::int64_t WholeNumber(int column) const { return sqlite3_column_int64(statement, column); }
    std::string_view Text(int column) const;

    /// Makes the statement ready to run again.
    void Reset();

private:
    sqlite3* engine;
    sqlite3_stmt* statement = nullptr;
    std::string doing;
};

/// Runs statements that give no rows.
void Execute(sqlite3* engine, const std::string& sql, const std::string& doing);

/// Puts an identifier into the quotes of the engine's language.
std::string Quoted(std::string_view identifier);
