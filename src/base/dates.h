#pragma once

#include <QDate>
#include <QString>

#include <array>
#include <string>
#include <string_view>

/// The full English day names, indexed 0 to 6 = Monday to Sunday, as every day set of the program is.
extern const std::array<QString, 7> DayNames;

/// The index of the date's weekday in a day set: 0 Monday to 6 Sunday. The date must be valid.
int DaySetIndex(QDate date);

/// The three-letter English name of the date's weekday, "Sun" to "Sat"; empty for an invalid date.
QString ShortDayName(QDate date);

/// "Saturday, 5 February 2000", always in English; empty for an invalid date.
QString LongDate(QDate date);

/// The same for a date as the files hold it; a text that is no date is given as it stands.
QString LongStoredDate(std::string_view iso);

/// "5 February 2000", always in English, for a date as the files hold it; a text that is no date is given as it stands.
QString StoredDateInWords(std::string_view iso);

/// The desktop's own short form of a date, with the year in four digits, as QLocale writes formats.
QString ShortDateFormat();

/// The date in the desktop's own short form, with the year in four digits; empty for an invalid date.
QString ShortDate(QDate date);

/// The same for a date as the files hold it; a text that is no date is given as it stands.
QString ShortStoredDate(std::string_view iso);

/// The form in which the database files hold a date, YYYY-MM-DD, and back. Month and day may lack their leading zeros,
/// as other tools write them; any other text is an invalid date.
std::string IsoDate(QDate date);
QDate DateFromIso(std::string_view iso);
