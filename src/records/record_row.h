#pragma once

#include "records/bookmark.h"
#include "records/stored_rows.h"

#include <memory>
#include <vector>

/// One row, read where it stands in memory. Its fields are addressed by their positions, counted from 0; texts live
/// until the rows change.
class RecordRow
{
public:
    RecordRow(const StoredRows& storedRows, int rowPlace) : rows(storedRows), place(rowPlace) {}

    Value Field(int position) const { return rows.Read(place, position); }
    /// Puts the field into `number` where it holds a whole number; otherwise false.
    bool WholeNumber(int position, std::int64_t& number) const { return rows.WholeNumber(place, position, number); }
    /// The field as a number: a text by its leading number, nothing as 0.
    double Number(int position) const
    {
        std::int64_t whole = 0;
        return WholeNumber(position, whole) ? static_cast<double>(whole) : NumberOfOther(position);
    }
    /// The whole part of that number, or 0 where it is too large for one.
    std::int64_t WholePart(int position) const;
    /// The field as a text: in a column of texts a number of a foreign file has become one. Empty otherwise.
    std::string_view Text(int position) const;
    /// Whether the field holds a flag that is set.
    bool Flag(int position) const { return Number(position) != 0; }

    Bookmark Mark() const { return {rows.RowId(place), Number(0)}; }

private:
    double NumberOfOther(int position) const;

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
    std::vector<Bookmark> Marks(int first, int last) const;
    RecordRow operator[](int row) const { return {*rows, places->at(static_cast<std::size_t>(row))}; }

private:
    std::shared_ptr<const StoredRows> rows;
    std::shared_ptr<const std::vector<int>> places;
};
