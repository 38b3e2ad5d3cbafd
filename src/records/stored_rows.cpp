#include "records/stored_rows.h"

#include <algorithm>
#include <stdexcept>

namespace {

/// The program's own tables hold some kilobytes; a file that claims much more must not take the computer's memory.
constexpr std::size_t MostTextBytes = std::size_t{32} * 1024 * 1024;

} // namespace

StoredRows::Cell StoredRows::Stored(const Value& value)
{
    Cell cell = {};
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        cell.whole = *whole;
        cell.kind = CellKind::Whole;
    } else if (const auto* real = std::get_if<double>(&value)) {
        cell.real = *real;
        cell.kind = CellKind::Real;
    } else if (const auto* text = std::get_if<std::string_view>(&value)) {
        if (text->size() > MostTextBytes - std::min(MostTextBytes, texts.size()))
            throw std::length_error("more than 32 MiB of text");
        cell.text = {static_cast<std::uint32_t>(texts.size()), static_cast<std::uint32_t>(text->size())};
        cell.kind = CellKind::Text;
        texts.append(*text);
    }
    return cell;
}

int StoredRows::PlaceOf(std::int64_t rowId) const
{
    const auto found = std::find(rowIds.begin(), rowIds.end(), rowId);
    return found == rowIds.end() ? -1 : static_cast<int>(found - rowIds.begin());
}

void StoredRows::BeginRow(std::int64_t rowId)
{
    rowIds.push_back(rowId);
    deleted.push_back(false);
}

void StoredRows::Replace(int place, const std::vector<Value>& values)
{
    for (std::size_t column = 0; column < columns; ++column)
        cells[Index(place) * columns + column] = Stored(values[column]);
}

void StoredRows::Delete(int place)
{
    deleted[Index(place)] = true;
    ++deletedCount;
}

void StoredRows::DropDeleted()
{
    if (deletedCount == 0)
        return;
    std::size_t kept = 0;
    for (std::size_t row = 0; row < deleted.size(); ++row) {
        if (deleted[row])
            continue;
        if (kept != row) {
            rowIds[kept] = rowIds[row];
            std::copy_n(cells.begin() + static_cast<std::ptrdiff_t>(row * columns), columns,
                        cells.begin() + static_cast<std::ptrdiff_t>(kept * columns));
        }
        ++kept;
    }
    rowIds.resize(kept);
    cells.resize(kept * columns);
    deleted.assign(kept, false);
    deletedCount = 0;
}
