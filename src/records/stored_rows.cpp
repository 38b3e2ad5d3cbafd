#include "records/stored_rows.h"

#include <functional>
#include <limits>
#include <stdexcept>

namespace {

template <typename Number>
std::string_view RawBytes(const Number& number)
{
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

template <typename Number>
Number FromRawBytes(std::string_view raw)
{
    Number number = 0;
    std::memcpy(&number, raw.data(), sizeof number);
    return number;
}

unsigned WidthPowerOf(std::int32_t code)
{
    if (code >= std::numeric_limits<std::int8_t>::min() && code <= std::numeric_limits<std::int8_t>::max())
        return 0;
    return code >= std::numeric_limits<std::int16_t>::min() && code <= std::numeric_limits<std::int16_t>::max() ? 1 : 2;
}

} // namespace

void StoredColumn::Add(const Value& value, std::size_t& room)
{
    const std::int32_t code = CodeFor(value, room);
    MakeRoomFor(code);
    const std::size_t row = codes.size() >> widthPower;
    codes.resize((row + 1) << widthPower);
    PutCode(row, code);
}

void StoredColumn::Replace(std::size_t row, const Value& value, std::size_t& room)
{
    const std::int32_t code = CodeFor(value, room);
    MakeRoomFor(code);
    PutCode(row, code);
}

void StoredColumn::PutCode(std::size_t row, std::int32_t code)
{
    char* const place = codes.data() + (row << widthPower);
    if (widthPower == 0) {
        *place = static_cast<char>(code);
    } else if (widthPower == 1) {
        const auto narrow = static_cast<std::int16_t>(code);
        std::memcpy(place, &narrow, sizeof narrow);
    } else {
        std::memcpy(place, &code, sizeof code);
    }
}

void StoredColumn::MakeRoomFor(std::int32_t code)
{
    const unsigned wanted = WidthPowerOf(code);
    if (wanted <= widthPower)
        return;
    const std::size_t rowCount = codes.size() >> widthPower;
    StoredColumn wider;
    wider.widthPower = wanted;
    wider.codes.resize(rowCount << wanted);
    for (std::size_t row = 0; row < rowCount; ++row)
        wider.PutCode(row, CodeOf(row));
    widthPower = wanted;
    codes = std::move(wider.codes);
}

std::int32_t StoredColumn::CodeFor(const Value& value, std::size_t& room)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max() / 2;
        if (*whole >= -most && *whole <= most)
            return static_cast<std::int32_t>(*whole * 2);
        return CodeForOther(Kind::Whole, RawBytes(*whole), room);
    }
    if (const auto* real = std::get_if<double>(&value))
        return CodeForOther(Kind::Real, RawBytes(*real), room);
    if (const auto* text = std::get_if<std::string_view>(&value))
        return CodeForOther(Kind::Text, *text, room);
    return CodeForOther(Kind::Nothing, {}, room);
}

std::int32_t StoredColumn::CodeForOther(Kind kind, std::string_view content, std::size_t& room)
{
    std::uint32_t& place = met[(std::hash<std::string_view>()(content) + static_cast<std::size_t>(kind)) % met.size()];
    if (place == 0 || others[place - 1].kind != kind || BytesOf(place - 1) != content) {
        if (content.size() > room)
            throw std::length_error("more than 32 MiB of text");
        room -= content.size();
        bytes.append(content);
        others.push_back({static_cast<std::uint32_t>(bytes.size()), kind});
        place = static_cast<std::uint32_t>(others.size());
    }
    return static_cast<std::int32_t>((place - 1) * 2 + 1);
}

Value StoredColumn::ReadOther(std::int32_t code) const
{
    const auto place = static_cast<std::size_t>(code >> 1);
    switch (others[place].kind) {
    case Kind::Whole:
        return FromRawBytes<std::int64_t>(BytesOf(place));
    case Kind::Real:
        return FromRawBytes<double>(BytesOf(place));
    case Kind::Text:
        return BytesOf(place);
    case Kind::Nothing:
        break;
    }
    return std::monostate();
}

bool StoredColumn::OtherWholeNumber(std::int32_t code, std::int64_t& number) const
{
    const auto place = static_cast<std::size_t>(code >> 1);
    if (others[place].kind != Kind::Whole)
        return false;
    number = FromRawBytes<std::int64_t>(BytesOf(place));
    return true;
}

void StoredColumn::Shrink()
{
    codes.shrink_to_fit();
    others.shrink_to_fit();
    bytes.shrink_to_fit();
}

int StoredRows::PlaceOf(std::int64_t rowId) const
{
    for (int place = 0; place < Places(); ++place)
        if (RowId(place) == rowId)
            return place;
    return -1;
}

void StoredRows::Add(std::int64_t rowId, const std::vector<Value>& values)
{
    rowIds.Add(rowId, textRoom);
    for (std::size_t column = 0; column < columns.size(); ++column)
        columns[column].Add(values[column], textRoom);
    deleted.push_back(false);
    ++places;
}

void StoredRows::Replace(int place, const std::vector<Value>& values)
{
    for (std::size_t column = 0; column < columns.size(); ++column)
        columns[column].Replace(Index(place), values[column], textRoom);
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
    for (std::size_t row = 0; row < Index(places); ++row) {
        if (deleted[row])
            continue;
        rowIds.Copy(row, kept);
        for (StoredColumn& column : columns)
            column.Copy(row, kept);
        ++kept;
    }
    rowIds.Truncate(kept);
    for (StoredColumn& column : columns)
        column.Truncate(kept);
    deleted.assign(kept, false);
    places = static_cast<int>(kept);
    deletedCount = 0;
}

void StoredRows::Shrink()
{
    rowIds.Shrink();
    for (StoredColumn& column : columns)
        column.Shrink();
    deleted.shrink_to_fit();
}
