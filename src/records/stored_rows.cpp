#include "records/stored_rows.h"

#include "base/failure.h"
#include "base/numbers.h"

#include <algorithm>
#include <limits>
#include <type_traits>

void NumberColumn::Put(std::size_t place, double number)
{
    const auto put = [place, number](auto& held) {
        using Held = typename std::decay_t<decltype(held)>::value_type;
        using Limits = std::numeric_limits<Held>;
        if (Limits::is_integer &&
            (number < Limits::lowest() || number > Limits::max() || static_cast<Held>(number) != number))
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

void NumberColumn::Shrink()
{
    std::visit([](auto& held) { held.shrink_to_fit(); }, numbers);
}

StoredRows::StoredRows(const TableLayout& table) : columns(table.columns.size())
{
    for (std::size_t column = 0; column < columns.size(); ++column)
        if (table.columns[column].type == "TEXT")
            columns[column].texts.emplace_back();
}

double StoredRows::Number(int place, int column) const
{
    const Column& read = columns[Index(column)];
    return read.texts.empty() ? read.cells[Index(place)] : NumericValue(Text(place, column));
}

std::string_view StoredRows::Text(int place, int column) const
{
    const Column& read = columns[Index(column)];
    return read.texts.empty() ? std::string_view() : read.texts[static_cast<std::size_t>(read.cells[Index(place)])];
}

std::partial_ordering StoredRows::Compare(int place, int other, int column) const
{
    if (columns[Index(column)].texts.empty())
        return Number(place, column) <=> Number(other, column);
    return Text(place, column) <=> Text(other, column);
}

int StoredRows::CountOf(int column, double number) const
{
    int count = 0;
    columns[Index(column)].cells.ForEach([&](std::size_t place, double held) {
        if (held == number && !deleted[place])
            ++count;
    });
    return count;
}

int StoredRows::Append(std::int64_t rowId)
{
    rowIds.push_back(rowId);
    deleted.push_back(false);
    for (Column& column : columns)
        column.cells.Put(rowIds.size() - 1, 0);
    return Places() - 1;
}

void StoredRows::Put(int place, int column, double number)
{
    Column& changed = columns[Index(column)];
    changed.cells.Put(Index(place),
                      changed.texts.empty() ? number : PlaceOfText(changed.texts, PlainNumber(number).toStdString()));
}

void StoredRows::Put(int place, int column, std::string_view text)
{
    Column& changed = columns[Index(column)];
    changed.cells.Put(Index(place), changed.texts.empty() ? NumericValue(text) : PlaceOfText(changed.texts, text));
}

double StoredRows::PlaceOfText(std::vector<std::string>& texts, std::string_view text)
{
    // As many as a player has machines or sets of balls to choose from.
    constexpr std::ptrdiff_t looked = 8;
    auto found = std::find(texts.end() - std::min(looked, std::ssize(texts)), texts.end(), text);
    if (found == texts.end()) {
        if (text.size() > textRoom)
            throw Failure("The rows could not be held", "their texts are too long", "more than 32 MiB of text");
        textRoom -= text.size();
        found = texts.emplace(found, text);
    }
    return static_cast<double>(found - texts.begin());
}

void StoredRows::Shrink()
{
    rowIds.shrink_to_fit();
    deleted.shrink_to_fit();
    for (Column& column : columns) {
        column.cells.Shrink();
        column.texts.shrink_to_fit();
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
    deleted[Index(place)] = isDeleted;
}
