#pragma once

#include "base/numbers.h"
#include "records/stored_rows.h"

#include <cmath>
#include <memory>
#include <vector>

/// Names one stored row, also where a file of unknown origin holds its number twice or not at all. It names no other
/// row after another copy of the program has deleted it.
struct Bookmark
{
    /// The engine's number of the row, which no copy gives again, though other tools may, and the row's first field.
    std::int64_t rowId = 0;
    double number = 0;

    bool operator==(const Bookmark&) const = default;
};

/// One row, read where it stands in memory. Its fields are addressed by their positions, counted from 0; texts live
/// until the rows change.
class RecordRow
{
public:
    RecordRow(const StoredRows& storedRows, int rowPlace) : rows(storedRows), place(rowPlace) {}

    /// The field as a number: a text by its leading number, nothing as 0.
    double Number(int position) const { return rows.Number(place, position); }
    /// The whole part of that number, or 0 where it is too large for one.
    std::int64_t WholePart(int position) const
    {
        const double number = Number(position);
        return std::fabs(number) < LargestExactWhole ? static_cast<std::int64_t>(number) : 0;
    }
    /// The field of a column of texts; empty in a column of numbers.
    std::string_view Text(int position) const { return rows.Text(place, position); }
    /// Whether the field holds a flag that is set.
    bool Flag(int position) const { return Number(position) != 0; }

    Bookmark Mark() const { return {rows.RowId(place), Number(0)}; }

private:
    const StoredRows& rows;
    int place;
};

/// Rows of a table in an order of their own, as they were when it was made: deleted ones are still among them.
class RecordList
{
public:
    RecordList() = default;
    RecordList(std::shared_ptr<const StoredRows> storedRows, std::shared_ptr<const std::vector<int>> rowPlaces)
        : rows(std::move(storedRows)), places(std::move(rowPlaces))
    {
    }

    int Count() const { return places ? static_cast<int>(places->size()) : 0; }
    RecordRow operator[](int row) const { return {*rows, places->at(static_cast<std::size_t>(row))}; }
    std::vector<Bookmark> Marks(int first, int last) const
    {
        std::vector<Bookmark> marks;
        for (int row = first; row <= last; ++row)
            marks.push_back((*this)[row].Mark());
        return marks;
    }

private:
    std::shared_ptr<const StoredRows> rows;
    std::shared_ptr<const std::vector<int>> places;
};
