#pragma once

#include "records/value.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

/// The fields of one column, in the order of their rows. A field is a code of as few bytes as the column's largest
/// needs: an even code is twice a whole number, an odd one twice the place of anything else, plus 1. What is no small
/// whole number is held once for all neighbouring rows in which it stands.
class StoredColumn
{
public:
    /// The field of a row; a text lives until the column changes.
    Value Read(std::size_t row) const
    {
        const std::int32_t code = CodeOf(row);
        return IsWhole(code) ? Value(std::int64_t{code >> 1}) : ReadOther(code);
    }
    /// Puts the field of a row into `number` where it is a whole number; otherwise false. It gives no std::optional:
    /// the compiler moves that through memory, which makes a walk five times as long.
    bool WholeNumber(std::size_t row, std::int64_t& number) const
    {
        const std::int32_t code = CodeOf(row);
        number = code >> 1;
        return IsWhole(code) || OtherWholeNumber(code, number);
    }

    /// Both take what they keep of a text from the room, and throw std::length_error where it is not enough.
    void Add(const Value& value, std::size_t& room);
    void Replace(std::size_t row, const Value& value, std::size_t& room);

    /// Puts the field of one row into another.
    void Copy(std::size_t from, std::size_t to) { PutCode(to, CodeOf(from)); }
    /// Forgets all rows behind the first ones.
    void Truncate(std::size_t rowCount) { codes.resize(rowCount << widthPower); }
    /// Gives back the memory that is kept for more rows.
    void Shrink();

private:
    enum class Kind : std::uint8_t
    {
        Nothing,
        Whole,
        Real,
        Text
    };
    /// A field that is no small whole number. Its bytes begin where those of the one before it end.
    struct Other
    {
        std::uint32_t end;
        Kind kind;
    };

    static bool IsWhole(std::int32_t code) { return (code & 1) == 0; }
    std::int32_t CodeOf(std::size_t row) const;
    void PutCode(std::size_t row, std::int32_t code);
    std::int32_t CodeFor(const Value& value, std::size_t& room);
    std::int32_t CodeForOther(Kind kind, std::string_view content, std::size_t& room);
    void MakeRoomFor(std::int32_t code);
    std::string_view BytesOf(std::size_t place) const
    {
        const std::uint32_t begin = place == 0 ? 0 : others[place - 1].end;
        return {bytes.data() + begin, others[place].end - begin};
    }
    Value ReadOther(std::int32_t code) const;
    bool OtherWholeNumber(std::int32_t code, std::int64_t& number) const;

    /// A code takes 2 to this power bytes: 1, 2 or 4.
    unsigned widthPower = 0;
    std::vector<char> codes;
    std::vector<Other> others;
    std::string bytes;
    /// The places plus 1 of the others that were met last, each where its hash wants it.
    std::array<std::uint32_t, 32> met = {};
};

/// The rows of a table in memory, in their own order, column by column. A row is named by its place, counted from 0. A
/// deleted row keeps its place until the deleted ones are dropped.
class StoredRows
{
public:
    StoredRows() = default;
    explicit StoredRows(int columnCount) : columns(static_cast<std::size_t>(columnCount)) {}

    /// The number of places, those of deleted rows included, and of rows that are left.
    int Places() const { return places; }
    int Count() const { return Places() - deletedCount; }
    bool HasDeleted() const { return deletedCount != 0; }
    bool IsDeleted(int place) const { return deletedCount != 0 && deleted[Index(place)]; }

    /// The number by which the engine knows the row.
    std::int64_t RowId(int place) const
    {
        std::int64_t rowId = 0;
        rowIds.WholeNumber(Index(place), rowId);
        return rowId;
    }
    /// The place of the row that the engine knows by the number, or -1.
    int PlaceOf(std::int64_t rowId) const;

    /// A field; a text lives until the rows change.
    Value Read(int place, int column) const { return columns[Index(column)].Read(Index(place)); }
    /// Puts the field into `number` where it is a whole number; otherwise false.
    bool WholeNumber(int place, int column, std::int64_t& number) const
    {
        return columns[Index(column)].WholeNumber(Index(place), number);
    }

    /// Adds a last row. Throws std::length_error where there is no more room for texts.
    void Add(std::int64_t rowId, const std::vector<Value>& values);
    /// Puts other values into a row; they do not point into these rows.
    void Replace(int place, const std::vector<Value>& values);

    void Delete(int place);
    /// Gives up the places of deleted rows.
    void DropDeleted();
    /// Gives back the memory that is kept for more rows.
    void Shrink();

private:
    /// The program's own tables hold some kilobytes; a file that claims much more must not take the computer's memory.
    static constexpr std::size_t MostTextBytes = std::size_t{32} * 1024 * 1024;

    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

    std::vector<StoredColumn> columns;
    StoredColumn rowIds;
    std::vector<bool> deleted;
    int places = 0;
    int deletedCount = 0;
    std::size_t textRoom = MostTextBytes;
};

// In the header, for every step of every walk reads fields.
inline std::int32_t StoredColumn::CodeOf(std::size_t row) const
{
    if (widthPower == 0)
        return static_cast<signed char>(codes[row]);
    if (widthPower == 1) {
        std::int16_t code = 0;
        std::memcpy(&code, codes.data() + row * sizeof code, sizeof code);
        return code;
    }
    std::int32_t code = 0;
    std::memcpy(&code, codes.data() + row * sizeof code, sizeof code);
    return code;
}
