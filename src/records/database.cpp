#include "records/database.h"

#include "base/failure.h"
#include "records/statement.h"
#include "records/table.h"

namespace {

std::string TableStatement(const TableLayout& table)
{
    std::string columns;
    for (const ColumnLayout& column : table.columns)
        columns += (columns.empty() ? "" : ", ") + Quoted(column.name) + " " + column.type;
    return "CREATE TABLE " + Quoted(table.name) + " (" + columns + ");";
}

std::string ListStatement(const TableLayout& list)
{
    std::string order;
    for (const int column : list.orderedBy)
        order += (order.empty() ? "" : ", ") + Quoted(list.columns.at(static_cast<std::size_t>(column)).name) + " DESC";
    return "CREATE VIEW " + Quoted(list.name) + " AS SELECT " + ColumnNames(list) + " FROM " +
           Quoted(list.listedTable) + " ORDER BY " + order + ";";
}

} // namespace

void Database::Open(const std::filesystem::path& file, const std::string& connect)
{
    Close();
    const std::string doing = "The file " + file.filename().string() + " could not be opened";
    FileLock shared;
    shared.Share(file, doing);
    engine = OpenGuarded(file, connect, shared.FirstBytes(SaltBytes), doing);
    lock = std::move(shared);
}

void Database::Close()
{
    tables.clear();
    engine.reset();
    lock = FileLock();
}

std::shared_ptr<Table> Database::TableOf(const TableLayout& layout)
{
    const std::string doing = "The table " + layout.name + " could not be opened";
    ProveLayout(engine.get(), layout, doing);
    // What a stored query's own text says, which in a file of unknown origin may be anything, is never run.
    const TableLayout table = layout.IsList() ? layout.Listed() : layout;
    if (layout.IsList())
        ProveLayout(engine.get(), table, doing);
    std::shared_ptr<Table>& kept = tables[table.name];
    if (!kept)
        kept = std::make_shared<Table>(engine.get(), table);
    return kept;
}

Transaction::Transaction(Database& owner, std::string doingClause) : database(owner), doing(std::move(doingClause))
{
    Execute(database.engine.get(), "BEGIN IMMEDIATE", doing);
    for (const auto& [name, table] : database.tables)
        table->BeginChanges();
}

// Where memory is lacking to take back what the rows show, the program ends rather than show what is not stored.
Transaction::~Transaction() // NOLINT(bugprone-exception-escape)
{
    if (!open)
        return;
    // A failed commit may have rolled back already; the answer to a second attempt does not matter.
    sqlite3_exec(database.engine.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    for (const auto& [name, table] : database.tables)
        table->TakeBackChanges();
}

void Transaction::Commit()
{
    Execute(database.engine.get(), "COMMIT", doing);
    open = false;
}

void CreateDatabase(const std::filesystem::path& file, const std::string& connect,
                    const std::vector<TableLayout>& layouts)
{
    const std::string doing = "The file " + file.filename().string() + " could not be made";
    if (std::filesystem::exists(file))
        throw Failure(doing, "there is a file of that name already", file.string());
    const Engine engine = OpenEngine(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, doing);
    const std::string password = PasswordOf(connect);
    if (!password.empty())
        sqlite3_key(engine.get(), password.data(), static_cast<int>(password.size()));
    std::string statements = "BEGIN;";
    for (const TableLayout& layout : layouts)
        statements += layout.IsList() ? ListStatement(layout) : TableStatement(layout);
    Execute(engine.get(), statements + "COMMIT", doing);
}
