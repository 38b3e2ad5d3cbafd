#pragma once

#include "records/statement.h"
#include "records/stored_rows.h"
#include "records/table_layout.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// One table of an open file, with its rows in memory, which all record sets on it and on its stored query share. They
/// are read once; every change is on disk before its call returns. What reads or changes throws Failure.
class Table
{
public:
    Table(sqlite3* owner, TableLayout tableLayout);

    /// From now on there is no file any more.
    void Close();

    /// The rows, read now if they have not been.
    const std::shared_ptr<StoredRows>& Rows();
    /// The rows, read anew where another copy of the program has changed the file since they were.
    const std::shared_ptr<StoredRows>& NewestRows();

    void Insert(const std::vector<Value>& values);
    /// Where another copy of the program has deleted the row, the change of it is a failure, its deletion is not.
    void Update(int place, const std::vector<Value>& values);
    void Delete(int place);

    /// The changes since the last transaction stay in memory as well, or are taken back.
    void KeepChanges();
    void TakeBackChanges();

private:
    std::string Doing(const char* failed) const;
    std::int64_t Version();
    std::vector<Cell> Cells(const std::vector<Value>& values);

    sqlite3* engine;
    TableLayout layout;
    std::shared_ptr<StoredRows> rows;
    /// The engine's count of other connections' changes when the rows were read.
    std::int64_t readVersion = 0;
    std::unique_ptr<Statement> versionQuery;
    std::unique_ptr<Statement> insertRow;
    std::unique_ptr<Statement> updateRow;
    std::unique_ptr<Statement> deleteRow;
};
