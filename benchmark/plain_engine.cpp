#include "plain_engine.h"

#include "records/engine.h"
#include "records/key_store.h"
#include "records/statement.h"

#include <fstream>
#include <memory>
#include <stdexcept>

namespace {

struct Finalize
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

bool TakeStep(sqlite3_stmt* statement)
{
    const int code = sqlite3_step(statement);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(sqlite3_db_handle(statement)));
    return code == SQLITE_ROW;
}

std::int64_t ReadField(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return sqlite3_column_int64(statement, column);
    case SQLITE_TEXT:
        return *sqlite3_column_text(statement, column) + sqlite3_column_bytes(statement, column);
    default:
        return static_cast<std::int64_t>(sqlite3_column_double(statement, column));
    }
}

} // namespace

PlainFile::PlainFile(const std::filesystem::path& file, const std::string& key)
{
    if (sqlite3_open(file.c_str(), &engine) != SQLITE_OK)
        throw std::runtime_error("The engine could not open " + file.string());
    if (!key.empty())
        sqlite3_key(engine, key.data(), static_cast<int>(key.size()));
    Run("SELECT count(*) FROM sqlite_master");
}

PlainFile::~PlainFile()
{
    sqlite3_finalize(insert);
    sqlite3_close_v2(engine);
}

sqlite3_stmt* PlainFile::Prepare(const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(engine, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine));
    return statement;
}

void PlainFile::Run(const std::string& sql)
{
    if (sqlite3_exec(engine, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine));
}

std::int64_t PlainFile::ReadAll(const std::string& sql)
{
    const Prepared query(Prepare(sql));
    const int columns = sqlite3_column_count(query.get());
    std::int64_t rows = 0;
    volatile std::int64_t read = 0;
    for (; TakeStep(query.get()); ++rows)
        for (int column = 0; column < columns; ++column)
            read = read + ReadField(query.get(), column);
    return rows;
}

std::vector<std::int64_t> PlainFile::FirstRow(const std::string& sql)
{
    const Prepared query(Prepare(sql));
    std::vector<std::int64_t> row;
    if (TakeStep(query.get()))
        for (int column = 0; column < sqlite3_column_count(query.get()); ++column)
            row.push_back(sqlite3_column_int64(query.get(), column));
    return row;
}

void PlainFile::Insert(std::span<const EntryRow> entries)
{
    if (insert == nullptr)
        insert = Prepare("INSERT INTO entries VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
    Run("BEGIN IMMEDIATE");
    for (const EntryRow& entry : entries) {
        int parameter = 0;
        for (const std::int64_t value : {entry.number, entry.userId, std::int64_t{entry.drawType}})
            sqlite3_bind_int64(insert, ++parameter, value);
        for (const double number : entry.numbers)
            sqlite3_bind_int64(insert, ++parameter, static_cast<std::int64_t>(number));
        for (const bool day : entry.days)
            sqlite3_bind_int64(insert, ++parameter, day ? -1 : 0);
        TakeStep(insert);
        sqlite3_reset(insert);
    }
    Run("COMMIT");
}

std::string KeyOf(const std::filesystem::path& file, const std::string& password)
{
    std::string salt(SaltBytes, '\0');
    std::ifstream(file, std::ios::binary).read(salt.data(), static_cast<std::streamsize>(salt.size()));
    return DerivedKeyText(password, salt);
}

void CompactPlainly(const std::filesystem::path& file, const std::string& key)
{
    const auto copy = file.string() + ".copy";
    const auto compact = file.string() + ".compact";
    std::filesystem::copy_file(file, copy);
    {
        PlainFile engine(copy, key);
        engine.Run("ATTACH '" + compact + "' AS compacted; BEGIN; SELECT sqlcipher_export('compacted')");
        engine.Run("COMMIT; DETACH compacted");
    }
    std::filesystem::copy_file(compact, file, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::remove(copy);
    std::filesystem::remove(compact);
}
