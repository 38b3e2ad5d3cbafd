#include "base/dates.h"

#include "base/texts.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

const QLocale& English()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    return locale;
}

int Digits(std::string_view text)
{
    int value = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9')
            return -1;
        value = value * 10 + (digit - '0');
    }
    return value;
}

} // namespace

const std::array<QString, 7> DayNames{u"Monday"_s, u"Tuesday"_s,  u"Wednesday"_s, u"Thursday"_s,
                                      u"Friday"_s, u"Saturday"_s, u"Sunday"_s};

int DaySetIndex(QDate date)
{
    return date.dayOfWeek() - 1;
}

QString ShortDayName(QDate date)
{
    return date.isValid() ? DayNames.at(static_cast<size_t>(DaySetIndex(date))).left(3) : QString();
}

QString LongDate(QDate date)
{
    return English().toString(date, u"dddd, d MMMM yyyy"_s);
}

QString LongStoredDate(std::string_view iso)
{
    const QDate date = DateFromIso(iso);
    return date.isValid() ? LongDate(date) : ShownText(iso);
}

QString StoredDateInWords(std::string_view iso)
{
    const QDate date = DateFromIso(iso);
    return date.isValid() ? English().toString(date, u"d MMMM yyyy"_s) : ShownText(iso);
}

QString ShortDateFormat()
{
    QString format = QLocale::system().dateFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy"_L1))
        format.replace("yy"_L1, "yyyy"_L1);
    return format;
}

QString ShortDate(QDate date)
{
    static const QString format = ShortDateFormat();
    return QLocale::system().toString(date, format);
}

QString ShortStoredDate(std::string_view iso)
{
    const QDate date = DateFromIso(iso);
    return date.isValid() ? ShortDate(date) : ShownText(iso);
}

std::string IsoDate(QDate date)
{
    return date.toString(Qt::ISODate).toStdString();
}

QDate DateFromIso(std::string_view iso)
{
    const size_t afterYear = iso.find('-');
    const size_t afterMonth = iso.rfind('-');
    if (afterYear != 4 || afterMonth <= afterYear)
        return {};
    const std::string_view month = iso.substr(afterYear + 1, afterMonth - afterYear - 1);
    const std::string_view day = iso.substr(afterMonth + 1);
    if (month.size() > 2 || day.size() > 2 || Digits(iso.substr(0, afterYear)) < 1)
        return {};
    return {Digits(iso.substr(0, afterYear)), Digits(month), Digits(day)};
}
