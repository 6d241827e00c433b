#ifndef LIBCONTROL_COMMON_ADDRESSCHECKS_H
#define LIBCONTROL_COMMON_ADDRESSCHECKS_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

/*
 * Checks of names, addresses, postal codes, phone numbers and e-mail
 * addresses against the e-filing formats, and the helpers that reduce such
 * texts to their raw form. All are pure; true means acceptable.
 *
 * Byte versus character: the name and address checks work on bytes (of the
 * `char const*`, or of the UTF-8 form of a CString). A byte above 0x7F is
 * sign-extended before the accented-letter test and so never passes it: an
 * accented letter counts only where any byte would. Only CheckCityName tests
 * real characters against the accented-letter table. A null `char const*`
 * is read as the empty text.
 */

// --- Names -----------------------------------------------------------------

/**
 * A personal name. Empty passes. The first byte must be an ASCII letter and
 * the last an ASCII letter, a digit or "-". In a name of 3 bytes or more the
 * inner bytes may be anything but the double quote and
 * # $ % & ( ) * + , / : ; < = > ? @ [ \ ] ^ _ ` { | } ~ (so space, "'", "-",
 * ".", "!", control bytes and bytes above 0x7F pass). A name starting or
 * ending with an accented letter fails.
 */
LIBCONTROL_EXPORT bool CheckName(char const *name);
/** The same as CheckName. */
LIBCONTROL_EXPORT bool CheckSpouseName(char const *name);
/** CheckName of the UTF-8 bytes of `name`. */
LIBCONTROL_EXPORT bool CheckBusiName(CString const &name);
/**
 * A city. Empty passes; every character must be an ASCII letter or digit,
 * one of space ' - . /, or in the accented-letter table (isCharDiacritic), so
 * "Saint-Jérôme" passes while U+00C5 and anything at or above U+0100 fail.
 */
LIBCONTROL_EXPORT bool CheckCityName(CString const &city);
/** Empty, or every character is a space or passes IsAlphaChar. */
LIBCONTROL_EXPORT bool CheckIsAlphaOrSpace(CString const &text);
/** Empty, or every character is an ASCII digit. The `int` is not used. */
LIBCONTROL_EXPORT bool CheckIsDigitStr(CString const &text, int);

// --- Addresses -------------------------------------------------------------

/**
 * The rules every address line shares. Trims `address` in place first.
 * Empty passes. "C/O", "c/o", "A/S" or "a/s" anywhere refuses it (mixed case
 * such as "C/o" is not looked for). The first character must not be one of
 * - ` \ / & ( ) < > { } [ ] # . and the last not one of the same set without
 * the full stop.
 */
LIBCONTROL_EXPORT bool CheckAddress_common(CString &address);
/**
 * A street address line: CheckAddress_common, then on the UTF-8 bytes the
 * first must be an ASCII letter or digit, the last an ASCII letter, digit or
 * "." and, from 3 bytes on, every inner byte an ASCII letter, digit, or one
 * of space # & ' ( ) , - . / (so an accented letter refuses the line).
 */
LIBCONTROL_EXPORT bool CheckAddress(CString &address);
/**
 * A care-of line: as CheckAddress, but the inner bytes may only be ASCII
 * letters, digits, or one of space & ' - . / (no "#", parentheses or comma).
 * The care-of marker itself ("C/O") is refused like any address.
 */
LIBCONTROL_EXPORT bool CheckAddrCO(CString &line);
/** A copy of `address` with every "c/o " and every "C/O " (with the space) removed. */
LIBCONTROL_EXPORT CString GetPurifiedAddr(CString const &address);
/** Leaves the text unchanged; kept as a hook for callers. */
LIBCONTROL_EXPORT void PurifyT2String(CString &text);

// --- Postal codes and countries -------------------------------------------

/**
 * A Canadian postal code: letter, digit, letter, digit, letter, digit (ASCII
 * letters of either case, none excluded). Six characters are taken as they
 * are; from seven on, the fourth must be "-" or a space and is skipped, and
 * anything after the seventh is ignored. Fewer than six fail.
 */
LIBCONTROL_EXPORT bool CheckCAPostCode(char const *code);
/** A ZIP code: 5, 9 or 10 characters, each an ASCII digit or "-" (anywhere). */
LIBCONTROL_EXPORT bool CheckUSPostCode(char const *code);
/** Exactly 3 capital ASCII letters. */
LIBCONTROL_EXPORT bool CheckCountryCode(char const *code);
/**
 * The letters and digits of a Canadian postal code picked out of `text`:
 * alternately an ASCII letter and a digit, starting with a letter, skipping
 * whatever does not fit; at most 6, in capitals. "1k1a0b1x" gives "K1A0B1";
 * a text without such characters gives an empty result.
 */
LIBCONTROL_EXPORT CString GetCARawPostcode(CString const &text);
/** The first 5 characters of the trimmed text. */
LIBCONTROL_EXPORT CString GetUSRawPostcode(CString const &text);
/** GetCARawPostcode(text). */
LIBCONTROL_EXPORT CString GetRawPostcode(CString const &text);

// --- Telephone numbers -----------------------------------------------------

/**
 * The ASCII digits of `text` in order; with `padToTen`, "0" is appended
 * until there are at least 10.
 */
LIBCONTROL_EXPORT CString GetRawPhoneStr(CString const &text, bool padToTen);
/** The ASCII digits of `text` in order; the other arguments are not used. */
LIBCONTROL_EXPORT CString GetNumStr(CString const &text, bool, int);
/**
 * At least 10 digits in `text` (separators ignored) and, unless
 * `allowAllZero`, not exactly "0000000000". Eleven zeros pass.
 */
LIBCONTROL_EXPORT bool CheckPhoneNumber(CString const &text, bool allowAllZero);
/** CheckPhoneNumber(text, false). */
LIBCONTROL_EXPORT bool CheckPhoneNumber(CString const &text);
/**
 * The phone-number edit's test: `text` must hold at least one digit,
 * parenthesis, hyphen or space somewhere (a deliberately loose test), then
 * CheckPhoneNumber of its digits decides.
 */
LIBCONTROL_EXPORT bool CheckPhoneFlatEditNumber(CString const &text, bool allowAllZero);
/**
 * Whether a phone number was entered at all: false when the digits, padded
 * to ten with "0", begin with ten zeros.
 */
LIBCONTROL_EXPORT bool ChkPhoneStrHasSomething(CString const &text);
/**
 * Formats 10 digits as "(416)-5551234": `out` becomes `digits` (Latin-1) with
 * "(" in front and ")-" after the area code. A text that already starts with
 * "(" is copied as it is; a text shorter than an area code gets ")-" at its
 * end; a null or empty text gives an empty `out`.
 */
LIBCONTROL_EXPORT void myStringToPhone(char const *digits, CString &out);

// --- E-mail ------------------------------------------------------------------

/**
 * A plausible e-mail address: only ASCII letters, digits, ".", "_", "-" and
 * exactly one "@"; no ".@", "@." or ".."; no leading or trailing "."; a
 * letter or digit before the "@"; a letter and a "." after it. Nothing else
 * (lengths, the place of "_" and "-") is checked.
 */
LIBCONTROL_EXPORT bool checkEmail(char const *address);

#endif
