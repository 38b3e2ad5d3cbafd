#include "base/numbers.h"

#include <QLocale>

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <string>

double NumericValue(QStringView text)
{
    const QByteArray utf8 = text.toUtf8();
    return NumericValue(std::string_view(utf8.constData(), static_cast<size_t>(utf8.size())));
}

double NumericValue(std::string_view utf8)
{
    std::string number;
    for (const char character : utf8) {
        if (character == ' ' || character == '\t')
            continue;
        const bool isSign = number.empty() && (character == '-' || character == '+');
        const bool isPoint = character == '.' && number.find('.') == std::string::npos;
        const bool isDigit = character >= '0' && character <= '9';
        if (!isDigit && !isSign && !isPoint)
            break;
        number += character;
    }
    const bool isNegative = number.starts_with('-');
    if (isNegative || number.starts_with('+'))
        number.erase(0, 1);
    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed);
    // Out of range is what is too large, and what is too close to zero, with no digit that counts before the point.
    if (read.ec == std::errc::result_out_of_range && number.find_first_of("123456789") < number.find('.'))
        value = DBL_MAX;
    return isNegative ? 0 - value : value;
}

QString PlainNumber(double value)
{
    return QString::number(std::clamp(value, -DBL_MAX, DBL_MAX) + 0.0, 'f', QLocale::FloatingPointShortest);
}

QString SpacedNumber(double value)
{
    return value < 0 ? PlainNumber(value) : u' ' + PlainNumber(value);
}

bool IsWholeBetween(double value, int low, int high)
{
    return value >= low && value <= high && value == std::floor(value);
}
