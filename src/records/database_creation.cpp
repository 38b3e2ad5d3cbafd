#include "records/database_creation.h"

#include "base/failure.h"
#include "records/engine.h"
#include "records/statement.h"

namespace {

std::string TableStatement(const TableLayout& table)
{
    std::string columns;
    for (const ColumnLayout& column : table.columns)
        columns += (columns.empty() ? "" : ", ") + Quoted(column.name) + " " + column.type;
    return "CREATE TABLE " + Quoted(table.name) + " (" + columns + ");";
}

std::string ListStatement(const ListLayout& layout)
{
    std::string columns;
    for (const ColumnLayout& column : layout.list.columns)
        columns += (columns.empty() ? "" : ", ") + Quoted(column.name);
    return "CREATE VIEW " + Quoted(layout.list.name) + " AS SELECT " + columns + " FROM " + Quoted(layout.listedTable) +
           " ORDER BY " + layout.list.listOrder + ";";
}

} // namespace

void CreateDatabase(const std::filesystem::path& file, const std::string& connect,
                    const std::vector<TableLayout>& tables, const std::vector<ListLayout>& lists)
{
    const std::string doing = "The file " + file.filename().string() + " could not be made";
    if (std::filesystem::exists(file))
        throw Failure(doing, "there is a file of that name already", file.string());
    const Engine engine = OpenEngine(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, doing);
    const std::string password = PasswordOf(connect);
    if (!password.empty())
        sqlite3_key(engine.get(), password.data(), static_cast<int>(password.size()));
    std::string statements = "BEGIN;";
    for (const TableLayout& table : tables)
        statements += TableStatement(table);
    for (const ListLayout& list : lists)
        statements += ListStatement(list);
    Execute(engine.get(), statements + "COMMIT", doing);
}
