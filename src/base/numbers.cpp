#include "base/numbers.h"

#include <cfloat>
#include <charconv>
#include <cmath>
#include <string>

namespace {

constexpr double LargestExactWhole = 9007199254740992.0;

template <typename Text>
double ReadLeadingNumber(const Text& text)
{
    std::string number;
    bool point = false;
    bool digits = false;
    for (const auto character : text) {
        const auto unit = static_cast<char32_t>(QChar(character).unicode());
        if (unit == U' ' || unit == U'\t')
            continue;
        if ((unit == U'-' || unit == U'+') && number.empty()) {
            number += static_cast<char>(unit);
        } else if (unit == U'.' && !point) {
            point = true;
            number += '.';
        } else if (unit >= U'0' && unit <= U'9') {
            digits = true;
            number += static_cast<char>(unit);
        } else {
            break;
        }
    }
    if (!digits)
        return 0;
    const char* first = number.c_str() + (number.front() == '+' ? 1 : 0);
    double value = 0;
    const auto result = std::from_chars(first, number.c_str() + number.size(), value, std::chars_format::fixed);
    if (result.ec == std::errc::result_out_of_range) {
        // The same error stands for too large and for too close to zero; only the first has a digit before the point.
        const auto whole = number.substr(0, number.find('.'));
        if (whole.find_first_of("123456789") == std::string::npos)
            return 0;
        return number.front() == '-' ? -DBL_MAX : DBL_MAX;
    }
    return value == 0 ? 0 : value;
}

} // namespace

double NumericValue(QStringView text)
{
    return ReadLeadingNumber(text);
}

double NumericValue(std::string_view utf8)
{
    // Every byte of a character outside ASCII ends the number, so the bytes can be read one by one.
    struct Bytes
    {
        const unsigned char* first;
        const unsigned char* last;
        const unsigned char* begin() const { return first; }
        const unsigned char* end() const { return last; }
    };
    const auto* first = reinterpret_cast<const unsigned char*>(utf8.data());
    return ReadLeadingNumber(Bytes{first, first + utf8.size()});
}

QString PlainNumber(double value)
{
    if (value == std::floor(value) && std::fabs(value) < LargestExactWhole)
        return QString::number(static_cast<qint64>(value));
    return QString::number(value, 'g', 15);
}

QString SpacedNumber(double value)
{
    return value < 0 ? PlainNumber(value) : u' ' + PlainNumber(value);
}

bool IsWholeBetween(double value, int low, int high)
{
    return value >= low && value <= high && value == std::floor(value);
}
