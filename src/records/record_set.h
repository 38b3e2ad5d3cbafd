#pragma once

#include "base/failure.h"
#include "records/record_row.h"
#include "records/table_layout.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class Database;
class Table;

/// The rows of one table or stored query, with a current record. The rows are read once, when they are first asked for,
/// and held in memory, so that a walk costs no query; every change is on disk before its call returns. A change by
/// another copy of the program is seen at the next move to the first or last row; a list shows the own program's
/// changes after a requery, and deleted rows keep their place until then. All operations that read or write throw
/// Failure.
class RecordSet
{
public:
    /// Opens a table or stored query, after proving that it is of that kind and has exactly these columns. No row is
    /// read yet. Throws Failure.
    void Open(Database& owner, const TableLayout& tableLayout);

    /// At-start and at-end: before the first and after the last record. Both are true only when there are no rows.
    bool Bof();
    bool Eof();
    bool IsEmpty() { return Bof() && Eof(); }
    /// The number of rows.
    int Count();

    void MoveFirst();
    void MoveLast();
    void MoveNext() { Step(1); }
    void MovePrevious() { Step(-1); }
    /// Moves by a number of rows, backwards when it is negative; a move past either end stops just outside it.
    void Move(int count);
    /// Moves to the row of a bookmark; false, and at the end, when another copy of the program has deleted it.
    bool MoveTo(const Bookmark& mark);

    /// The current record, for reading. Throws Failure where there is none.
    RecordRow Row() const;
    /// A function that reads a row is given the current one.
    operator RecordRow() const { return Row(); }
    Bookmark Mark() const { return Row().Mark(); }
    double Number(int position) const { return Row().Number(position); }
    std::string_view Text(int position) const { return Row().Text(position); }

    /// Begin a new row, or the change of the current one; SetField fills it, Update stores it. The current record stays
    /// where it is, and fields that are not set stay as they are.
    void AddNew();
    void Edit();
    void SetField(int position, double number) { edited.push_back({position, false, number, {}}); }
    void SetField(int position, std::string_view text) { edited.push_back({position, true, 0, std::string(text)}); }
    void Update();

    /// Deletes the current record; the next move goes to its neighbour. A row that another copy of the program has
    /// deleted already is no failure.
    void Delete();

    /// Shows what has been changed, and moves to the first row.
    void Requery();

    /// The number that a new row gets: that of the last row plus 1, or 1. To be called inside a transaction.
    std::int64_t NextNumber();

    /// The rows of a list, after a move to the first one, in their order.
    RecordList List();
    /// The rows for which `chosen`, which is given a RecordRow, is true.
    template <typename Chosen>
    RecordList ListOf(Chosen chosen)
    {
        std::vector<int> places;
        for (MoveFirst(); IsWithin(); Step(1))
            if (chosen(Row()))
                places.push_back(Place());
        return {rows, std::make_shared<std::vector<int>>(std::move(places))};
    }
    /// In how many rows of a table a column of numbers holds this one, in one pass over the column.
    int CountOf(int position, double number);

private:
    int Size() const { return order ? static_cast<int>(order->size()) : rows->Places(); }
    /// The place of the current record among the table's rows.
    int Place() const { return order ? (*order)[static_cast<std::size_t>(current)] : current; }
    bool IsWithin() const { return current >= 0 && current < Size(); }
    bool OnRecord() const { return rows && IsWithin() && (order || !rows->IsDeleted(current)); }
    Failure Trouble(const char* failed, const char* reason) const;
    Table& OpenTable() const;
    void Refresh();
    void PutInOrder();
    void Step(int direction);
    bool IsStillThere();

    TableLayout layout;
    /// The database's own, which is gone when that is closed.
    std::weak_ptr<Table> table;
    std::shared_ptr<const StoredRows> rows;
    /// The order of a stored query, and how many places it has seen; a table's rows stand in their own order.
    std::shared_ptr<const std::vector<int>> order;
    int orderedPlaces = 0;
    int current = -1;

    bool addsRow = false;
    std::vector<FieldValue> edited;
};

/// Deletes the rows in one pass over the table; one that is gone already is no failure. Throws Failure; to be called
/// inside a transaction.
void DeleteRecords(RecordSet& table, const std::vector<Bookmark>& marks);
