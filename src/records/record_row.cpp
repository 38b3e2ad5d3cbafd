#include "records/record_row.h"

#include "base/numbers.h"

#include <cmath>

double RecordRow::NumberOfOther(int position) const
{
    const Value value = Field(position);
    if (const auto* real = std::get_if<double>(&value))
        return *real;
    const auto* text = std::get_if<std::string_view>(&value);
    return text == nullptr ? 0 : NumericValue(*text);
}

std::int64_t RecordRow::WholePart(int position) const
{
    const double number = Number(position);
    return std::fabs(number) < LargestExactWhole ? static_cast<std::int64_t>(number) : 0;
}

std::string_view RecordRow::Text(int position) const
{
    const Value value = Field(position);
    const auto* text = std::get_if<std::string_view>(&value);
    return text == nullptr ? std::string_view() : *text;
}

std::vector<Bookmark> RecordList::Marks(int first, int last) const
{
    std::vector<Bookmark> marks;
    for (int row = first; row <= last; ++row)
        marks.push_back((*this)[row].Mark());
    return marks;
}
