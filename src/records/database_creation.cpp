#include "records/database_creation.h"

#include "base/failure.h"
#include "records/engine.h"
#include "records/row_reading.h"
#include "records/statement.h"

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
