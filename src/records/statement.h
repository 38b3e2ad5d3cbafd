#pragma once

// The only header through which the program meets the database engine.

#include "base/failure.h"

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

/// The failure of an engine call, told in a player's words. `code` is the engine's result code.
Failure EngineFailure(sqlite3* engine, int code, const std::string& doing);

/// A prepared statement. `doing` is the clause that a failure of it carries.
class Statement
{
public:
    Statement(sqlite3* owner, std::string_view sql, std::string doingClause);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Binds the parameter of the given number, counted from 1. A text must live until the next Step or Reset.
    void Bind(int parameter, std::int64_t number);
    void Bind(int parameter, std::string_view text);
    /// Binds a number in the form in which the files hold it: a whole one as such, any other as a real number.
    void Bind(int parameter, double number);

    /// Runs on to the next row; false when there is none. Throws Failure on every other result, so that damage in the
    /// middle of a table never looks like its end.
    bool Step();

    /// The value of a column of the current row, counted from 0; nothing is an empty text. A text lives until the next
    /// Step or Reset.
    bool IsNumber(int column) const;
    double Number(int column) const { return sqlite3_column_double(statement, column); }
    std::int64_t WholeNumber(int column) const { return sqlite3_column_int64(statement, column); }
    std::string_view Text(int column) const;

    /// Makes the statement ready to run again.
    void Reset();

private:
    void Check(int code) const;

    sqlite3* engine;
    sqlite3_stmt* statement = nullptr;
    std::string doing;
};

/// Runs statements that give no rows.
void Execute(sqlite3* engine, const std::string& sql, const std::string& doing);

/// Puts an identifier into the quotes of the engine's language.
std::string Quoted(std::string_view identifier);
