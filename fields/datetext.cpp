#include "datetext_p.h"

#include <QLocale>

namespace {

QString const DateTimeLayout = QStringLiteral("yyyy-MM-dd HH:mm:ssAP");

int numberAt(CString const &text, int position, int length)
{
    bool ok = false;
    int const value = text.mid(position, length).toInt(&ok, 10);
    return ok ? value : 0;
}

} // namespace

namespace LibControl {
namespace detail {

void formatCompactDate(CString &out, QDate const &date)
{
    out = date.isValid() ? QLocale::c().toString(date, QStringLiteral("yyyyMMdd")) : QStringLiteral("00000000");
}

void readCompactDate(CString const &text, QDate &date)
{
    if (text.length() < 4) {
        date = QDate();
        return;
    }
    int const year = numberAt(text, 0, 4);
    int const month = text.length() < 6 ? 1 : numberAt(text, 4, 2);
    int const day = text.length() < 8 ? 1 : numberAt(text, 6, 2);
    date.setDate(year, month, day);
}

void formatDateTime(CString &out, QDateTime const &value)
{
    out = value.isValid() ? QLocale::c().toString(value, DateTimeLayout) : QString();
}

void readDateTime(CString const &text, QDateTime &value)
{
    value = QLocale::c().toDateTime(text, DateTimeLayout);
}

} // namespace detail
} // namespace LibControl
