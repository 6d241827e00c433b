#ifndef LIBCONTROL_COMMON_UTILITIES_H
#define LIBCONTROL_COMMON_UTILITIES_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <QChar>

#include <cstddef>
#include <string>

/** The 26 lower-case ASCII letters; a char array without terminator. */
LIBCONTROL_EXPORT extern char LowerCaseAlpha[26];
/** The 26 upper-case ASCII letters; a char array without terminator. */
LIBCONTROL_EXPORT extern char UpperCaseAlpha[26];
/** The seven extra characters "-_+$%<>" that count as letters in names; no terminator. */
LIBCONTROL_EXPORT extern char OtherAlpahChars[7];

/** One currency of Global_Currency_Info. */
struct LIBCONTROL_EXPORT STRUCT_CURRENCY_INFO
{
    int code;
    char const *name;
    char const *isoCode;
};

/** The six currencies known to the forms, indexed by their code 0 to 5. */
LIBCONTROL_EXPORT extern STRUCT_CURRENCY_INFO const Global_Currency_Info[6];

// --- Numbers --------------------------------------------------------------

/**
 * Rounds `value` by decision code: 0 to a whole number (half away from zero),
 * 2 to cents, 5 and 6 to five and six decimals, anything else to four.
 * Whole millions are split off first so the rounding works on a small number.
 * The positive bias is a thousandth of a unit above one half while the
 * negative side uses the exact half: 1.005 gives 1.01, -1.005 gives -1.0.
 */
LIBCONTROL_EXPORT double RoundFloatAtDecision(double value, int decision);
/**
 * Truncates `value` toward zero to a multiple of `step`, stores it back and
 * returns it. `step` must not be 0.
 */
LIBCONTROL_EXPORT int truncateToNearest(double &value, int step);
/** `numerator / denominator`, or `fallback` when |denominator| < 0.009. */
LIBCONTROL_EXPORT double div(double numerator, double denominator, double fallback);
/** 1.0 when |value| < 0.009, else `value`. */
LIBCONTROL_EXPORT double GetOneIfZero(double value);
/**
 * Fixed-point text. `decimals` 0 means 2; a positive count strips an all-zero
 * fraction (12.00 -> 12); a negative count keeps zeros and blanks exactly
 * "0.00".
 */
LIBCONTROL_EXPORT void myDoubleToString(double value, int decimals, CString &out);
/**
 * Parses a loosely written number: , " # ! * ( ) [ ] { } < > are dropped and
 * the rest must be digits, '-', '.' or '+'; anything else gives 0.0.
 * Parentheses do not mean a negative amount.
 */
LIBCONTROL_EXPORT double myStringToDouble(std::string const &text);
/** Percentage text for Netfile: |decimals| places, trailing zeros cut when decimals < 0. */
LIBCONTROL_EXPORT void GetPercentStringForNetfile(double value, int decimals, CString &out);
/** A percentage 0..100 as a fraction of one (".125" for 12.5 at 4 decimals). */
LIBCONTROL_EXPORT void GetPercentStringForAT1(double value, int decimals, CString &out);
/** True for an empty text, or one of ASCII digits (and "-", ".", "+" unless `digitsOnly`). */
LIBCONTROL_EXPORT bool isNumericStr(CString const &text, bool digitsOnly);

// --- Characters -----------------------------------------------------------

LIBCONTROL_EXPORT bool IsDigitChar(char c);
LIBCONTROL_EXPORT bool isNumeric(char c);
LIBCONTROL_EXPORT bool isAlphabetic(char c);
LIBCONTROL_EXPORT bool Is26NormalChar(char c);
/** ASCII letters and the characters of OtherAlpahChars. */
LIBCONTROL_EXPORT bool IsAlphaChar(char c);
/** A non-empty C string of ASCII digits only. */
LIBCONTROL_EXPORT bool IsDigits(char *text);
/** The government e-filing character set (ASCII printables and listed Latin-1 bytes). */
LIBCONTROL_EXPORT bool IsT2AllowedChar(unsigned char c);
/** Empty, or every character passes IsT2AllowedChar (U+0100 and above fail). */
LIBCONTROL_EXPORT bool CheckT2ValidChar(CString const &text);
/**
 * U+00C0..U+00FF except U+00C5, U+00D5, U+00E5 and U+00F5; the multiplication
 * and division signs are in on purpose.
 */
LIBCONTROL_EXPORT bool isCharDiacritic(QChar c);
/** Empty, or only "0" characters. */
LIBCONTROL_EXPORT bool IsAllZeroString(CString text);
/** Some character of `text` occurs in `set`; an empty text gives false. */
LIBCONTROL_EXPORT bool StringHasChars(CString const &text, char const *set);

// --- Text shaping and comparison -----------------------------------------

/** Removes everything but [0-9a-zA-Z_], so spaces vanish; returns true. */
LIBCONTROL_EXPORT bool makeValidFilename(CString &name);
LIBCONTROL_EXPORT CString getLeadingString(CString const &text, int n);
/** One pass turning each pair of spaces into one (three spaces become two). */
LIBCONTROL_EXPORT void removeContinuousSpace(CString &text);
/** Removes trailing, then leading, spaces and tabs. */
LIBCONTROL_EXPORT void trimSpaces(std::string &text);
/** `text` ends with `suffix`; false when `text` is the shorter. */
LIBCONTROL_EXPORT bool stringEndwith(CString const &text, char const *suffix, bool caseSensitive);
/** Byte position of `what` in `text` at or after `from`, ignoring ASCII case; npos when absent. */
LIBCONTROL_EXPORT size_t findCaseInsensitive(std::string text, std::string what, size_t from);
/** Byte-wise case-insensitive comparison; the difference of the last compared pair. */
LIBCONTROL_EXPORT int stricmp(char const *a, char const *b);
/**
 * `text` (Latin-1) trimmed, cut to `width` characters and padded with spaces
 * to exactly `width`. A null `text` gives `width` spaces.
 */
LIBCONTROL_EXPORT void makeStringToFixLengthStringByTrailingSpaces(CString &out, char const *text, int width);
/**
 * Word-wraps `text` at `maxChars` columns. A word that overflows moves to the
 * next line together with the space before it; a word longer than a line is
 * broken where it overflows.
 */
LIBCONTROL_EXPORT void formatStringToMaxCharsPerLine(CString const &text, int maxChars, CString &out);
/**
 * The 104-character corporate e-filing address block: line1, line2 and city
 * (30 each), province (2, only for CA and US), country (2), postal code
 * without spaces (10).
 */
LIBCONTROL_EXPORT void formatStringToT2AddrIn104Letters(CString &out, char const *country, char const *province,
                                                        char const *city, char const *line1, char const *line2,
                                                        char const *postal);
/** line1, line2, city and postal code joined by single spaces, blank pieces skipped. */
LIBCONTROL_EXPORT void formatStringToT2AddrForPrint(CString &out, char const *country, char const *province,
                                                    char const *city, char const *line1, char const *line2,
                                                    char const *postal);
/** Sets `out` to the ISO code of currency `code` (0..5) and returns `code`; else -1, `out` untouched. */
LIBCONTROL_EXPORT int getCurrencyCode(CString &out, int code);
/** A Canadian province or territory code, 1 to 13. */
LIBCONTROL_EXPORT bool isCanProv(int province);
/** A US state in the combined province-or-state numbering, 18 to 76. */
LIBCONTROL_EXPORT bool isUsaState(int province);
/** XORs `data` in place with `key` repeated; applying it twice restores the data. */
LIBCONTROL_EXPORT void abcTwo(char *data, int length, char const *key, int keyLength);

#endif
