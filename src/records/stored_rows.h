#pragma once

#include "records/value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The rows of a table in memory, in their own order: one array of cells, and one string that holds all their texts. A
/// row is named by its place, counted from 0. A deleted row keeps its place until the deleted ones are dropped.
class StoredRows
{
public:
    StoredRows() = default;
    explicit StoredRows(int columnCount) : columns(static_cast<std::size_t>(columnCount)) {}

    /// The number of places, those of deleted rows included, and of rows that are left.
    int Places() const { return static_cast<int>(deleted.size()); }
    int Count() const { return Places() - deletedCount; }
    bool HasDeleted() const { return deletedCount != 0; }
    bool IsDeleted(int place) const { return deleted[Index(place)]; }

    /// The number by which the engine knows the row.
    std::int64_t RowId(int place) const { return rowIds[Index(place)]; }
    /// The place of the row that the engine knows by the number, or -1.
    int PlaceOf(std::int64_t rowId) const;

    /// A field; a text lives until the rows change.
    Value Read(int place, int column) const;
    /// The field where it is a whole number, otherwise nullptr.
    const std::int64_t* WholeNumber(int place, int column) const;

    /// Begins a new last row, whose fields follow one by one. Throws std::length_error where there is no more room for
    /// texts.
    void BeginRow(std::int64_t rowId);
    void AddField(const Value& value) { cells.push_back(Stored(value)); }

    /// Puts other values into a row; they do not point into these rows.
    void Replace(int place, const std::vector<Value>& values);

    void Delete(int place);
    /// Gives up the places of deleted rows.
    void DropDeleted();

private:
    enum class CellKind : std::uint8_t
    {
        Nothing,
        Whole,
        Real,
        Text
    };
    struct TextPlace
    {
        std::uint32_t offset;
        std::uint32_t length;
    };
    struct Cell
    {
        union {
            std::int64_t whole;
            double real;
            TextPlace text;
        };
        CellKind kind;
    };

    static std::size_t Index(int place) { return static_cast<std::size_t>(place); }
    const Cell& CellAt(int place, int column) const
    {
        return cells[Index(place) * columns + static_cast<std::size_t>(column)];
    }
    Cell Stored(const Value& value);

    std::size_t columns = 0;
    std::vector<Cell> cells;
    std::vector<std::int64_t> rowIds;
    std::vector<bool> deleted;
    std::string texts;
    int deletedCount = 0;
};

// In the header, for every step of every walk reads fields.
inline Value StoredRows::Read(int place, int column) const
{
    const Cell& cell = CellAt(place, column);
    switch (cell.kind) {
    case CellKind::Whole:
        return cell.whole;
    case CellKind::Real:
        return cell.real;
    case CellKind::Text:
        return std::string_view(texts).substr(cell.text.offset, cell.text.length);
    case CellKind::Nothing:
        break;
    }
    return std::monostate();
}

inline const std::int64_t* StoredRows::WholeNumber(int place, int column) const
{
    const Cell& cell = CellAt(place, column);
    return cell.kind == CellKind::Whole ? &cell.whole : nullptr;
}
