#include "records/record_set.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "records/database.h"
#include "records/engine.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace {

std::string ColumnNames(const TableLayout& layout)
{
    std::string names;
    for (const ColumnLayout& column : layout.columns)
        names += (names.empty() ? "" : ", ") + Quoted(column.name);
    return names;
}

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

} // namespace

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
        ProveLayout();
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

void RecordSet::ProveLayout() const
{
    const std::string doing = Doing("opened");
    const char* const wanted = layout.IsList() ? "view" : "table";
    // A virtual table says that it is a table, but has no page of its own.
    Statement kind(database->engine,
                   "SELECT 1 FROM sqlite_master WHERE name = ?1 AND type = ?2 AND (rootpage > 0) = (type = 'table')",
                   doing);
    kind.Bind(1, Value(std::string_view(layout.name)));
    kind.Bind(2, Value(std::string_view(wanted)));
    if (!kind.Step())
        throw Failure(doing, "it is missing in the file", std::string("no such ") + wanted);
    Statement columns(database->engine, "PRAGMA table_xinfo(" + Quoted(layout.name) + ")", doing);
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
    const Statement readable(database->engine, ReadStatement(), doing);
}

std::string RecordSet::ReadStatement() const
{
    // A stored query is what its table holds, newest first. Its own text, which in a file of unknown origin may say
    // anything, is never run: the table is read in that order.
    return "SELECT rowid, " + ColumnNames(layout) + " FROM " +
           Quoted(layout.IsList() ? layout.listedTable : layout.name) + " ORDER BY " +
           (layout.IsList() ? layout.listOrder : "rowid");
}

void RecordSet::ProveOrder() const
{
    // Where a damaged page leads to others twice, a small file seems to have rows without end.
    Statement query(database->engine, "SELECT rowid FROM " + Quoted(layout.listedTable) + " ORDER BY rowid",
                    Doing("read"));
    RowIdOrder order;
    while (query.Step())
        order.Prove(query.WholeNumber(0), Doing("read"));
}

StoredRows RecordSet::ReadRows() const
{
    const int columns = layout.ColumnCount();
    if (layout.IsList())
        ProveOrder();
    StoredRows read(columns);
    std::vector<bool> isText;
    for (const ColumnLayout& column : layout.columns)
        isText.push_back(column.type == "TEXT");
    std::string number;
    RowIdOrder order;
    Statement query(database->engine, ReadStatement(), Doing("read"));
    try {
        while (query.Step()) {
            if (!layout.IsList())
                order.Prove(query.WholeNumber(0), Doing("read"));
            read.BeginRow(query.WholeNumber(0));
            for (int column = 0; column < columns; ++column) {
                const Value field = query.Column(column + 1);
                read.AddField(isText[static_cast<std::size_t>(column)] ? AsText(field, number) : field);
            }
        }
    } catch (const std::length_error& failure) {
        throw Failure(Doing("read"), "its texts are too long", failure.what());
    }
    return read;
}

void RecordSet::Load()
{
    if (loaded)
        return;
    if (database == nullptr)
        throw Failure(Doing("read"), "the file is not open", "record set closed");
    // The version is taken first: a change that comes between the two is then seen once more, not missed.
    loadedVersion = database->ChangesByOthers();
    rows = ReadRows();
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
        insertRow = std::make_unique<Statement>(database->engine,
                                                "INSERT INTO " + Quoted(layout.name) + " (" + ColumnNames(layout) +
                                                    ") VALUES (" + parameters + ")",
                                                Doing("changed"));
    }
    for (int column = 0; column < layout.ColumnCount(); ++column)
        insertRow->Bind(column + 1, edited[static_cast<std::size_t>(column)]);
    insertRow->Step();
    insertRow->Reset();
    const bool first = Count() == 0;
    rows.BeginRow(sqlite3_last_insert_rowid(database->engine));
    for (const Value& value : edited)
        rows.AddField(value);
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
            database->engine,
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
    if (sqlite3_changes(database->engine) == 0)
        throw Failure(Doing("changed"), "another copy of the program has deleted the row meanwhile", "no row changed");
    rows.Replace(current, edited);
}

void RecordSet::Delete()
{
    if (!OnRecord())
        throw Failure(Doing("changed"), "there is no current record", "record set at its start or end");
    if (!deleteRow)
        deleteRow = std::make_unique<Statement>(database->engine,
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

void RecordSet::TakeBackChanges()
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
