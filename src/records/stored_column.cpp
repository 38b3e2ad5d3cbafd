#include "records/stored_column.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace {

/// The same numbers, each in twice as many bytes.
template <typename Number>
auto Widened(const std::vector<Number>& held)
{
    using Wider = std::conditional_t<sizeof(Number) == 1, std::int16_t,
                                     std::conditional_t<sizeof(Number) == 2, std::int32_t, std::int64_t>>;
    return std::vector<Wider>(held.begin(), held.end());
}

double RealOf(std::string_view raw)
{
    double real = 0;
    std::memcpy(&real, raw.data(), sizeof real);
    return real;
}

} // namespace

void WholeNumbers::Put(std::size_t place, std::int64_t number)
{
    const auto put = [place, number](auto& held) {
        using Number = typename std::decay_t<decltype(held)>::value_type;
        if (!std::in_range<Number>(number))
            return false;
        held.resize(std::max(held.size(), place + 1));
        held[place] = static_cast<Number>(number);
        return true;
    };
    while (!std::visit(put, numbers))
        numbers = std::visit([](const auto& held) { return Held(Widened(held)); }, numbers);
}

void WholeNumbers::Shrink()
{
    std::visit([](auto& held) { held.shrink_to_fit(); }, numbers);
}

Cell StoredColumn::Keep(const Value& value, std::size_t& room)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return {*whole, false};
    if (const auto* real = std::get_if<double>(&value))
        return Keep(Kind::Real, {reinterpret_cast<const char*>(real), sizeof *real}, room);
    if (const auto* text = std::get_if<std::string_view>(&value))
        return Keep(Kind::Text, *text, room);
    return Keep(Kind::Nothing, {}, room);
}

Cell StoredColumn::Keep(Kind kind, std::string_view content, std::size_t& room)
{
    // As many as a player has machines or sets of balls to choose from.
    constexpr std::size_t looked = 8;
    const std::size_t count = kinds.size();
    for (std::size_t other = count; other > 0 && other + looked > count; --other)
        if (kinds[other - 1] == kind && BytesOf(other - 1) == content)
            return {static_cast<std::int64_t>(other - 1), true};
    if (content.size() > room)
        throw std::length_error("more than 32 MiB of text");
    room -= content.size();
    bytes.append(content);
    kinds.push_back(kind);
    ends.push_back(static_cast<std::uint32_t>(bytes.size()));
    return {static_cast<std::int64_t>(count), true};
}

void StoredColumn::Put(std::size_t row, Cell cell)
{
    numbers.Put(row, cell.number);
    if (cell.isOther && row >= isOther.size())
        isOther.resize(row + 1);
    if (row < isOther.size())
        isOther[row] = cell.isOther;
}

void StoredColumn::Shrink()
{
    numbers.Shrink();
    isOther.shrink_to_fit();
    kinds.shrink_to_fit();
    ends.shrink_to_fit();
    bytes.shrink_to_fit();
}

Value StoredColumn::ReadOther(std::size_t row) const
{
    if (KindOf(row) == Kind::Nothing)
        return std::monostate();
    if (KindOf(row) == Kind::Real)
        return RealOf(ContentOf(row));
    return ContentOf(row);
}

int StoredColumn::Compare(std::size_t row, std::size_t other) const
{
    const int rank = RankOf(row);
    if (const int difference = rank - RankOf(other); difference != 0 || rank == 0)
        return difference;
    if (rank != 1)
        return ContentOf(row).compare(ContentOf(other));
    const long double number = NumberOf(row);
    const long double otherNumber = NumberOf(other);
    return (number > otherNumber ? 1 : 0) - (number < otherNumber ? 1 : 0);
}

int StoredColumn::RankOf(std::size_t row) const
{
    if (!IsOther(row))
        return 1;
    switch (KindOf(row)) {
    case Kind::Nothing:
        return 0;
    case Kind::Text:
        return 2;
    case Kind::Bytes:
        return 3;
    default:
        return 1;
    }
}

long double StoredColumn::NumberOf(std::size_t row) const
{
    if (!IsOther(row))
        return static_cast<long double>(numbers[row]);
    const std::string_view content = ContentOf(row);
    if (KindOf(row) == Kind::Real)
        return RealOf(content);
    long double written = 0;
    std::from_chars(content.data(), content.data() + content.size(), written);
    return written;
}
