#ifndef LIBCONTROL_COMMON_IDCHECKS_H
#define LIBCONTROL_COMMON_IDCHECKS_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

/*
 * Shape and check-digit tests of Canadian tax identifiers.
 *
 * Every check is pure: true means acceptable, and the caller chooses the
 * words of any message. None of them trims or drops separators, so callers
 * pass the bare characters. A null `char const*` is read as the empty text.
 * Exception lists are null-terminated arrays of C strings whose members are
 * accepted as they stand (case ignored); a null list accepts nothing.
 */

/**
 * The library's own exception list for business numbers: "NR" (no business
 * number, for non-residents), then the terminating null.
 */
LIBCONTROL_EXPORT extern char const *s_Allowed_BusinessNumbers[2];

/**
 * True when `text` equals one of the entries of the null-terminated `list`,
 * compared with stricmp (ASCII case ignored). A null `text`, a null list or a
 * list whose first entry is null gives false.
 */
LIBCONTROL_EXPORT bool isStrPartOfArrayOfStrs(char const *text, char const *const *list);

/**
 * Luhn check: `digits` has an odd length of at most 127 ASCII digits and its
 * last digit is the check digit of the others (every second digit of the
 * body, starting with the second, doubled).
 * An even length fails even when the digits would satisfy the rule; the
 * one-digit text "0" passes and any other single digit fails.
 */
LIBCONTROL_EXPORT bool CheckMod10(char const *digits);

/**
 * A social insurance number: a member of `exceptions` (whatever its shape),
 * or exactly 9 ASCII digits whose ninth is the Luhn check digit of the first
 * eight. The first digit is not restricted.
 */
LIBCONTROL_EXPORT bool CheckSIN(char const *sin, char const **exceptions);
/** CheckSIN without exceptions. */
LIBCONTROL_EXPORT bool CheckSIN(char const *sin);

/**
 * A 15-character program account number: 9 ASCII digits that are not all
 * zero (and, when `checkDigit` is true, pass CheckMod10), then the 2-letter
 * `program` identifier in any case, then 4 ASCII digits.
 */
LIBCONTROL_EXPORT bool CheckCRAProgNum(char const *number, char const *program, bool checkDigit);
/** A business number account: CheckCRAProgNum with "RC" and the check digit. */
LIBCONTROL_EXPORT bool CheckBusiNum(char const *number);
/** A member of s_Allowed_BusinessNumbers ("NR" in any case), or CheckBusiNum. */
LIBCONTROL_EXPORT bool CheckBusiNum2(char const *number);
/**
 * A GST/HST account: CheckCRAProgNum of the UTF-8 text with "RT". The check
 * digit of the first nine digits is deliberately not tested.
 */
LIBCONTROL_EXPORT bool CheckGSTAccountNumber(CString const &number);

/**
 * A partnership account: 9 ASCII digits passing CheckMod10, "RZ" in any case,
 * 4 ASCII digits. Unlike CheckCRAProgNum nine zeros are not refused, so
 * "000000000RZ0000" passes.
 */
LIBCONTROL_EXPORT bool CheckPartnershipID(char const *number);
/** Exactly 9 ASCII digits, without a check digit. */
LIBCONTROL_EXPORT bool CheckPartnershipIDOrFileID(CString const &id);
/** The same as CheckPartnershipIDOrFileID. */
LIBCONTROL_EXPORT bool CheckPartnershipNumber(CString const &id);

/**
 * A trust account: a member of `exceptions`, or 9 characters whose first is
 * "T", "t" or "A" (a lower-case "a" fails) and whose other 8 are ASCII digits.
 */
LIBCONTROL_EXPORT bool CheckTrustNumber(char const *number, char const **exceptions);
/** A tax shelter number: 8 characters, "T" then "S" (either case), then 6 ASCII digits. */
LIBCONTROL_EXPORT bool CheckTaxShelterNumber(CString const &number);

/**
 * A NISA PIN: 8 characters whose first digit is at most 2 and whose eighth is
 * the check digit of the first seven, with the 1st, 3rd, 5th and 7th digits
 * doubled (the opposite parity of CheckMod10).
 * Characters are turned into numbers by subtracting "0" with no other test,
 * so a non-digit is not refused as such, only by the arithmetic.
 */
LIBCONTROL_EXPORT bool CheckNISAPIN(char const *pin);

/** Exactly 7 characters, each an ASCII digit or "." in any arrangement. */
LIBCONTROL_EXPORT bool CheckSREDFieldCode(char const *code);
/**
 * A compact date: the first 8 characters are ASCII digits. Later characters
 * are not looked at and no range check is made, so "2024130199" passes.
 */
LIBCONTROL_EXPORT bool CheckDate(char const *date);
/** An empty text, or one of ASCII digits only. */
LIBCONTROL_EXPORT bool CheckIsAllNumber(char const *text);

#endif
