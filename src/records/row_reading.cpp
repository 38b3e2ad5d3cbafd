#include "records/row_reading.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "records/statement.h"

#include <optional>
#include <stdexcept>

namespace {

/// A field of a column of texts. A number, which a file of unknown origin may hold there, is written out; `room` keeps
/// its digits.
Value AsText(const Value& field, std::string& room)
{
    if (const auto* whole = std::get_if<std::int64_t>(&field))
        room = std::to_string(*whole);
    else if (const auto* real = std::get_if<double>(&field))
        room = PlainNumber(*real).toStdString();
    else
        return field;
    return std::string_view(room);
}

/// Proves that the rows of a walk come in the ascending order of their numbers.
class RowIdOrder
{
public:
    void Prove(std::int64_t rowId, const std::string& doing)
    {
        if (last && rowId <= *last)
            throw Failure(doing, "the file is damaged or is not one of this program's files", "rows out of order");
        last = rowId;
    }

private:
    std::optional<std::int64_t> last;
};

std::string ReadStatement(const TableLayout& layout)
{
    // A stored query is what its table holds, newest first. Its own text, which in a file of unknown origin may say
    // anything, is never run: the table is read in that order.
    return "SELECT rowid, " + ColumnNames(layout) + " FROM " +
           Quoted(layout.IsList() ? layout.listedTable : layout.name) + " ORDER BY " +
           (layout.IsList() ? layout.listOrder : "rowid");
}

void ProveOrder(sqlite3* engine, const TableLayout& layout, const std::string& doing)
{
    // Where a damaged page leads to others twice, a small file seems to have rows without end.
    Statement query(engine, "SELECT rowid FROM " + Quoted(layout.listedTable) + " ORDER BY rowid", doing);
    RowIdOrder order;
    while (query.Step())
        order.Prove(query.WholeNumber(0), doing);
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
    // The file's own word for what is a table is not enough: the engine must be ready to read it as one.
    const Statement readable(engine, ReadStatement(layout), doing);
}

StoredRows ReadRows(sqlite3* engine, const TableLayout& layout, const std::string& doing)
{
    const int columns = layout.ColumnCount();
    if (layout.IsList())
        ProveOrder(engine, layout, doing);
    StoredRows read(columns);
    std::vector<Value> fields(layout.columns.size());
    std::vector<std::string> numbers(layout.columns.size());
    RowIdOrder order;
    Statement query(engine, ReadStatement(layout), doing);
    try {
        while (query.Step()) {
            const std::int64_t rowId = query.WholeNumber(0);
            if (!layout.IsList())
                order.Prove(rowId, doing);
            for (int column = 0; column < columns; ++column) {
                const auto place = static_cast<std::size_t>(column);
                fields[place] = query.Column(column + 1);
                if (layout.columns[place].type == "TEXT")
                    fields[place] = AsText(fields[place], numbers[place]);
            }
            read.Add(rowId, fields);
        }
    } catch (const std::length_error& failure) {
        throw Failure(doing, "its texts are too long", failure.what());
    }
    read.Shrink();
    return read;
}
