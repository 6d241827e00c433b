#include <LibControl/common/dates.h>

#include <limits>

namespace {

int dayOfYear(QDate const &date)
{
    return GetDaysFromYearStart(date.year(), date.month(), date.day());
}

// Leap years among 1..year (0 for year < 1), Gregorian rule.
qint64 leapYearsUpTo(qint64 year)
{
    return year < 1 ? 0 : year / 4 - year / 100 + year / 400;
}

// Sum of GetDaysInYear over first..last (inclusive), without a loop: dates
// may lie millions of years apart.
qint64 daysInYears(qint64 first, qint64 last)
{
    if (first > last)
        return 0;
    return 365 * (last - first + 1) + leapYearsUpTo(last) - leapYearsUpTo(qMax<qint64>(first, 1) - 1);
}

int clampToInt(qint64 value)
{
    return int(qBound<qint64>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

bool liesIn(QDate const &date, int year)
{
    return date.isValid() && date.year() == year;
}

} // namespace

int GetDaysInYear(int year)
{
    if (year < 1)
        return 365;
    bool const leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return leap ? 366 : 365;
}

int GetDaysFromYearStart(int year, int month, int day)
{
    if (day <= 0)
        day = 1;
    if (month == 1)
        return day;
    if (month == 2)
        return day + 31;
    int const beforeMarch = GetDaysInYear(year) == 366 ? 60 : 59;
    static constexpr int FromMarch[] = { 0, 31, 61, 92, 122, 153, 184, 214, 245 };
    int const sinceMarch = month >= 3 && month <= 11 ? FromMarch[month - 3] : 275;
    return day + beforeMarch + sinceMarch;
}

int GetDaysBetween(QDate from, QDate to)
{
    if (!from.isValid() || !to.isValid() || from > to)
        return 0;
    if (from.year() == to.year())
        return dayOfYear(to) - dayOfYear(from) + 1;
    qint64 const days = GetDaysInYear(from.year()) - dayOfYear(from) + 1
        + daysInYears(qint64(from.year()) + 1, qint64(to.year()) - 1) + dayOfYear(to);
    return clampToInt(days);
}

int GetMonthsBetween(QDate a, QDate b)
{
    if (!a.isValid() || !b.isValid())
        return 0;
    qint64 const ya = a.year();
    qint64 const yb = b.year();
    qint64 const ma = a.month();
    qint64 const mb = b.month();
    // Across a year boundary one more month is counted than within a year.
    if (ya == yb)
        return int(qAbs(ma - mb));
    if (ya > yb)
        return clampToInt((ma - mb) + 12 * (ya - yb) + 1);
    return clampToInt((mb - ma) + 12 * (yb - ya) + 1);
}

int GetDaysBeforeDate(QDate from, QDate to, QDate limit)
{
    if (from > limit)
        return 0;
    if (to >= limit)
        return qMax(0, GetDaysBetween(from, limit) - 1);
    return GetDaysBetween(from, to);
}

int GetDaysAfterDate(QDate from, QDate to, QDate limit)
{
    if (from > limit)
        return GetDaysBetween(from, to);
    if (to < limit)
        return 0;
    return qMax(0, GetDaysBetween(limit, to) - 1);
}

int GetAge(int year, QDate birth)
{
    return clampToInt(qint64(year) - birth.year());
}

int DaysInCanadaInTaxYear(int taxYear, QDate entry, QDate departure)
{
    int const daysInYear = GetDaysInYear(taxYear);
    bool const entryInYear = liesIn(entry, taxYear);
    bool const departureInYear = liesIn(departure, taxYear);
    if (!entryInYear && !departureInYear)
        return daysInYear;
    int const first = entryInYear ? GetDaysFromYearStart(taxYear, entry.month(), entry.day()) : 1;
    int const last = departureInYear ? GetDaysFromYearStart(taxYear, departure.month(), departure.day()) : daysInYear;
    return qMax(0, last - first + 1);
}

int GetDaysWithinYear(QDate from, QDate to, int year)
{
    if (!from.isValid() || !to.isValid() || from.year() > year || to.year() < year)
        return 0;
    if (from.year() < year && year < to.year())
        return GetDaysInYear(year);
    // A period starting in `year` counts to December 31 even when it ends
    // earlier that year; the residency forms expect this.
    if (from.year() == year)
        return GetDaysInYear(year) - dayOfYear(from) + 1;
    return dayOfYear(to);
}
