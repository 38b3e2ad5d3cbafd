#include "records/record_set.h"

#include "base/failure.h"
#include "records/database.h"
#include "records/row_order.h"
#include "records/row_reading.h"
#include "records/table.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

void RecordSet::Open(Database& owner, const TableLayout& tableLayout)
{
    Close();
    layout = tableLayout;
    ProveLayout(owner.engine.get(), layout, Doing("opened"));
    table = owner.TableOf(layout);
}

void RecordSet::Close()
{
    table.reset();
    rows.reset();
    order.reset();
    editing = Editing::No;
    current = -1;
}

std::string RecordSet::Doing(const char* failed) const
{
    return "The table " + layout.name + " could not be " + failed;
}

void RecordSet::ThrowNoRecord(const char* failed) const
{
    throw Failure(Doing(failed), "there is no current record", "record set at its start or end");
}

void RecordSet::Load()
{
    if (!rows)
        MoveFirst();
}

void RecordSet::Refresh()
{
    if (!table)
        throw Failure(Doing("read"), "the file is not open", "record set closed");
    if (rows == table->NewestRows())
        return;
    rows = table->Rows();
    if (layout.IsList())
        order = std::make_shared<std::vector<int>>(OrderRows(*rows, layout.orderedBy));
    orderedChanges = rows->Changed().size();
}

bool RecordSet::Bof()
{
    Load();
    return current < 0 || Count() == 0;
}

bool RecordSet::Eof()
{
    Load();
    return current >= Size() || Count() == 0;
}

int RecordSet::Count()
{
    Load();
    return order ? Size() : rows->Count();
}

void RecordSet::MoveFirst()
{
    Refresh();
    current = -1;
    Step(1);
}

void RecordSet::MoveLast()
{
    Refresh();
    current = Size();
    Step(-1);
}

void RecordSet::Step(int direction)
{
    do
        current += direction;
    while (IsWithin() && !OnRecord());
    current = std::clamp(current, -1, Size());
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
    const int direction = count < 0 ? -1 : 1;
    for (int moved = 0; moved != count && current >= -1 && current <= Size(); moved += direction)
        Step(direction);
}

bool RecordSet::MoveTo(const Bookmark& mark)
{
    for (MoveFirst(); IsWithin(); Step(1))
        if (rows->RowId(Place()) == mark.rowId && Mark() == mark)
            return true;
    return false;
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
    const Editing what = std::exchange(editing, Editing::No);
    if (what == Editing::CurrentRow) {
        table->Update(PlaceToChange(), edited);
    } else if (what == Editing::NewRow) {
        const bool first = Count() == 0;
        table->Insert(edited);
        if (first)
            MoveLast();
    }
}

void RecordSet::Delete()
{
    table->Delete(PlaceToChange());
}

int RecordSet::PlaceToChange()
{
    if (!OnRecord())
        ThrowNoRecord("changed");
    if (rows != table->Rows() && !MoveTo(Mark()))
        throw Failure(Doing("changed"), "another copy of the program has deleted the row meanwhile", "the row is gone");
    return Place();
}

void RecordSet::Requery()
{
    Refresh();
    if (const auto& changed = rows->Changed(); order && orderedChanges < changed.size()) {
        order = std::make_shared<std::vector<int>>(
            OrderAgain(*order, std::span(changed).subspan(orderedChanges), *rows, layout.orderedBy));
        orderedChanges = changed.size();
    }
    MoveFirst();
}

std::int64_t RecordSet::NextNumber()
{
    MoveLast();
    // Beyond this bound a foreign file's number could not be raised by one.
    constexpr double largest = 9007199254740990.0;
    return IsEmpty() ? 1 : static_cast<std::int64_t>(std::clamp(Number(0), -largest, largest)) + 1;
}

RecordList RecordSet::List()
{
    if (!order)
        return ListOf([](const RecordRow&) { return true; });
    MoveFirst();
    return {rows, order};
}

RecordList RecordSet::ListOf(const std::function<bool(const RecordRow&)>& chosen)
{
    std::vector<int> places;
    for (MoveFirst(); IsWithin(); Step(1))
        if (chosen(Row()))
            places.push_back(Place());
    return {rows, std::make_shared<std::vector<int>>(std::move(places))};
}

int RecordSet::CountOf(int position, std::int64_t number)
{
    Refresh();
    int count = 0;
    rows->Column(position).ForEachThatMayBe(number, [&](std::size_t row) {
        const int place = static_cast<int>(row);
        if (!rows->IsDeleted(place) && RecordRow(*rows, place).WholePart(position) == number)
            ++count;
    });
    return count;
}

void DeleteRecords(RecordSet& table, const std::vector<Bookmark>& marks)
{
    std::unordered_map<std::int64_t, double> wanted;
    for (const Bookmark& mark : marks)
        wanted[mark.rowId] = mark.number;
    for (table.MoveFirst(); !table.Eof(); table.MoveNext()) {
        const Bookmark mark = table.Mark();
        if (const auto found = wanted.find(mark.rowId); found != wanted.end() && found->second == mark.number)
            table.Delete();
    }
}
