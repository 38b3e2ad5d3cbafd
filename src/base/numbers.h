#pragma once

#include <QString>

#include <string_view>

/// The number that a typed text stands for. Blanks (spaces and tabs) are skipped wherever they stand; a sign, digits
/// and at most one decimal point are read up to the first character that cannot continue a decimal number. A text that
/// does not start with a number is 0. Only the digits 0 to 9 count. A number too large for a double is the largest one.
double NumericValue(QStringView text);
double NumericValue(std::string_view utf8);

/// The number as a grid cell or a text box shows it: the shortest plain decimal that NumericValue reads as the same
/// number, so without an exponent and without a leading blank.
QString PlainNumber(double value);

/// The number as it is joined into a message: with one leading space in the place of the sign when it is not negative.
QString SpacedNumber(double value);

/// 2 to the power of 53: up to here every whole number is a double of its own.
inline constexpr double LargestExactWhole = 9007199254740992.0;

/// Whether the value is a whole number within the given bounds, both included.
bool IsWholeBetween(double value, int low, int high);
