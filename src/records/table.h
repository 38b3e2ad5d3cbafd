#pragma once

#include "records/statement.h"
#include "records/stored_rows.h"
#include "records/table_layout.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The names of all columns, quoted and separated by commas.
std::string ColumnNames(const TableLayout& layout);

/// Proves that the file holds a table or stored query of this name, of that kind and with exactly these columns. Throws
/// Failure with the given clause.
void ProveLayout(sqlite3* engine, const TableLayout& layout, const std::string& doing);

/// One table of an open file, with its rows in memory, which all record sets on it and on its stored query share. They
/// are read once; every change is on disk before its call returns. What reads or changes throws Failure.
class Table
{
public:
    /// Takes a table whose layout is proved, after proving that the engine is ready to read it.
    Table(sqlite3* owner, TableLayout tableLayout);

    /// The rows, read anew where another copy of the program has changed the file since they were.
    const std::shared_ptr<StoredRows>& NewestRows();

    void Insert(const std::vector<FieldValue>& fields);
    /// Changes or deletes the row that has this place among the newest rows.
    void Update(int place, const std::vector<FieldValue>& fields);
    void Delete(int place);

    /// What is changed from here on can be taken back in memory too.
    void BeginChanges();
    void TakeBackChanges();

private:
    std::string Doing(const char* failed) const { return "The table " + layout.name + " could not be " + failed; }
    std::string Selection() const;
    std::shared_ptr<StoredRows> ReadRows();
    std::int64_t NextRowId() const;

    sqlite3* engine;
    TableLayout layout;
    std::shared_ptr<StoredRows> rows;
    /// The engine's count of other connections' changes when the rows were read.
    std::int64_t readVersion = 0;
    Statement currentVersion;
    std::optional<Statement> insertRow;
    std::optional<Statement> deleteRow;
};
