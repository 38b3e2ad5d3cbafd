#pragma once

#include "records/record_row.h"
#include "records/table_layout.h"

#include <functional>
#include <memory>
#include <string>
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
    void Close();

    /// At-start and at-end: before the first and after the last record. Both are true only when there are no rows.
    bool Bof();
    bool Eof();
    bool IsEmpty() { return Bof() && Eof(); }
    /// The number of rows.
    int Count();

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// Moves by a number of rows, backwards when it is negative; a move past either end stops just outside it.
    void Move(int count);
    /// Moves to the row of a bookmark; false, and at the end, when another copy of the program has deleted it.
    bool MoveTo(const Bookmark& mark);

    /// The current record, for reading. Throws Failure where there is none.
    RecordRow Row() const
    {
        if (!OnRecord())
            ThrowNoRecord("read");
        return {*rows, Place()};
    }
    /// A function that reads a row is given the current one.
    operator RecordRow() const { return Row(); }
    Bookmark Mark() const { return Row().Mark(); }
    Value Field(int position) const { return Row().Field(position); }
    bool WholeNumber(int position, std::int64_t& number) const { return Row().WholeNumber(position, number); }
    double Number(int position) const { return Row().Number(position); }
    std::string_view Text(int position) const { return Row().Text(position); }

    /// Begin a new row, or the change of the current one; SetField fills it, Update stores it. Texts given to SetField
    /// are copied. The current record stays where it is.
    void AddNew();
    void Edit();
    void SetField(int position, const Value& value);
    void Update();

    /// Deletes the current record; the next move goes to its neighbour. A row that another copy of the program has
    /// deleted already is no failure.
    void Delete();

    /// Shows what has been changed, and moves to the first row.
    void Requery();

    /// The number that a new row gets: that of the last row plus 1, or 1. To be called inside a transaction.
    std::int64_t NextNumber();

    /// The rows, after a move to the first one, in their order; or those of them that are chosen.
    RecordList List();
    RecordList ListOf(const std::function<bool(const RecordRow&)>& chosen);
    /// In how many rows of a table the field has this whole part, in one pass over its column.
    int CountOf(int position, std::int64_t number);

private:
    enum class Editing
    {
        No,
        NewRow,
        CurrentRow
    };

    int Size() const { return order ? static_cast<int>(order->size()) : rows->Places(); }
    /// The place of the current record among the table's rows.
    int Place() const { return order ? (*order)[static_cast<std::size_t>(current)] : current; }
    bool IsWithin() const { return current >= 0 && current < Size(); }
    bool OnRecord() const { return rows && IsWithin() && (order || !rows->IsDeleted(current)); }
    [[noreturn]] void ThrowNoRecord(const char* failed) const;
    std::string Doing(const char* failed) const;
    void Load();
    void Refresh();
    void Step(int direction);
    int PlaceToChange();

    TableLayout layout;
    std::shared_ptr<Table> table;
    std::shared_ptr<const StoredRows> rows;
    /// The order of a stored query, and how many changes of the rows are in it; a table's rows stand in their own
    /// order.
    std::shared_ptr<const std::vector<int>> order;
    std::size_t orderedChanges = 0;
    int current = -1;

    Editing editing = Editing::No;
    std::vector<Value> edited;
    std::vector<std::string> editedTexts;
};

/// Deletes the rows in one pass over the table; one that is gone already is no failure. Throws Failure; to be called
/// inside a transaction.
void DeleteRecords(RecordSet& table, const std::vector<Bookmark>& marks);
