#ifndef LIBCONTROL_COMMON_CHECKS_P_H
#define LIBCONTROL_COMMON_CHECKS_P_H

#include <QChar>

#include <cstring>

// Small character helpers shared by the identifier and address checks.
namespace LibControl {
namespace detail {

/** The length of a C string; a null pointer reads as the empty text. */
inline std::size_t checkedLength(char const *text)
{
    return text ? std::strlen(text) : 0;
}

/** An ASCII digit; QChar::isDigit would also take other scripts' digits. */
inline bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/** An ASCII letter of either case. */
inline bool isAsciiLetter(QChar c)
{
    ushort const u = c.unicode();
    return (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z');
}

} // namespace detail
} // namespace LibControl

#endif
