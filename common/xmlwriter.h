#ifndef LIBCONTROL_COMMON_XMLWRITER_H
#define LIBCONTROL_COMMON_XMLWRITER_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <cstdio>

// Hand-written XML, one element per line, either to a C stream or appended
// to a CString. No indentation and no attributes. The FILE* writers do
// nothing for a null stream.

/**
 * Escapes the five XML characters " ' & < > as &#34; &#39; &#38; &#60; &#62;.
 * Only when `flags` holds 4 or 8; otherwise `text` comes back unchanged and
 * uncut. `maxLength` (0 = all) counts source characters, so the result may be
 * longer. An empty text or a negative limit gives an empty result.
 */
LIBCONTROL_EXPORT CString convertToXMLString(CString const &text, int maxLength, int flags);
/** convertToXMLString(text, 0, 4). */
LIBCONTROL_EXPORT CString convertToXMLString(CString const &text);
/** convertToXMLString(text, maxLength, 4). */
LIBCONTROL_EXPORT CString convertToXMLString(CString const &text, int maxLength);

/** Writes "<tag>" and a line feed. */
LIBCONTROL_EXPORT void xmlWriteOpenTag(FILE *file, char const *tag);
/** Writes "</tag>" and a line feed. */
LIBCONTROL_EXPORT void xmlWriteCloseTag(FILE *file, char const *tag);
/** One element line; `value` is read as Latin-1, escaped and written as UTF-8, even when empty. */
LIBCONTROL_EXPORT void xmlWriteTag(FILE *file, char const *tag, char const *value);
LIBCONTROL_EXPORT void xmlWriteTag(FILE *file, char const *tag, CString const &value);
/**
 * Writes the trimmed value unless it is blank. The trimmed text is turned
 * into UTF-8 and then read back as Latin-1 by xmlWriteTag, so non-ASCII text
 * comes out encoded twice; kept so that existing files stay byte-identical.
 */
LIBCONTROL_EXPORT void xmlWriteTagIfNotEmpty(FILE *file, char const *tag, char const *value);
LIBCONTROL_EXPORT void xmlWriteTagIfNotEmpty(FILE *file, char const *tag, CString const &value);
/** The value rounded half away from zero to a whole number (saturating; NaN gives 0). */
LIBCONTROL_EXPORT void xmlWriteTagForLong(FILE *file, char const *tag, double value);
/** "1" or "0"; nothing at all when `onlyWhenTrue` and `value` is false. */
LIBCONTROL_EXPORT void xmlWriteTagForBool(FILE *file, char const *tag, bool value, bool onlyWhenTrue);

/** Appends "<tag>" and a line feed. */
LIBCONTROL_EXPORT void writeXMLOpenTagString(CString &out, char const *tag);
/** Appends "</tag>" and a line feed. */
LIBCONTROL_EXPORT void writeXMLCloseTagString(CString &out, char const *tag);
/**
 * Appends one element with `value` converted by convertToXMLString(value,
 * maxLength, flags); nothing when the converted text is blank. The content
 * keeps its leading and trailing spaces.
 */
LIBCONTROL_EXPORT void writeXMLString(CString &out, char const *tag, CString const &value, int maxLength, int flags);
LIBCONTROL_EXPORT void writeXMLString(CString &out, char const *tag, CString const &value, int maxLength);
LIBCONTROL_EXPORT void writeXMLString(CString &out, char const *tag, CString const &value);
/** Decimal text, left-padded with "0" to `width` digits when `width` >= 1; not escaped. */
LIBCONTROL_EXPORT void writeXMLInteger(CString &out, char const *tag, int value, int width);
LIBCONTROL_EXPORT void writeXMLInteger(CString &out, char const *tag, int value);
/** Decimal text of `value`; the flag is accepted for compatibility and not used. */
LIBCONTROL_EXPORT void writeXMLForLong(CString &out, char const *tag, long value, bool flag);
LIBCONTROL_EXPORT void writeXMLForLong64(CString &out, char const *tag, long long value, bool flag);
/** `value` rounded half away from zero, then as the integer form. */
LIBCONTROL_EXPORT void writeXMLForLong(CString &out, char const *tag, double value, bool flag);
/** "1" or "0"; nothing when `onlyWhenTrue` and `value` is false. */
LIBCONTROL_EXPORT void writeXMLForBool(CString &out, char const *tag, bool value, bool onlyWhenTrue);

#endif
