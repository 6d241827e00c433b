#ifndef LIBCONTROL_FIELDS_DATETEXT_P_H
#define LIBCONTROL_FIELDS_DATETEXT_P_H

#include <LibControl/common/cstring.h>

#include <QDate>
#include <QDateTime>

// Stand-ins for the shared date text functions of common/ (code 18 and the
// date-time layout only), used by the date fields until those land.
namespace LibControl {
namespace detail {

void formatCompactDate(CString &out, QDate const &date);
void readCompactDate(CString const &text, QDate &date);
void formatDateTime(CString &out, QDateTime const &value);
void readDateTime(CString const &text, QDateTime &value);

} // namespace detail
} // namespace LibControl

#endif
