#include "records/record_set.h"

#include "records/database.h"
#include "records/table.h"

#include <algorithm>
#include <compare>
#include <unordered_map>

namespace {

const char* const DeletedMeanwhile = "another copy of the program has deleted the row meanwhile";

} // namespace

void RecordSet::Open(Database& owner, const TableLayout& tableLayout)
{
    *this = RecordSet();
    layout = tableLayout;
    table = owner.TableOf(layout);
}

Failure RecordSet::Trouble(const char* failed, const char* reason) const
{
    return {"The table " + layout.name + " could not be " + failed, reason, "record set"};
}

Table& RecordSet::OpenTable() const
{
    if (const auto opened = table.lock())
        return *opened;
    throw Trouble("read", "the file is not open");
}

RecordRow RecordSet::Row() const
{
    if (!OnRecord())
        throw Trouble("read", "there is no current record");
    return {*rows, Place()};
}

void RecordSet::Refresh()
{
    const std::shared_ptr<const StoredRows> newest = OpenTable().NewestRows();
    if (rows == newest)
        return;
    rows = newest;
    order.reset();
    orderedPlaces = 0;
    if (layout.IsList())
        PutInOrder();
}

void RecordSet::PutInOrder()
{
    // Where all fields are equal, the row that was added first comes first.
    const auto before = [this](int place, int other) {
        for (const int column : layout.orderedBy)
            if (const auto difference = rows->Compare(place, other, column); std::is_neq(difference))
                return std::is_gt(difference);
        return place < other;
    };
    std::vector<int> places;
    for (int place = rows->Places() - 1; place >= orderedPlaces; --place)
        places.push_back(place);
    // Most rows are added as time goes on, so that there is often nothing to sort.
    if (!std::is_sorted(places.begin(), places.end(), before))
        std::sort(places.begin(), places.end(), before);
    const auto added = std::ssize(places);
    if (order)
        places.insert(places.end(), order->begin(), order->end());
    std::inplace_merge(places.begin(), places.begin() + added, places.end(), before);
    std::erase_if(places, [this](int place) { return rows->IsDeleted(place); });
    order = std::make_shared<std::vector<int>>(std::move(places));
    orderedPlaces = rows->Places();
}

bool RecordSet::Bof()
{
    return Count() == 0 || current < 0;
}

bool RecordSet::Eof()
{
    return Count() == 0 || current >= Size();
}

int RecordSet::Count()
{
    if (!rows)
        MoveFirst();
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
    if (!rows)
        MoveFirst();
    do
        current += direction;
    while (IsWithin() && !OnRecord());
    current = std::clamp(current, -1, Size());
}

void RecordSet::Move(int count)
{
    for (int moved = 0; moved < std::abs(count); ++moved)
        Step(count < 0 ? -1 : 1);
}

bool RecordSet::MoveTo(const Bookmark& mark)
{
    for (MoveFirst(); IsWithin(); Step(1))
        if (Mark() == mark)
            return true;
    return false;
}

void RecordSet::AddNew()
{
    edited.clear();
    addsRow = true;
}

void RecordSet::Edit()
{
    edited.clear();
    addsRow = false;
}

void RecordSet::Update()
{
    if (!addsRow) {
        if (!IsStillThere())
            throw Trouble("changed", DeletedMeanwhile);
        OpenTable().Update(Place(), edited);
        return;
    }
    const bool first = Count() == 0;
    OpenTable().Insert(edited);
    if (first)
        MoveLast();
}

void RecordSet::Delete()
{
    if (IsStillThere())
        OpenTable().Delete(Place());
}

/// Whether the current record is still stored; the set stands on it among the newest rows then.
bool RecordSet::IsStillThere()
{
    const Bookmark mark = Mark();
    return rows == OpenTable().NewestRows() || MoveTo(mark);
}

void RecordSet::Requery()
{
    Refresh();
    if (order)
        PutInOrder();
    MoveFirst();
}

std::int64_t RecordSet::NextNumber()
{
    MoveLast();
    // Beyond this bound a foreign file's number could not be raised by one.
    constexpr double largest = LargestExactWhole - 2;
    return IsEmpty() ? 1 : static_cast<std::int64_t>(std::clamp(Number(0), -largest, largest)) + 1;
}

RecordList RecordSet::List()
{
    MoveFirst();
    return {rows, order};
}

int RecordSet::CountOf(int position, double number)
{
    Refresh();
    return rows->CountOf(position, number);
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
