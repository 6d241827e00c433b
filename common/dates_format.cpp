#include <LibControl/common/dates.h>

#include <QLocale>

namespace {

struct DateLayout
{
    int code;
    char const *pattern;
    char const *zeroText;
};

// Code 5 is a time pattern handed to the date formatter; it comes out as the
// pattern text itself and is kept that way.
constexpr DateLayout Layouts[] = {
    { 5, "hh:mm", "00:00" },
    { 6, "yyyyMM", "000000" },
    { 7, "MMdd", "0000" },
    { 8, "dd/MM/yy", "00/00/00" },
    { 10, "dd/MM/yyyy", "00/00/0000" },
    { 18, "yyyyMMdd", "00000000" },
    { 19, "yyyy-MM-dd", "0000-00-00" },
};

DateLayout const *findLayout(int code)
{
    for (DateLayout const &layout : Layouts) {
        if (layout.code == code)
            return &layout;
    }
    return nullptr;
}

QLatin1String const DateTimeLayout("yyyy-MM-dd HH:mm:ssAP");
QLatin1String const CurrentTimeLayout("yyyy-MM-dd HH:mm:ss");

// A part that is not a decimal number counts as 0 (toInt's failure value).
int numberAt(QString const &text, int position, int length)
{
    return text.midRef(position, length).toInt();
}

QDate makeDate(int year, int month, int day)
{
    QDate date;
    date.setDate(year, month, day);
    return date;
}

QDate readMonthFirst(QString const &text)
{
    if (text.length() <= 9)
        return QDate(0, 0, 0);
    return makeDate(numberAt(text, 6, 4), numberAt(text, 0, 2), numberAt(text, 3, 2));
}

QDate readCompact(QString const &text)
{
    if (text.length() < 4)
        return QDate(0, 0, 0);
    int const year = numberAt(text, 0, 4);
    int const month = text.length() < 6 ? 1 : numberAt(text, 4, 2);
    int const day = text.length() < 8 ? 1 : numberAt(text, 6, 2);
    return makeDate(year, month, day);
}

} // namespace

bool isZero(QDate const &date)
{
    return date == QDate(0, 0, 0);
}

void FormatQDate(CString &out, QDate date, int code)
{
    DateLayout const *layout = findLayout(code);
    if (!layout)
        return;
    if (isZero(date) || !date.isValid())
        out = CString(layout->zeroText);
    else
        out = QLocale::c().toString(date, QLatin1String(layout->pattern));
}

void ReadQDate2(CString const &text, int code, QDate &date)
{
    // Code 10 is read month first although it is written day first; files
    // in the field depend on this asymmetry.
    date = code == DateFormatDayFirst ? readMonthFirst(text) : readCompact(text);
}

bool ValidQDate(QDate date, int maxYear)
{
    int const year = date.year();
    int const month = date.month();
    int const day = date.day();
    return year >= 1850 && year <= maxYear && month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

bool ValidQDateTime(QDateTime value, int maxYear)
{
    int const year = value.date().year();
    return year >= 1850 && year <= maxYear;
}

void ReadQDateTime(CString const &text, int, QDateTime &value)
{
    value = QLocale::c().toDateTime(text, DateTimeLayout);
}

void FormatQDateTime(CString &out, QDateTime value, int)
{
    out = QLocale::c().toString(value, DateTimeLayout);
}

void GetCurTime(CString &out, int)
{
    out = QLocale::c().toString(QDateTime::currentDateTime(), CurrentTimeLayout);
}

void getCurTimeStr(CString &out, char const *layout)
{
    QString const pattern = layout && *layout ? QString::fromUtf8(layout) : QString(CurrentTimeLayout);
    out = QLocale::c().toString(QDateTime::currentDateTime(), pattern);
}

int getXMLDateTimeString(bool utc, CString &out)
{
    if (utc)
        out = QLocale::c().toString(QDateTime::currentDateTimeUtc(), QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
    else
        out = QLocale::c().toString(QDateTime::currentDateTime(), CurrentTimeLayout);
    return out.length();
}

CString GetDateStr(QDate date, int kind)
{
    CString out;
    if (kind == 1)
        FormatQDate(out, date, DateFormatCompact);
    else if (kind == 2)
        FormatQDate(out, date, DateFormatIso);
    return out;
}

CString GetRawDate(CString const &text)
{
    return CString(text.mid(6, 4) + text.mid(3, 2) + text.mid(0, 2));
}
