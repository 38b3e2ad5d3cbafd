#pragma once

#include "records/stored_column.h"

#include <vector>

/// The rows of a table in memory, column by column. A row is named by its place, which it keeps: a new row comes after
/// all others, and a deleted one can still be read.
class StoredRows
{
public:
    explicit StoredRows(int columnCount) : columns(static_cast<std::size_t>(columnCount)) {}

    /// The number of places, those of deleted rows included, and of rows that are left.
    int Places() const { return static_cast<int>(deleted.size()); }
    int Count() const { return Places() - deletedCount; }
    bool IsDeleted(int place) const { return deleted[Index(place)]; }
    /// The number by which the engine knows the row.
    std::int64_t RowId(int place) const { return rowIds[Index(place)]; }

    /// A field; a text lives until the rows change.
    Value Read(int place, int column) const { return columns[Index(column)].Read(Index(place)); }
    /// Puts the field into `number` where it is a whole number; otherwise false.
    bool WholeNumber(int place, int column, std::int64_t& number) const
    {
        return columns[Index(column)].WholeNumber(Index(place), number);
    }
    /// Below, above or equal to 0 as the engine orders the fields of a column.
    int Compare(int place, int other, int column) const
    {
        return columns[Index(column)].Compare(Index(place), Index(other));
    }
    const StoredColumn& Column(int column) const { return columns[Index(column)]; }

    /// Makes the cells of a row that is to be put in. Throws std::length_error where there is no more room for texts.
    std::vector<Cell> Keep(const std::vector<Value>& values);
    Cell Keep(int column, const Value& value) { return columns[Index(column)].Keep(value, textRoom); }
    Cell Keep(int column, StoredColumn::Kind kind, std::string_view content)
    {
        return columns[Index(column)].Keep(kind, content, textRoom);
    }

    /// Puts in a row that has been read.
    void Append(std::int64_t rowId, const std::vector<Cell>& cells);
    /// Gives back the memory that is kept for more rows.
    void Shrink();

    void Add(std::int64_t rowId, const std::vector<Cell>& cells);
    void Replace(int place, const std::vector<Cell>& cells);
    void Delete(int place);
    /// The places that were changed since the rows were read, one after another.
    const std::vector<int>& Changed() const { return changed; }
    /// The changes up to now stay, or those since the last ones that stay are taken back.
    void KeepChanges() { changes.clear(); }
    void TakeBackChanges();

private:
    /// The program's own tables hold some kilobytes; a file that claims much more must not take the computer's memory.
    static constexpr std::size_t MostTextBytes = std::size_t{32} * 1024 * 1024;

    /// What a row was before it was changed; without cells where only its deletion is concerned.
    struct Change
    {
        int place;
        bool wasDeleted;
        std::vector<Cell> cells;
    };

    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }
    void Put(int place, const std::vector<Cell>& cells);
    void SetDeleted(int place, bool isDeleted);

    std::vector<StoredColumn> columns;
    WholeNumbers rowIds;
    std::vector<bool> deleted;
    int deletedCount = 0;
    std::size_t textRoom = MostTextBytes;
    std::vector<int> changed;
    std::vector<Change> changes;
};
