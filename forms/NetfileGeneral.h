#ifndef LIBCONTROL_FORMS_NETFILEGENERAL_H
#define LIBCONTROL_FORMS_NETFILEGENERAL_H

// Netfile record writers: one call per return line, each deciding on its own
// whether the value is worth a line, formatting it, appending the element,
// counting it and remembering the value for the return's cross-checks.

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <map>

class CFloatField;

/**
 * One value written to the Netfile output, as remembered in the map keyed by
 * field code. nType tells which member of the union is meaningful: 1 a
 * whole-dollar amount and 2 an amount in dollars and cents (dValue), 3 a
 * number (nValue), 4 a text (szValue, zero-terminated when it holds fewer
 * than 32 bytes).
 */
struct LIBCONTROL_EXPORT STRUCT_NETFILE_TIA_FIELD_TYPE
{
    int nType;
    union {
        double dValue;
        int nValue;
        char szValue[32];
    };
};

/**
 * What the record functions write into, shared by every form of the return.
 * Each pointer may be null: a null pOutput drops the element text, a null
 * pLineCount leaves lines uncounted and a null pTiaFields records nothing.
 * None is owned.
 */
struct LIBCONTROL_EXPORT NetfileGenObjParamStru
{
    /** Free for the application's forms; the record functions never read it. */
    void *pContext;
    /** The XML text being built; elements are appended to it. */
    CString *pOutput;
    /** Grows by one for every line written. */
    int *pLineCount;
    /** The values written, by field code; the first value written for a code is kept. */
    std::map<int, STRUCT_NETFILE_TIA_FIELD_TYPE> *pTiaFields;
};

/**
 * A whole-dollar line for an amount of a cent or more, rounded half away from
 * zero; an amount that rounds to 0 is filed as 1 or -1 by its sign.
 *
 * With `code` 0 the element carries the field's own line code, while the
 * value is still recorded under 0. Records the filed figure (type 1).
 * Returns 1 when a line was written, 0 otherwise.
 */
LIBCONTROL_EXPORT int NETFILE_DOLLAR_FIELD_Func(int code, CFloatField &field, NetfileGenObjParamStru &param);
/**
 * A whole-dollar line that is always written: amounts of at least a dollar
 * are rounded half away from zero and recorded unrounded; smaller ones, zero
 * and negatives included, are filed and recorded as 1. Returns 0.
 */
LIBCONTROL_EXPORT int NETFILE_DOLLAR_FIELD_IFZEROTHENONE_Func(int code, CFloatField &field,
                                                             NetfileGenObjParamStru &param);
/**
 * A whole-dollar line with the cents dropped (12.99 files 12) for a value of
 * at least a dollar either way; records `value` unrounded. Returns 0.
 */
LIBCONTROL_EXPORT int NETFILE_DOLLAR_VALUE_Func(int code, double value, NetfileGenObjParamStru &param);
/**
 * As NETFILE_DOLLAR_VALUE_Func, but a value under a dollar is filed and
 * recorded as 1 instead of being left out. Returns 0.
 */
LIBCONTROL_EXPORT int NETFILE_DOLLAR_VALUE_IFZEROTHENONE_Func(int code, double value, NetfileGenObjParamStru &param);
/**
 * A line in cents (1234.56 files 123456) for a value of a cent or more;
 * records `value` (type 2). Returns 0.
 */
LIBCONTROL_EXPORT int NETFILE_DOLLARCENT_VALUE_Func(int code, double value, NetfileGenObjParamStru &param);
/**
 * A line holding the whole part of `value` for a value of a cent or more
 * either way; records the whole part (type 3). Returns 0.
 */
LIBCONTROL_EXPORT int NETFILE_NUMERIC_VALUE_Func(int code, double value, NetfileGenObjParamStru &param);
/**
 * A text line, escaped and cut to `maxLen` characters (0: no limit), unless
 * the text is blank (or blank once cut). Leading and trailing spaces are
 * filed as they stand.
 *
 * The recorded value (type 4) holds the first 31 UTF-8 bytes when `maxLen`
 * is 0, the first `maxLen` bytes for 1 to 31, and stays empty for 32 or
 * more. A negative `maxLen` writes nothing. Returns 0.
 */
LIBCONTROL_EXPORT int NETFILE_STRING_Func(int code, int maxLen, CString &text, NetfileGenObjParamStru &param);
/** NETFILE_STRING_Func over `text` read as Latin-1; a null text writes nothing. Returns 0. */
LIBCONTROL_EXPORT int NETFILE_STRING_VALUE_Func(int code, int maxLen, char const *text,
                                                NetfileGenObjParamStru &param);
/**
 * A commodity line (code and amount with the cents dropped) for an amount of
 * a cent or more; nothing is recorded. Returns 1 when written, 0 otherwise.
 */
LIBCONTROL_EXPORT int NETFILE_DOLLAR_CCMMODITY_FIELD_Func(CString &commodityCode, CFloatField &field,
                                                          NetfileGenObjParamStru &param);
/**
 * The commodity total: a field code and a whole-dollar amount rounded half
 * away from zero, for an amount of at least a dollar either way. It writes
 * two elements but counts as one line, and records the unrounded amount
 * (type 1). Returns 1 when written, 0 otherwise.
 */
LIBCONTROL_EXPORT int NETFILE_COMMODITY_TOTAL_FIELD_Func(int code, CFloatField &field, NetfileGenObjParamStru &param);

#endif
