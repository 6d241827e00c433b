#ifndef LIBCONTROL_COMMON_DATES_H
#define LIBCONTROL_COMMON_DATES_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <QDate>
#include <QDateTime>

class MyDataStream;

// Dates in the text layouts of forms and e-filing records, tax-year day and
// month counting, and day-number doubles. The "zero date" is the invalid
// QDate(0, 0, 0); it is written as zeros in every layout, never as "".

/**
 * The `int` layout codes of FormatQDate and ReadQDate2. Functions take a
 * plain `int` because the codes are stored in forms and records; these names
 * only make call sites readable.
 */
enum DateFormatCode : int {
    DateFormatHourMinute = 5, ///< "hh:mm" (a time pattern given to the date formatter), zero "00:00"
    DateFormatYearMonth = 6, ///< "yyyyMM", zero "000000"
    DateFormatMonthDay = 7, ///< "MMdd", zero "0000"
    DateFormatShortDayFirst = 8, ///< "dd/MM/yy", zero "00/00/00"
    DateFormatDayFirst = 10, ///< "dd/MM/yyyy" when written, read month first; zero "00/00/0000"
    DateFormatCompact = 18, ///< "yyyyMMdd", zero "00000000"
    DateFormatIso = 19, ///< "yyyy-MM-dd", zero "0000-00-00"
};

/** True for the zero date, compared by value: any null date counts. */
LIBCONTROL_EXPORT bool isZero(QDate const &date);

/**
 * Sets `out` to `date` in the layout of `code` (see DateFormatCode), or to
 * the code's zero text when `date` is the zero date or invalid. An unknown
 * `code` leaves `out` unchanged. Digits are always ASCII.
 */
LIBCONTROL_EXPORT void FormatQDate(CString &out, QDate date, int code);
/**
 * Reads `text` into `date`.
 *
 * Code 10 reads *month first*: month at characters 0-1, day at 3-4, year at
 * 6-9, although FormatQDate code 10 writes the day first; a text of 9
 * characters or fewer gives the zero date.
 * Every other code reads the compact form "yyyy[MM[dd]]": fewer than 4
 * characters give the zero date, a missing month or day is 1. Texts with
 * separators ("yyyy-MM-dd") do not read correctly this way.
 * A part that is not a decimal number counts as 0; an impossible date leaves
 * `date` invalid.
 */
LIBCONTROL_EXPORT void ReadQDate2(CString const &text, int code, QDate &date);

/** Year 1850..`maxYear`, month 1..12, day 1..31 (the day is not checked against the month). */
LIBCONTROL_EXPORT bool ValidQDate(QDate date, int maxYear);
/** Only the year of the date part is checked: 1850..`maxYear`. */
LIBCONTROL_EXPORT bool ValidQDateTime(QDateTime value, int maxYear);
/**
 * Reads "yyyy-MM-dd HH:mm:ssAP" (24-hour hour directly followed by AM or PM);
 * `code` is ignored. Unreadable text gives an invalid value.
 */
LIBCONTROL_EXPORT void ReadQDateTime(CString const &text, int code, QDateTime &value);
/** Writes "yyyy-MM-dd HH:mm:ssAP"; `code` is ignored. An invalid value gives an empty text. */
LIBCONTROL_EXPORT void FormatQDateTime(CString &out, QDateTime value, int code);
/** The current local time as "yyyy-MM-dd HH:mm:ss"; `code` is ignored. */
LIBCONTROL_EXPORT void GetCurTime(CString &out, int code);
/** The current local time in the Qt pattern `layout`, or "yyyy-MM-dd HH:mm:ss" for a null or empty one. */
LIBCONTROL_EXPORT void getCurTimeStr(CString &out, char const *layout);
/**
 * The current time as "yyyy-MM-ddTHH:mm:ssZ" in UTC when `utc`, else as
 * local "yyyy-MM-dd HH:mm:ss". Returns the length of `out`.
 */
LIBCONTROL_EXPORT int getXMLDateTimeString(bool utc, CString &out);
/** `kind` 1: FormatQDate code 18; `kind` 2: code 19; any other kind: an empty text. */
LIBCONTROL_EXPORT CString GetDateStr(QDate date, int kind);
/**
 * Characters 6-9, 3-4 and 0-1 of `text`, concatenated: "dd/MM/yyyy" becomes
 * "yyyyMMdd". Nothing is checked; missing characters are simply absent.
 */
LIBCONTROL_EXPORT CString GetRawDate(CString const &text);

/** 366 for a Gregorian leap year, else 365; years below 1 give 365. */
LIBCONTROL_EXPORT int GetDaysInYear(int year);
/**
 * The day of the year, 1 for January 1. A `day` of 0 or less counts as 1 and
 * is not checked against the month; a month outside 1..12 counts as December.
 */
LIBCONTROL_EXPORT int GetDaysFromYearStart(int year, int month, int day);
/** Days from `from` to `to`, both included; 0 when either is invalid or `from` is later. */
LIBCONTROL_EXPORT int GetDaysBetween(QDate from, QDate to);
/**
 * Months between `a` and `b`, in either order. Within one year the plain
 * difference of the months; across years one month more (December 2019 to
 * January 2020 gives 2, as January to March of one year does).
 */
LIBCONTROL_EXPORT int GetMonthsBetween(QDate a, QDate b);
/** The days of `from`..`to` before `limit`; 0 when `from` is after `limit`. */
LIBCONTROL_EXPORT int GetDaysBeforeDate(QDate from, QDate to, QDate limit);
/** The days of `from`..`to` after `limit`; the whole period when `from` is after `limit`. */
LIBCONTROL_EXPORT int GetDaysAfterDate(QDate from, QDate to, QDate limit);
/** `year` minus the birth year: the age reached during `year` (month and day ignored). */
LIBCONTROL_EXPORT int GetAge(int year, QDate birth);
/**
 * The days of residence in `taxYear`, entry and departure days included. An
 * entry or departure outside `taxYear` is ignored, so with neither inside the
 * year the whole year counts.
 */
LIBCONTROL_EXPORT int DaysInCanadaInTaxYear(int taxYear, QDate entry, QDate departure);
/**
 * The days of `from`..`to` that fall in `year`. When `from` lies in `year`
 * the count runs to December 31 even if `to` is earlier in the same year.
 */
LIBCONTROL_EXPORT int GetDaysWithinYear(QDate from, QDate to, int year);

/**
 * A date kept as a day-number double.
 *
 * The two conversions are deliberately not inverse: convertDateToDouble
 * counts days since 1899-12-30 (plus noon and five minutes, shifted by the
 * local UTC offset), while convertDoubleToDate maps day number n to
 * 1899-12-31 plus n days.
 */
class LIBCONTROL_EXPORT DateAsDouble
{
public:
    /** Keeps `value` as given. */
    DateAsDouble(double value = 0.0);
    /** Keeps convertDateToDouble(`date`). */
    DateAsDouble(QDate const &date);

    double value() const { return m_value; }

    /** Writes the double (8 bytes) when the stream stores, else reads it. */
    void serialize(MyDataStream &ar);

    /**
     * Seconds of `date` at 12:00 local time since the epoch, plus 2209161600
     * and 300, over 86400. 0.0 for an invalid date.
     */
    static double convertDateToDouble(QDate const &date);
    /**
     * The date part of 1970-01-01 00:00 local time plus trunc(`value` × 86400
     * - 2209161600 + 86400) seconds; the zero date when that is before 1900
     * or `value` is not a usable number.
     */
    static QDate convertDoubleToDate(double value);

private:
    double m_value;
};

#endif
