#include "records/stored_rows.h"

std::vector<Cell> StoredRows::Keep(const std::vector<Value>& values)
{
    std::vector<Cell> cells;
    cells.reserve(columns.size());
    for (std::size_t column = 0; column < columns.size(); ++column)
        cells.push_back(columns[column].Keep(values[column], textRoom));
    return cells;
}

void StoredRows::Append(std::int64_t rowId, const std::vector<Cell>& cells)
{
    const int place = Places();
    deleted.push_back(false);
    rowIds.Put(Index(place), rowId);
    Put(place, cells);
}

void StoredRows::Shrink()
{
    rowIds.Shrink();
    deleted.shrink_to_fit();
    for (StoredColumn& column : columns)
        column.Shrink();
}

void StoredRows::Add(std::int64_t rowId, const std::vector<Cell>& cells)
{
    const int place = Places();
    Append(rowId, cells);
    changes.push_back({place, true, {}});
    changed.push_back(place);
}

void StoredRows::Replace(int place, const std::vector<Cell>& cells)
{
    std::vector<Cell> before;
    for (const StoredColumn& column : columns)
        before.push_back(column.CellOf(Index(place)));
    changes.push_back({place, IsDeleted(place), std::move(before)});
    changed.push_back(place);
    Put(place, cells);
}

void StoredRows::Delete(int place)
{
    changes.push_back({place, IsDeleted(place), {}});
    changed.push_back(place);
    SetDeleted(place, true);
}

void StoredRows::TakeBackChanges()
{
    for (; !changes.empty(); changes.pop_back()) {
        const Change& change = changes.back();
        changed.push_back(change.place);
        SetDeleted(change.place, change.wasDeleted);
        if (!change.cells.empty())
            Put(change.place, change.cells);
    }
}

void StoredRows::Put(int place, const std::vector<Cell>& cells)
{
    for (std::size_t column = 0; column < columns.size(); ++column)
        columns[column].Put(Index(place), cells[column]);
}

void StoredRows::SetDeleted(int place, bool isDeleted)
{
    deletedCount += static_cast<int>(isDeleted) - static_cast<int>(IsDeleted(place));
    deleted[Index(place)] = isDeleted;
}
