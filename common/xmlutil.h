#ifndef LIBCONTROL_COMMON_XMLUTIL_H
#define LIBCONTROL_COMMON_XMLUTIL_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

/** One-line XML elements without a line feed, for building documents in memory. */
class LIBCONTROL_EXPORT XmlUtil
{
public:
    /** "<tag>" + convertToXMLString(value) + "</tag>". */
    static CString xmlTagString(char const *tag, CString const &value);
    /** The same for `value` read as Latin-1 (null counts as empty). */
    static CString xmlTagString(char const *tag, char const *value);
    /** An empty text for an empty `value`, else xmlTagString. Blank values are not empty. */
    static CString xmlTagStringIfNotEmpty(char const *tag, CString const &value);
    /** "<tag>" + value + "</tag>" without escaping, for content that is XML already. */
    static CString xmlTagFill(char const *tag, CString const &value);
};

#endif
