#pragma once

#include "records/value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Whole numbers one after another, in as few bytes as the largest of them needs.
class WholeNumbers
{
public:
    std::int64_t operator[](std::size_t place) const
    {
        return std::visit([place](const auto& held) -> std::int64_t { return held[place]; }, numbers);
    }
    /// Puts the number into a place, or after the last one.
    void Put(std::size_t place, std::int64_t number);
    /// Gives back the memory that is kept for more numbers.
    void Shrink();

    /// Calls `action` with each place and its number, in order.
    template <typename Action>
    void ForEach(Action action) const
    {
        std::visit(
            [&action](const auto& held) {
                for (std::size_t place = 0; place < held.size(); ++place)
                    action(place, std::int64_t{held[place]});
            },
            numbers);
    }

private:
    using Held = std::variant<std::vector<std::int8_t>, std::vector<std::int16_t>, std::vector<std::int32_t>,
                              std::vector<std::int64_t>>;

    Held numbers;
};

/// What stands in one field of a column: a whole number, or the place of another value among the column's other ones.
struct Cell
{
    std::int64_t number = 0;
    bool isOther = false;
};

/// The fields of one column, in the order of their rows. What is no whole number is held apart, and once for
/// neighbouring rows in which it stands.
class StoredColumn
{
public:
    /// The kinds of other values. In a column of texts a number has been written out.
    enum class Kind : std::uint8_t
    {
        Nothing,
        Real,
        WrittenNumber,
        Text,
        Bytes
    };

    /// The field of a row; a text lives until the column changes.
    Value Read(std::size_t row) const { return IsOther(row) ? ReadOther(row) : Value(numbers[row]); }
    /// Puts the field of a row into `number` where it is a whole number; otherwise false.
    bool WholeNumber(std::size_t row, std::int64_t& number) const
    {
        number = numbers[row];
        return !IsOther(row);
    }
    /// Below, above or equal to 0 as the engine orders the fields of two rows: nothing, numbers, texts, bytes.
    int Compare(std::size_t row, std::size_t other) const;
    /// Calls `action` with each row whose field is the whole number, and each whose field is no whole number at all.
    template <typename Action>
    void ForEachThatMayBe(std::int64_t number, Action action) const
    {
        numbers.ForEach([&](std::size_t row, std::int64_t held) {
            if (held == number || IsOther(row))
                action(row);
        });
    }

    /// Makes a cell of a value, whose bytes are taken from `room`. Throws std::length_error where it is not enough.
    Cell Keep(const Value& value, std::size_t& room);
    Cell Keep(Kind kind, std::string_view content, std::size_t& room);

    Cell CellOf(std::size_t row) const { return {numbers[row], IsOther(row)}; }
    /// Puts the cell into a row, or into a new one after the last.
    void Put(std::size_t row, Cell cell);
    /// Gives back the memory that is kept for more rows.
    void Shrink();

private:
    bool IsOther(std::size_t row) const { return row < isOther.size() && isOther[row]; }
    Kind KindOf(std::size_t row) const { return kinds[static_cast<std::size_t>(numbers[row])]; }
    std::string_view ContentOf(std::size_t row) const { return BytesOf(static_cast<std::size_t>(numbers[row])); }
    std::string_view BytesOf(std::size_t other) const
    {
        const std::uint32_t begin = other == 0 ? 0 : ends[other - 1];
        return {bytes.data() + begin, ends[other] - begin};
    }
    Value ReadOther(std::size_t row) const;
    /// 0 for nothing, 1 for a number, 2 for a text, 3 for bytes.
    int RankOf(std::size_t row) const;
    long double NumberOf(std::size_t row) const;

    WholeNumbers numbers;
    /// Reaches to the last row whose field is no whole number.
    std::vector<bool> isOther;
    /// The bytes of each of the other values begin where those of the one before it end.
    std::vector<Kind> kinds;
    std::vector<std::uint32_t> ends;
    std::string bytes;
};
