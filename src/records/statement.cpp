#include "records/statement.h"

#include "base/numbers.h"

#include <cmath>

namespace {

const char* PlainReason(int code)
{
    switch (code & 0xff) {
    case SQLITE_FULL:
        return "the disk is full";
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return "the file or its folder may not be changed";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return "another program is using the file";
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_FORMAT:
        return "the file is damaged or is not one of this program's files";
    case SQLITE_CANTOPEN:
        return "the file cannot be opened";
    case SQLITE_IOERR:
        return code == SQLITE_IOERR_WRITE ? "the disk is full or reported an error" : "the disk reported an error";
    case SQLITE_TOOBIG:
        return "a text is too long";
    case SQLITE_INTERRUPT:
        return "it took too long";
    case SQLITE_NOMEM:
        return "the computer is short of memory";
    default:
        return "the file is not as this program made it";
    }
}

} // namespace

Failure EngineFailure(sqlite3* engine, int code, const std::string& doing)
{
    // The handle's own text belongs to its last call only; another code is described in general.
    const bool own = engine != nullptr && (sqlite3_errcode(engine) & 0xff) == (code & 0xff);
    return {doing, PlainReason(code), own ? sqlite3_errmsg(engine) : sqlite3_errstr(code)};
}

Statement::Statement(sqlite3* owner, std::string_view sql, std::string doingClause)
    : engine(owner), doing(std::move(doingClause))
{
    Check(sqlite3_prepare_v3(engine, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &statement,
                             nullptr));
}

Statement::~Statement()
{
    sqlite3_finalize(statement);
}

void Statement::Check(int code) const
{
    if (code != SQLITE_OK)
        throw EngineFailure(engine, code, doing);
}

void Statement::Bind(int parameter, std::int64_t number)
{
    Check(sqlite3_bind_int64(statement, parameter, number));
}

void Statement::Bind(int parameter, std::string_view text)
{
    Check(sqlite3_bind_text64(statement, parameter, text.empty() ? "" : text.data(), text.size(), SQLITE_STATIC,
                              SQLITE_UTF8));
}

void Statement::Bind(int parameter, double number)
{
    if (std::fabs(number) < LargestExactWhole && number == std::trunc(number))
        Bind(parameter, static_cast<std::int64_t>(number));
    else
        Check(sqlite3_bind_double(statement, parameter, number));
}

bool Statement::Step()
{
    const int code = sqlite3_step(statement);
    if (code == SQLITE_ROW || code == SQLITE_DONE)
        return code == SQLITE_ROW;
    // The reset clears the handle's own text of the failure, so it comes after the text is taken.
    const Failure failure = EngineFailure(engine, sqlite3_extended_errcode(engine), doing);
    sqlite3_reset(statement);
    throw failure;
}

bool Statement::IsNumber(int column) const
{
    const int type = sqlite3_column_type(statement, column);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

std::string_view Statement::Text(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text == nullptr ? std::string_view()
                           : std::string_view(text, static_cast<size_t>(sqlite3_column_bytes(statement, column)));
}

void Statement::Reset()
{
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
}

void Execute(sqlite3* engine, const std::string& sql, const std::string& doing)
{
    const int code = sqlite3_exec(engine, sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        throw EngineFailure(engine, sqlite3_extended_errcode(engine), doing);
}

std::string Quoted(std::string_view identifier)
{
    std::string quoted = "\"";
    for (const char letter : identifier) {
        if (letter == '"')
            quoted += '"';
        quoted += letter;
    }
    return quoted + '"';
}
