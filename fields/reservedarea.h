#ifndef LIBCONTROL_FIELDS_RESERVEDAREA_H
#define LIBCONTROL_FIELDS_RESERVEDAREA_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

class MyDataStream;

/**
 * Two short texts of up to 19 characters kept scrambled with a fixed key,
 * archived as a 44-byte image: int32 version (2), then the two 20-byte areas.
 */
class LIBCONTROL_EXPORT CReservedArea
{
public:
    /** The size of the archived image. */
    static constexpr int ImageSize = 44;
    /** The bytes of one area, terminator included. */
    static constexpr int AreaSize = 20;

    /** Version 2, both areas empty. */
    CReservedArea();
    virtual ~CReservedArea();

    /**
     * Stores the first 19 characters of `text` in area 2 when `which` is 2,
     * else in area 1, and scrambles as many bytes as characters were taken
     * (for non-ASCII text the bytes beyond stay plain). Characters whose
     * UTF-8 form would not fit the 19 bytes are dropped from the end.
     */
    void setString(int which, CString const &text);
    /**
     * `out` = the text of area 1 (`which` 1 or any value but 2) or area 2,
     * unscrambled and read as Latin-1. The area stays unscrambled in memory:
     * read each area once after loading. A scrambled byte that happens to be
     * zero ends the text early.
     */
    void getString(int which, CString &out);

    /** Writes int32 44 and the image, version set to 2. */
    void writeToArchive(MyDataStream &ar);
    /**
     * Reads a counted block and takes its first 44 bytes (zeros where the
     * block is shorter). A version other than 2 clears both areas.
     */
    void readFromArchive(MyDataStream &ar);

    /** The layout version; 2 once written or read. */
    int version() const { return m_version; }

private:
    char *area(int which);

    qint32 m_version;
    char m_area1[AreaSize];
    char m_area2[AreaSize];
};

#endif
