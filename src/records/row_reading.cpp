#include "records/row_reading.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "records/statement.h"

#include <stdexcept>

namespace {

std::string ReadStatement(const TableLayout& table)
{
    return "SELECT rowid, " + ColumnNames(table) + " FROM " + Quoted(table.name) + " ORDER BY rowid";
}

/// The field of a query's current row in the given column of the table, as it is held in memory.
Cell ReadCell(const Statement& query, int column, bool ofTexts, StoredRows& rows)
{
    using Kind = StoredColumn::Kind;
    // This is asked first, for the engine forgets the type of a field that it has given as a text.
    if (query.IsBytes(column + 1))
        return rows.Keep(column, Kind::Bytes, query.Text(column + 1));
    const Value value = query.Column(column + 1);
    const auto* whole = std::get_if<std::int64_t>(&value);
    const auto* real = std::get_if<double>(&value);
    if (ofTexts && whole != nullptr)
        return rows.Keep(column, Kind::WrittenNumber, std::to_string(*whole));
    if (ofTexts && real != nullptr)
        return rows.Keep(column, Kind::WrittenNumber, PlainNumber(*real).toStdString());
    return rows.Keep(column, value);
}

} // namespace

std::string ColumnNames(const TableLayout& layout)
{
    std::string names;
    for (const ColumnLayout& column : layout.columns)
        names += (names.empty() ? "" : ", ") + Quoted(column.name);
    return names;
}

void ProveLayout(sqlite3* engine, const TableLayout& layout, const std::string& doing)
{
    const char* const wanted = layout.IsList() ? "view" : "table";
    // A virtual table says that it is a table, but has no page of its own.
    Statement kind(engine,
                   "SELECT 1 FROM sqlite_master WHERE name = ?1 AND type = ?2 AND (rootpage > 0) = (type = 'table')",
                   doing);
    kind.Bind(1, Value(std::string_view(layout.name)));
    kind.Bind(2, Value(std::string_view(wanted)));
    if (!kind.Step())
        throw Failure(doing, "it is missing in the file", std::string("no such ") + wanted);
    Statement columns(engine, "PRAGMA table_xinfo(" + Quoted(layout.name) + ")", doing);
    constexpr int nameColumn = 1;
    constexpr int hiddenColumn = 6;
    std::size_t found = 0;
    for (; columns.Step(); ++found) {
        if (found >= layout.columns.size() || columns.Text(nameColumn) != layout.columns[found].name ||
            columns.WholeNumber(hiddenColumn) != 0)
            throw Failure(doing, "its columns are not as this program made them",
                          std::string(columns.Text(nameColumn)));
    }
    if (found != layout.columns.size())
        throw Failure(doing, "its columns are not as this program made them", "columns missing");
    // What a stored query's own text says, which in a file of unknown origin may be anything, is never run.
    if (layout.IsList())
        ProveLayout(engine, layout.Listed(), doing);
    else
        // The file's own word for what is a table is not enough: the engine must be ready to read it as one.
        const Statement readable(engine, ReadStatement(layout), doing);
}

StoredRows ReadRows(sqlite3* engine, const TableLayout& table, const std::string& doing)
{
    StoredRows rows(table.ColumnCount());
    std::vector<Cell> cells(table.columns.size());
    Statement query(engine, ReadStatement(table), doing);
    try {
        while (query.Step()) {
            const std::int64_t rowId = query.WholeNumber(0);
            // Where a damaged page leads to others twice, a small file seems to have rows without end.
            if (rows.Places() > 0 && rowId <= rows.RowId(rows.Places() - 1))
                throw Failure(doing, "the file is damaged or is not one of this program's files", "rows out of order");
            for (std::size_t column = 0; column < cells.size(); ++column)
                cells[column] = ReadCell(query, static_cast<int>(column), table.columns[column].type == "TEXT", rows);
            rows.Append(rowId, cells);
        }
    } catch (const std::length_error& failure) {
        throw Failure(doing, "its texts are too long", failure.what());
    }
    rows.Shrink();
    return rows;
}
