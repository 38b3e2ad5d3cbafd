#include "records/stored_rows.h"

#include "base/numbers.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>
#include <type_traits>

namespace {

template <typename Held>
bool CanHold(double number)
{
    using Limits = std::numeric_limits<Held>;
    return !Limits::is_integer ||
           (number >= Limits::lowest() && number <= Limits::max() && number == static_cast<Held>(number));
}

} // namespace

void NumberColumn::Put(std::size_t place, double number)
{
    const auto put = [place, number](auto& held) {
        using Held = typename std::decay_t<decltype(held)>::value_type;
        if (!CanHold<Held>(number))
            return false;
        if (place == held.size())
            held.emplace_back();
        held[place] = static_cast<Held>(number);
        return true;
    };
    const auto widened = [](const auto& held) -> Numbers {
        using Wider = std::conditional_t<sizeof held[0] == 1, std::vector<std::int32_t>, std::vector<double>>;
        return Wider(held.begin(), held.end());
    };
    while (!std::visit(put, numbers))
        numbers = std::visit(widened, numbers);
}

int NumberColumn::CountOf(double number, const std::vector<char>& deleted) const
{
    const auto count = [&deleted, number](const auto& held) {
        using Held = typename std::decay_t<decltype(held)>::value_type;
        if (!CanHold<Held>(number))
            return 0;
        const auto isWanted = [wanted = static_cast<Held>(number)](Held field, char gone) {
            return field == wanted && gone == 0 ? 1 : 0;
        };
        return std::inner_product(held.begin(), held.end(), deleted.begin(), 0, std::plus<>(), isWanted);
    };
    return std::visit(count, numbers);
}

void NumberColumn::Shrink()
{
    std::visit([](auto& held) { held.shrink_to_fit(); }, numbers);
}

std::size_t TextColumn::PlaceOf(std::string_view text)
{
    // As many as a player has machines or sets of balls to choose from.
    constexpr std::size_t looked = 8;
    for (std::size_t place = ends.size(); place > 0 && place + looked > ends.size(); --place)
        if ((*this)[place - 1] == text)
            return place - 1;
    bytes += text;
    ends.push_back(static_cast<std::uint32_t>(bytes.size()));
    return ends.size() - 1;
}

void TextColumn::Shrink()
{
    bytes.shrink_to_fit();
    ends.shrink_to_fit();
}

StoredRows::StoredRows(const TableLayout& table) : columns(table.columns.size())
{
    for (std::size_t column = 0; column < columns.size(); ++column)
        if (table.columns[column].type == "TEXT")
            columns[column].texts.emplace();
}

double StoredRows::Number(int place, int column) const
{
    const Column& read = columns[Index(column)];
    return read.texts ? NumericValue(Text(place, column)) : read.cells[Index(place)];
}

std::string_view StoredRows::Text(int place, int column) const
{
    const Column& read = columns[Index(column)];
    return read.texts ? (*read.texts)[static_cast<std::size_t>(read.cells[Index(place)])] : std::string_view();
}

std::partial_ordering StoredRows::Compare(int place, int other, int column) const
{
    if (columns[Index(column)].texts)
        return Text(place, column) <=> Text(other, column);
    return Number(place, column) <=> Number(other, column);
}

int StoredRows::Append(std::int64_t rowId)
{
    rowIds.push_back(rowId);
    deleted.push_back(0);
    for (Column& column : columns)
        column.cells.Put(rowIds.size() - 1, 0);
    return Places() - 1;
}

void StoredRows::Put(int place, int column, double number)
{
    if (columns[Index(column)].texts)
        Put(place, column, PlainNumber(number).toStdString());
    else
        columns[Index(column)].cells.Put(Index(place), number);
}

void StoredRows::Put(int place, int column, std::string_view text)
{
    auto& [cells, texts] = columns[Index(column)];
    cells.Put(Index(place), texts ? static_cast<double>(texts->PlaceOf(text)) : NumericValue(text));
}

void StoredRows::Shrink()
{
    rowIds.shrink_to_fit();
    deleted.shrink_to_fit();
    for (Column& column : columns) {
        column.cells.Shrink();
        if (column.texts)
            column.texts->Shrink();
    }
}

void StoredRows::Add(std::int64_t rowId, const std::vector<FieldValue>& fields)
{
    const int place = Append(rowId);
    changes.push_back({place, true, {}});
    PutAll(place, fields);
}

void StoredRows::Replace(int place, const std::vector<FieldValue>& fields)
{
    std::vector<double> cells;
    for (const Column& column : columns)
        cells.push_back(column.cells[Index(place)]);
    changes.push_back({place, IsDeleted(place), std::move(cells)});
    PutAll(place, fields);
}

void StoredRows::Delete(int place)
{
    changes.push_back({place, IsDeleted(place), {}});
    SetDeleted(place, true);
}

void StoredRows::TakeBackChanges()
{
    for (; !changes.empty(); changes.pop_back()) {
        const auto& [place, wasDeleted, cells] = changes.back();
        SetDeleted(place, wasDeleted);
        for (std::size_t column = 0; column < cells.size(); ++column)
            columns[column].cells.Put(Index(place), cells[column]);
    }
}

void StoredRows::PutAll(int place, const std::vector<FieldValue>& fields)
{
    for (const FieldValue& field : fields) {
        if (field.isText)
            Put(place, field.position, field.text);
        else
            Put(place, field.position, field.number);
    }
}

void StoredRows::SetDeleted(int place, bool isDeleted)
{
    deletedCount += static_cast<int>(isDeleted) - static_cast<int>(IsDeleted(place));
    deleted[Index(place)] = isDeleted ? 1 : 0;
}
