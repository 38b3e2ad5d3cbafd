#include "records/table.h"

#include "base/failure.h"

#include <chrono>
#include <limits>
#include <malloc.h>

namespace {

void BindField(Statement& statement, int parameter, const FieldValue& field)
{
    if (field.isText)
        statement.Bind(parameter, field.text);
    else
        statement.Bind(parameter, field.number);
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
    kind.Bind(1, layout.name);
    kind.Bind(2, wanted);
    if (!kind.Step())
        throw Failure(doing, "it is missing in the file", std::string("no such ") + wanted);
    Statement columns(engine, "PRAGMA table_xinfo(" + Quoted(layout.name) + ")", doing);
    constexpr int nameColumn = 1;
    constexpr int hiddenColumn = 6;
    std::size_t found = 0;
    bool same = true;
    for (; columns.Step(); ++found)
        same = same && found < layout.columns.size() && columns.Text(nameColumn) == layout.columns[found].name &&
               columns.WholeNumber(hiddenColumn) == 0;
    if (!same || found != layout.columns.size())
        throw Failure(doing, "its columns are not as this program made them", std::to_string(found) + " columns");
}

Table::Table(sqlite3* owner, TableLayout tableLayout)
    : engine(owner), layout(std::move(tableLayout)), currentVersion(engine, "PRAGMA data_version", Doing("read"))
{
    // The file's own word for what is a table is not enough: the engine must be ready to read it as one.
    const Statement readable(engine, Selection(), Doing("opened"));
}

std::string Table::Selection() const
{
    return "SELECT rowid, " + ColumnNames(layout) + " FROM " + Quoted(layout.name) + " ORDER BY rowid";
}

const std::shared_ptr<StoredRows>& Table::NewestRows()
{
    // The version is taken first: a change that comes between the two is then seen once more, not missed.
    currentVersion.Step();
    const std::int64_t version = currentVersion.WholeNumber(0);
    currentVersion.Reset();
    if (!rows || version != readVersion) {
        rows = ReadRows();
        readVersion = version;
    }
    return rows;
}

std::shared_ptr<StoredRows> Table::ReadRows()
{
    auto read = std::make_shared<StoredRows>(layout);
    const int columns = static_cast<int>(layout.columns.size());
    Statement query(engine, Selection(), Doing("read"));
    // Rows of a crafted file may share one text, so that it holds far more of them than it has bytes.
    std::size_t textRoom = std::size_t{64} * 1024 * 1024;
    while (query.Step()) {
        const std::int64_t rowId = query.WholeNumber(0);
        // Where a damaged page leads to others twice, a small file seems to have rows without end.
        if (read->Places() > 0 && rowId <= read->RowId(read->Places() - 1))
            throw Failure(Doing("read"), "the file is damaged or is not one of this program's files",
                          "rows out of order");
        const int place = read->Append(rowId);
        for (int column = 0; column < columns; ++column) {
            if (query.IsNumber(column + 1)) {
                read->Put(place, column, query.Number(column + 1));
                continue;
            }
            const std::string_view text = query.Text(column + 1);
            if (text.size() > textRoom)
                throw Failure(Doing("read"), "their texts are too long", "more than 64 MiB of text");
            textRoom -= text.size();
            read->Put(place, column, text);
        }
    }
    read->Shrink();
    // What the engine keeps of the file is not asked for again, and reading leaves gaps that nothing else fills.
    sqlite3_db_release_memory(engine);
    malloc_trim(0);
    return read;
}

/// Rises with the time, so that no copy of the program gives a row the number of one that another copy has deleted.
std::int64_t Table::NextRowId() const
{
    using namespace std::chrono;
    const std::int64_t now = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
    const std::int64_t last = rows->Places() == 0 ? 0 : rows->RowId(rows->Places() - 1);
    return last < now ? now : last == std::numeric_limits<std::int64_t>::max() ? last : last + 1;
}

void Table::Insert(const std::vector<FieldValue>& fields)
{
    if (!insertRow) {
        std::string parameters = "?1";
        for (std::size_t column = 1; column <= layout.columns.size(); ++column)
            parameters += ", ?" + std::to_string(column + 1);
        insertRow.emplace(engine,
                          "INSERT INTO " + Quoted(layout.name) + " (rowid, " + ColumnNames(layout) + ") VALUES (" +
                              parameters + ")",
                          Doing("changed"));
    }
    insertRow->Bind(1, NextRowId());
    for (const FieldValue& field : fields)
        BindField(*insertRow, field.position + 2, field);
    insertRow->Step();
    insertRow->Reset();
    rows->Add(sqlite3_last_insert_rowid(engine), fields);
}

void Table::Update(int place, const std::vector<FieldValue>& fields)
{
    if (fields.empty())
        return;
    std::string assignments;
    for (const FieldValue& field : fields)
        assignments += (assignments.empty() ? "" : ", ") +
                       Quoted(layout.columns.at(static_cast<std::size_t>(field.position)).name) + " = ?";
    Statement update(engine, "UPDATE " + Quoted(layout.name) + " SET " + assignments + " WHERE rowid = ?",
                     Doing("changed"));
    int parameter = 0;
    for (const FieldValue& field : fields)
        BindField(update, ++parameter, field);
    update.Bind(++parameter, rows->RowId(place));
    update.Step();
    rows->Replace(place, fields);
}

void Table::Delete(int place)
{
    if (!deleteRow)
        deleteRow.emplace(engine, "DELETE FROM " + Quoted(layout.name) + " WHERE rowid = ?", Doing("changed"));
    deleteRow->Bind(1, rows->RowId(place));
    deleteRow->Step();
    deleteRow->Reset();
    rows->Delete(place);
}

void Table::BeginChanges()
{
    if (rows)
        rows->BeginChanges();
}

void Table::TakeBackChanges()
{
    if (!rows)
        return;
    rows->TakeBackChanges();
    // A list that was put into order meanwhile must not keep that order.
    rows = std::make_shared<StoredRows>(*rows);
}
