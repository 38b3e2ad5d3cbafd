#pragma once

#include "records/table_layout.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The numbers of a column, in as few bytes each as all of them need.
class NumberColumn
{
public:
    double operator[](std::size_t place) const
    {
        return std::visit([place](const auto& held) { return static_cast<double>(held[place]); }, numbers);
    }
    /// Puts the number into a place, or after the last one.
    void Put(std::size_t place, double number);
    /// How many of the places hold the number and are not marked as deleted.
    int CountOf(double number, const std::vector<char>& deleted) const;
    /// Gives back the memory that is kept for more numbers.
    void Shrink();

private:
    using Numbers = std::variant<std::vector<std::int8_t>, std::vector<std::int32_t>, std::vector<double>>;

    Numbers numbers;
};

/// Texts one after another, of which the first is empty.
class TextColumn
{
public:
    std::string_view operator[](std::size_t place) const
    {
        const std::size_t begin = place == 0 ? 0 : ends[place - 1];
        return std::string_view(bytes).substr(begin, ends[place] - begin);
    }
    /// Puts a text after the last one, unless it is one of the last ones; returns its place.
    std::size_t PlaceOf(std::string_view text);
    void Shrink();

private:
    std::string bytes;
    std::vector<std::uint32_t> ends{0};
};

/// A field that is to be stored: its position in the row, and a text in UTF-8 or a number.
struct FieldValue
{
    int position;
    bool isText;
    double number;
    std::string text;
};

/// The rows of a table in memory, column by column. A row is named by its place, which it keeps: a new row comes after
/// all others, and a deleted one can still be read.
class StoredRows
{
public:
    explicit StoredRows(const TableLayout& table);

    /// The number of places, those of deleted rows included, and of rows that are left.
    int Places() const { return static_cast<int>(rowIds.size()); }
    int Count() const { return Places() - deletedCount; }
    bool IsDeleted(int place) const { return deleted[Index(place)] != 0; }
    /// The number by which the engine knows the row.
    std::int64_t RowId(int place) const { return rowIds[Index(place)]; }

    /// The field as a number: a text by its leading number, nothing as 0.
    double Number(int place, int column) const;
    /// The field of a column of texts, which lives until the rows change; empty in a column of numbers.
    std::string_view Text(int place, int column) const;
    /// How the fields of two rows stand to each other.
    std::partial_ordering Compare(int place, int other, int column) const;
    /// In how many rows that are left a column of numbers holds this one.
    int CountOf(int column, double number) const { return columns[Index(column)].cells.CountOf(number, deleted); }

    /// Puts a row without content after the last one, and returns its place.
    int Append(std::int64_t rowId);
    /// Puts a field into a row.
    void Put(int place, int column, double number);
    void Put(int place, int column, std::string_view text);
    /// Gives back the memory that is kept for more rows.
    void Shrink();

    /// The changes from here on can be taken back.
    void BeginChanges() { changes.clear(); }
    void TakeBackChanges();
    void Add(std::int64_t rowId, const std::vector<FieldValue>& fields);
    void Replace(int place, const std::vector<FieldValue>& fields);
    void Delete(int place);

private:
    /// Numbers, or the places of the fields' texts.
    struct Column
    {
        NumberColumn cells;
        std::optional<TextColumn> texts;
    };

    /// What a row was before it was changed; without cells where only its deletion is concerned.
    struct Change
    {
        int place;
        bool wasDeleted;
        std::vector<double> cells;
    };

    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }
    void PutAll(int place, const std::vector<FieldValue>& fields);
    void SetDeleted(int place, bool isDeleted);

    std::vector<Column> columns;
    std::vector<std::int64_t> rowIds;
    std::vector<char> deleted;
    int deletedCount = 0;
    std::vector<Change> changes;
};
