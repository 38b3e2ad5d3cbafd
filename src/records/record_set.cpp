#include "records/record_set.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "records/row_reading.h"
#include "records/statement.h"

#include <algorithm>

RecordSet::RecordSet() = default;

RecordSet::~RecordSet()
{
    Close();
}

void RecordSet::Open(Database& owner, const TableLayout& tableLayout)
{
    Close();
    database = &owner;
    layout = tableLayout;
    try {
        ProveLayout(owner.engine.get(), layout, Doing("opened"));
    } catch (...) {
        database = nullptr;
        throw;
    }
    owner.Register(this);
}

void RecordSet::Close()
{
    if (database != nullptr)
        database->Unregister(this);
    database = nullptr;
    insertRow.reset();
    updateRow.reset();
    deleteRow.reset();
    rows = {};
    loaded = false;
    changed = false;
    editing = Editing::No;
    current = -1;
}

std::string RecordSet::Doing(const char* failed) const
{
    return "The table " + layout.name + " could not be " + failed;
}

void RecordSet::Load()
{
    if (loaded)
        return;
    if (database == nullptr)
        throw Failure(Doing("read"), "the file is not open", "record set closed");
    // The version is taken first: a change that comes between the two is then seen once more, not missed.
    loadedVersion = database->ChangesByOthers();
    rows = ReadRows(database->engine.get(), layout, Doing("read"));
    loaded = true;
    current = rows.Places() == 0 ? -1 : 0;
}

void RecordSet::Refresh()
{
    if (loaded && database != nullptr && database->ChangesByOthers() != loadedVersion)
        loaded = false;
    Load();
    rows.DropDeleted();
}

bool RecordSet::Bof()
{
    Load();
    return current < 0 || rows.Count() == 0;
}

bool RecordSet::Eof()
{
    Load();
    return current >= rows.Places() || rows.Count() == 0;
}

int RecordSet::Count()
{
    Load();
    return rows.Count();
}

void RecordSet::MoveFirst()
{
    Refresh();
    current = rows.Places() == 0 ? -1 : 0;
}

void RecordSet::MoveLast()
{
    Refresh();
    current = rows.Places() - 1;
}

void RecordSet::Step(int direction)
{
    do
        current += direction;
    while (current >= 0 && current < rows.Places() && rows.IsDeleted(current));
    current = std::clamp(current, -1, rows.Places());
}

void RecordSet::MoveNext()
{
    Load();
    Step(1);
}

void RecordSet::MovePrevious()
{
    Load();
    Step(-1);
}

void RecordSet::Move(int count)
{
    Load();
    if (!rows.HasDeleted()) {
        current = static_cast<int>(std::clamp<std::int64_t>(std::int64_t{current} + count, -1, rows.Places()));
        return;
    }
    const int direction = count < 0 ? -1 : 1;
    for (int moved = 0; moved != count && current >= -1 && current <= rows.Places(); moved += direction)
        Step(direction);
}

Bookmark RecordSet::Mark() const
{
    const double number = Number(0);
    return {rows.RowId(current), number};
}

bool RecordSet::MoveTo(const Bookmark& mark)
{
    Refresh();
    const int found = rows.PlaceOf(mark.rowId);
    current = found < 0 ? rows.Places() : found;
    if (found >= 0 && !(Mark() == mark))
        current = rows.Places();
    return current < rows.Places();
}

Value RecordSet::Field(int position) const
{
    if (!OnRecord())
        throw Failure(Doing("read"), "there is no current record", "record set at its start or end");
    return rows.Read(current, position);
}

double RecordSet::OtherNumber(int position) const
{
    const Value value = Field(position);
    if (const auto* real = std::get_if<double>(&value))
        return *real;
    const auto* text = std::get_if<std::string_view>(&value);
    return text == nullptr ? 0 : NumericValue(*text);
}

std::string_view RecordSet::Text(int position) const
{
    const Value value = Field(position);
    const auto* text = std::get_if<std::string_view>(&value);
    return text == nullptr ? std::string_view() : *text;
}

void RecordSet::AddNew()
{
    Load();
    editing = Editing::NewRow;
    edited.assign(layout.columns.size(), Value());
    editedTexts.assign(layout.columns.size(), {});
}

void RecordSet::Edit()
{
    AddNew();
    editing = Editing::CurrentRow;
    for (int position = 0; position < layout.ColumnCount(); ++position)
        SetField(position, Field(position));
}

void RecordSet::SetField(int position, const Value& value)
{
    const auto place = static_cast<std::size_t>(position);
    edited.at(place) = value;
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        editedTexts.at(place) = *text;
        edited[place] = std::string_view(editedTexts[place]);
    }
}

void RecordSet::Update()
{
    // From here on a failure may leave the rows half changed, and they are read anew when the change is taken back.
    changed = database->inTransaction;
    if (editing == Editing::NewRow)
        StoreNewRow();
    else if (editing == Editing::CurrentRow)
        StoreCurrentRow();
    editing = Editing::No;
}

void RecordSet::StoreNewRow()
{
    if (!insertRow) {
        std::string parameters = "?1";
        for (int column = 2; column <= layout.ColumnCount(); ++column)
            parameters += ", ?" + std::to_string(column);
        insertRow = std::make_unique<Statement>(database->engine.get(),
                                                "INSERT INTO " + Quoted(layout.name) + " (" + ColumnNames(layout) +
                                                    ") VALUES (" + parameters + ")",
                                                Doing("changed"));
    }
    for (int column = 0; column < layout.ColumnCount(); ++column)
        insertRow->Bind(column + 1, edited[static_cast<std::size_t>(column)]);
    insertRow->Step();
    insertRow->Reset();
    const bool first = Count() == 0;
    rows.Add(sqlite3_last_insert_rowid(database->engine.get()), edited);
    if (first)
        current = rows.Places() - 1;
}

void RecordSet::StoreCurrentRow()
{
    const auto columns = static_cast<std::size_t>(layout.ColumnCount());
    if (!OnRecord())
        throw Failure(Doing("changed"), "there is no current record", "record set at its start or end");
    if (!updateRow) {
        std::string assignments;
        for (std::size_t column = 0; column < columns; ++column)
            assignments +=
                (column == 0 ? "" : ", ") + Quoted(layout.columns[column].name) + " = ?" + std::to_string(column + 1);
        const std::string number = std::to_string(columns + 1);
        // Another copy may have deleted the row and given its place to a new one; the number tells them apart.
        updateRow = std::make_unique<Statement>(
            database->engine.get(),
            "UPDATE " + Quoted(layout.name) + " SET " + assignments + " WHERE rowid = ?" + number + " AND " +
                Quoted(layout.columns[0].name) + " IS ?" + std::to_string(columns + 2),
            Doing("changed"));
    }
    for (std::size_t column = 0; column < columns; ++column)
        updateRow->Bind(static_cast<int>(column) + 1, edited[column]);
    updateRow->Bind(static_cast<int>(columns) + 1, rows.RowId(current));
    updateRow->Bind(static_cast<int>(columns) + 2, Field(0));
    updateRow->Step();
    updateRow->Reset();
    if (sqlite3_changes(database->engine.get()) == 0)
        throw Failure(Doing("changed"), "another copy of the program has deleted the row meanwhile", "no row changed");
    rows.Replace(current, edited);
}

void RecordSet::Delete()
{
    if (!OnRecord())
        throw Failure(Doing("changed"), "there is no current record", "record set at its start or end");
    if (!deleteRow)
        deleteRow = std::make_unique<Statement>(database->engine.get(),
                                                "DELETE FROM " + Quoted(layout.name) + " WHERE rowid = ?1 AND " +
                                                    Quoted(layout.columns[0].name) + " IS ?2",
                                                Doing("changed"));
    changed = database->inTransaction;
    deleteRow->Bind(1, rows.RowId(current));
    deleteRow->Bind(2, Field(0));
    deleteRow->Step();
    deleteRow->Reset();
    rows.Delete(current);
}

void RecordSet::Requery()
{
    loaded = false;
    Load();
}

std::int64_t RecordSet::NextNumber()
{
    MoveLast();
    // Beyond this bound a foreign file's number could not be raised by one.
    constexpr double largest = 9007199254740990.0;
    return IsEmpty() ? 1 : static_cast<std::int64_t>(std::clamp(Number(0), -largest, largest)) + 1;
}

void RecordSet::ChangesTakenBack()
{
    if (!changed)
        return;
    changed = false;
    editing = Editing::No;
    const int place = current;
    const bool onRow = loaded && place >= 0 && place < rows.Places();
    const std::int64_t rowId = onRow ? rows.RowId(place) : 0;
    loaded = false;
    try {
        Load();
    } catch (const Failure&) {
        // The rows are read anew, and the failure told, when they are next asked for.
        return;
    }
    const int found = onRow ? rows.PlaceOf(rowId) : -1;
    current = found >= 0 ? found : std::clamp(place, -1, rows.Places());
}
