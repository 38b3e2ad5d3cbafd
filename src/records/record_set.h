#pragma once

#include "records/bookmark.h"
#include "records/database.h"
#include "records/stored_rows.h"
#include "records/table_layout.h"
#include "records/value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Statement;

/// The rows of one table or stored query, with a current record. The rows are read once, when they are first asked for,
/// and held in memory in their own order, so that a walk costs no query; every change is on disk before its call
/// returns. A change by another copy of the program is seen at the next move to the first or last row; a list shows the
/// own program's changes after a requery. All operations that read or write throw Failure.
class RecordSet final : private DatabaseObserver
{
public:
    RecordSet();
    ~RecordSet() override;

    /// Opens a table or stored query, after proving that it is of that kind and has exactly these columns. No row is
    /// read yet. Throws Failure.
    void Open(Database& owner, const TableLayout& tableLayout);
    void Close();

    /// At-start and at-end: before the first and behind the last record. Both are true only when there are no rows.
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
    void Move(int rows);

    /// The bookmark of the current record.
    Bookmark Mark() const;
    /// Moves to the row of a bookmark; false, and at the end, when another copy of the program has deleted it.
    bool MoveTo(const Bookmark& mark);

    /// The field at a position of the current record, counted from 0. Texts live until the rows change.
    Value Field(int position) const;
    /// The same field as a number: a text by its leading number, nothing as 0.
    double Number(int position) const;
    /// Puts the same field into `number` where it holds a whole number; otherwise false.
    bool WholeNumber(int position, std::int64_t& number) const
    {
        return OnRecord() && rows.WholeNumber(current, position, number);
    }
    /// The same field as a text; in a column of texts a number of a foreign file has become one. Empty otherwise.
    std::string_view Text(int position) const;
    /// Whether the field at a position holds a flag that is set.
    bool Flag(int position) const { return Number(position) != 0; }

    /// Begin a new row, or the change of the current one; SetField fills it, Update stores it. Texts given to SetField
    /// are copied. The current record stays where it is.
    void AddNew();
    void Edit();
    void SetField(int position, const Value& value);
    void Update();

    /// Deletes the current record; the next move goes to its neighbour. A row that another copy of the program has
    /// deleted already is no failure.
    void Delete();

    /// Reads the rows anew and moves to the first.
    void Requery();

    /// The number that a new row gets: that of the last row plus 1, or 1. It must be asked for inside a transaction.
    std::int64_t NextNumber();

private:
    enum class Editing
    {
        No,
        NewRow,
        CurrentRow
    };

    bool OnRecord() const { return loaded && current >= 0 && current < rows.Places() && !rows.IsDeleted(current); }
    void Load();
    void Refresh();
    void Step(int direction);
    void DatabaseCloses() override { Close(); }
    void ChangesKept() override { changed = false; }
    void ChangesTakenBack() override;
    void StoreNewRow();
    void StoreCurrentRow();
    std::string Doing(const char* failed) const;
    double OtherNumber(int position) const;

    Database* database = nullptr;
    TableLayout layout;
    StoredRows rows;
    std::int64_t loadedVersion = 0;
    bool loaded = false;
    bool changed = false;
    int current = -1;

    Editing editing = Editing::No;
    std::vector<Value> edited;
    std::vector<std::string> editedTexts;
    std::unique_ptr<Statement> insertRow;
    std::unique_ptr<Statement> updateRow;
    std::unique_ptr<Statement> deleteRow;
};

// In the header, for nearly every field that a walk reads is a whole number.
inline double RecordSet::Number(int position) const
{
    std::int64_t whole = 0;
    return WholeNumber(position, whole) ? static_cast<double>(whole) : OtherNumber(position);
}
