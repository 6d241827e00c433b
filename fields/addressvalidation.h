#ifndef LIBCONTROL_FIELDS_ADDRESSVALIDATION_H
#define LIBCONTROL_FIELDS_ADDRESSVALIDATION_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <list>

class CIntField;
class CStringField;

/**
 * Validates an address block made of street number and name, city,
 * province, country and postal code fields, appending one message per
 * problem to `messages`, in this order:
 *
 * - "Street number/name": the street number is blank, or is 9 characters or
 *   longer (blanks included), or the street name is blank;
 * - "City": the city is blank;
 * - for country 1 (Canada): "Province" when the province value is 0, then
 *   "Postal code" when the postal code is blank or fails CheckCAPostCode;
 * - for country 2 (United States): "State" when the province value is 0,
 *   then "Postal code" when the postal code is blank or fails
 *   CheckUSPostCode;
 * - for country 0: "Country". Other countries get no further check.
 *
 * Each message is `QString::asprintf(format, label, context)`, so `format`
 * must hold exactly two "%s": the label above, then `context` (the caller's
 * name for the block). Blank means empty or white space only; the postal
 * code is checked without its leading and trailing blanks.
 *
 * Returns the number of messages added, which is also added to `errorCount`.
 */
LIBCONTROL_EXPORT long validateAddr(long &errorCount, std::list<CString> &messages, CStringField &streetNumber,
    CStringField &streetName, CStringField &city, CIntField const &province, CIntField const &country,
    CStringField &postalCode, char const *format, char const *context);

/**
 * As validateAddr() for a block whose street address is one line: the label
 * "Street address" is reported when `streetNumber` (the line) is blank; its
 * length and `streetName` are not looked at.
 */
LIBCONTROL_EXPORT long validateAddr2(long &errorCount, std::list<CString> &messages, CStringField &streetNumber,
    CStringField &streetName, CStringField &city, CIntField const &province, CIntField const &country,
    CStringField &postalCode, char const *format, char const *context);

#endif
