#include "records/database.h"

#include "base/failure.h"
#include "records/statement.h"
#include "records/table.h"

Database::~Database()
{
    Close();
}

void Database::Open(const std::filesystem::path& file, const std::string& connect)
{
    Close();
    const std::string doing = "The file " + file.filename().string() + " could not be opened";
    lock.Share(file, doing);
    try {
        engine = OpenGuarded(file, connect, lock.FirstBytes(SaltBytes), doing);
    } catch (...) {
        Close();
        throw;
    }
}

void Database::Close()
{
    for (const auto& [name, table] : tables)
        table->Close();
    tables.clear();
    // The engine goes first: closing the lock's descriptor would drop the engine's own locks.
    engine.reset();
    inTransaction = false;
    lock.Release();
}

std::shared_ptr<Table> Database::TableOf(const TableLayout& layout)
{
    std::shared_ptr<Table>& table = tables[layout.IsList() ? layout.listedTable : layout.name];
    if (!table)
        table = std::make_shared<Table>(engine.get(), layout.IsList() ? layout.Listed() : layout);
    return table;
}

void Database::RollBack()
{
    // A failed commit may have rolled back already; the answer to a second attempt does not matter.
    sqlite3_exec(engine.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    inTransaction = false;
    for (const auto& [name, table] : tables)
        table->TakeBackChanges();
}

Transaction::Transaction(Database& owner, std::string doingClause) : database(owner), doing(std::move(doingClause))
{
    if (database.inTransaction)
        throw Failure(doing, "another change is still going on", "nested transaction");
    Execute(database.engine.get(), "BEGIN IMMEDIATE", doing);
    database.inTransaction = true;
    open = true;
    for (const auto& [name, table] : database.tables)
        table->KeepChanges();
}

// Where memory is lacking to take back what the rows show, the program ends rather than show what is not stored.
Transaction::~Transaction() // NOLINT(bugprone-exception-escape)
{
    if (open && database.IsOpen())
        database.RollBack();
}

void Transaction::Commit()
{
    Execute(database.engine.get(), "COMMIT", doing);
    open = false;
    database.inTransaction = false;
    for (const auto& [name, table] : database.tables)
        table->KeepChanges();
}
