#ifndef LIBCONTROL_COMMON_CSTRING_H
#define LIBCONTROL_COMMON_CSTRING_H

#include <LibControl/libcontrol_export.h>

#include <QString>

#include <string>

/**
 * The library's one string type: a QString with the familiar member names
 * (Find, Mid, TrimLeft, CompareNoCase ...).
 *
 * It adds no data and no virtual functions, so every QString operation works
 * on it. The encodings of `char const*` inputs differ on purpose between
 * entries: construction and assignment read Latin-1, LoadString reads UTF-8,
 * and the search, compare and replace members read UTF-8 (Qt's own
 * conversion). Positions and lengths count UTF-16 code units.
 */
class LIBCONTROL_EXPORT CString : public QString
{
public:
    /** An empty, non-null string. */
    CString();
    /** Reads `text` as Latin-1; a null pointer gives a null string. */
    CString(char const *text);
    /** Shares the buffer of `other`. */
    CString(QString const &other);

    /** Reads `text` as Latin-1; a null pointer gives a null string. */
    CString &operator=(char const *text);
    /** Shares the buffer of `other`. */
    CString &operator=(QString const &other);

    /** Replaces the contents with `text` read as UTF-8; null gives a null string. */
    void LoadString(char const *text);

    /** True when the length is 0 (null and empty strings alike). */
    bool IsEmpty() const;
    /** Makes the string null, releasing its buffer. */
    void Empty();
    int GetLength() const;
    /**
     * The character at `index` as a byte when its code is below 256, else 0.
     * No bounds check: callers pass valid indexes.
     */
    char GetAt(int index) const;

    /** Removes leading white space (Qt's notion, Unicode spaces included). */
    void TrimLeft();
    /** Removes trailing white space. */
    void TrimRight();
    /** TrimLeft, then TrimRight. */
    void Trim();

    /**
     * Replaces every `oldChar` by `newChar`; returns 0. Bytes are widened as
     * signed chars, so bytes at or above 0x80 never match Latin-1 text.
     */
    int Replace(char oldChar, char newChar);
    /** Replaces every occurrence of `oldText` (UTF-8) by `newText`; returns 0. */
    int Replace(char const *oldText, char const *newText);
    /** Removes every `c` (same signed widening as Replace); returns 0. */
    int Remove(char c);

    /**
     * The substring from `start`; a `count` of 0 or less means "to the end",
     * so Mid(n, 0) is the rest of the string, not an empty one.
     */
    CString Mid(int start, int count = 0) const;
    /** The first `n` units; the whole string when `n` is negative or too big. */
    CString Left(int n) const;
    /** The last `n` units; the whole string when `n` is negative or too big. */
    CString Right(int n) const;

    /** Case-sensitive three-way comparison; `text` is read as UTF-8. */
    int Compare(char const *text) const;
    int Compare(CString const &other) const;
    /** Case-insensitive three-way comparison; `text` is read as UTF-8. */
    int CompareNoCase(char const *text) const;
    int CompareNoCase(CString const &other) const;

    /** First index of `text` (UTF-8), -1 when absent; an empty `text` is at 0. */
    int Find(char const *text) const;
    /** Last index of `text` (UTF-8), -1 when absent. */
    int ReverseFind(char const *text) const;

    void MakeUpper();
    void MakeLower();

    /** The XML-escaped copy (convertToXMLString with its defaults). */
    CString toXmlString() const;

    /**
     * Latin-1 bytes (unmappable characters become '?'). A `limit` above 0
     * first cuts the text to that many UTF-16 units; the result stops at the
     * first NUL byte.
     */
    std::string toStdStringLatin1(int limit = 0) const;
    /**
     * UTF-8 bytes; the `limit` counts UTF-16 units, so the result may be
     * longer than `limit` bytes. The result stops at the first NUL byte.
     */
    std::string toStdStringUTF8(int limit = 0) const;

    /** printf-style formatting through QString::vasprintf (%s reads UTF-8). */
    static CString sprintf2023(char const *format, ...)
#if defined(__GNUC__)
        __attribute__((format(printf, 1, 2)))
#endif
        ;
};

#endif
