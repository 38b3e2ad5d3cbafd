#include "records/table.h"

#include "base/failure.h"
#include "records/row_reading.h"

#include <stdexcept>

Table::Table(sqlite3* owner, TableLayout tableLayout) : engine(owner), layout(std::move(tableLayout)) {}

void Table::Close()
{
    for (auto* statement : {&versionQuery, &insertRow, &updateRow, &deleteRow})
        statement->reset();
    rows.reset();
    engine = nullptr;
}

std::string Table::Doing(const char* failed) const
{
    return "The table " + layout.name + " could not be " + failed;
}

std::int64_t Table::Version()
{
    if (engine == nullptr)
        throw Failure(Doing("read"), "the file is not open", "record set closed");
    if (!versionQuery)
        versionQuery = std::make_unique<Statement>(engine, "PRAGMA data_version", Doing("read"));
    versionQuery->Step();
    const std::int64_t version = versionQuery->WholeNumber(0);
    versionQuery->Reset();
    return version;
}

const std::shared_ptr<StoredRows>& Table::Rows()
{
    return rows ? rows : NewestRows();
}

const std::shared_ptr<StoredRows>& Table::NewestRows()
{
    // The version is taken first: a change that comes between the two is then seen once more, not missed.
    if (const std::int64_t version = Version(); !rows || version != readVersion) {
        rows = std::make_shared<StoredRows>(ReadRows(engine, layout, Doing("read")));
        readVersion = version;
    }
    return rows;
}

std::vector<Cell> Table::Cells(const std::vector<Value>& values)
{
    try {
        return Rows()->Keep(values);
    } catch (const std::length_error& failure) {
        throw Failure(Doing("changed"), "its texts are too long", failure.what());
    }
}

void Table::Insert(const std::vector<Value>& values)
{
    if (!insertRow) {
        std::string parameters = "?1";
        for (int column = 2; column <= layout.ColumnCount(); ++column)
            parameters += ", ?" + std::to_string(column);
        insertRow = std::make_unique<Statement>(
            engine, "INSERT INTO " + Quoted(layout.name) + " (" + ColumnNames(layout) + ") VALUES (" + parameters + ")",
            Doing("changed"));
    }
    const std::vector<Cell> cells = Cells(values);
    insertRow->BindAll(values);
    insertRow->Step();
    insertRow->Reset();
    rows->Add(sqlite3_last_insert_rowid(engine), cells);
}

void Table::Update(int place, const std::vector<Value>& values)
{
    const int columns = layout.ColumnCount();
    if (!updateRow) {
        std::string assignments;
        for (int column = 1; column <= columns; ++column)
            assignments += (column == 1 ? "" : ", ") +
                           Quoted(layout.columns[static_cast<std::size_t>(column) - 1].name) + " = ?" +
                           std::to_string(column);
        // Another copy may have deleted the row and given its place to a new one; the number tells them apart.
        updateRow = std::make_unique<Statement>(
            engine,
            "UPDATE " + Quoted(layout.name) + " SET " + assignments + " WHERE rowid = ?" + std::to_string(columns + 1) +
                " AND " + Quoted(layout.columns[0].name) + " IS ?" + std::to_string(columns + 2),
            Doing("changed"));
    }
    const std::vector<Cell> cells = Cells(values);
    updateRow->BindAll(values);
    updateRow->Bind(columns + 1, rows->RowId(place));
    updateRow->Bind(columns + 2, rows->Read(place, 0));
    updateRow->Step();
    updateRow->Reset();
    if (sqlite3_changes(engine) == 0)
        throw Failure(Doing("changed"), "another copy of the program has deleted the row meanwhile", "no row changed");
    rows->Replace(place, cells);
}

void Table::Delete(int place)
{
    if (!deleteRow)
        deleteRow = std::make_unique<Statement>(engine,
                                                "DELETE FROM " + Quoted(layout.name) + " WHERE rowid = ?1 AND " +
                                                    Quoted(layout.columns[0].name) + " IS ?2",
                                                Doing("changed"));
    deleteRow->Bind(1, Rows()->RowId(place));
    deleteRow->Bind(2, rows->Read(place, 0));
    deleteRow->Step();
    deleteRow->Reset();
    rows->Delete(place);
}

void Table::KeepChanges()
{
    if (rows)
        rows->KeepChanges();
}

void Table::TakeBackChanges()
{
    if (rows)
        rows->TakeBackChanges();
}
