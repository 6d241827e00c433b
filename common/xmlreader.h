#ifndef LIBCONTROL_COMMON_XMLREADER_H
#define LIBCONTROL_COMMON_XMLREADER_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <tinyxml.h>

#include <map>
#include <string>

// Reading the library's own XML over TinyXML's document model.

/**
 * A null-safe handle to one node, like TiXmlHandle, whose child lookup by
 * name tolerates a namespace prefix. Every lookup returns a new handle whose
 * node may be null, so calls chain without checks.
 */
class LIBCONTROL_EXPORT MyTiXmlHandle
{
public:
    /** A handle to `node`; null gives a null handle. */
    MyTiXmlHandle(TiXmlNode *node);
    virtual ~MyTiXmlHandle();
    MyTiXmlHandle(MyTiXmlHandle const &other);
    MyTiXmlHandle &operator=(MyTiXmlHandle const &other);

    /** The first child element, or a null handle. */
    MyTiXmlHandle FirstChildElement() const;
    /**
     * The first child element whose tag *ends* with `name`, compared without
     * regard to ASCII case: "Amount" matches "x:Amount" and also
     * "TotalAmount". Deliberately loose; the first match in document order
     * wins. `ns` is not used. A null `name` gives a null handle.
     */
    MyTiXmlHandle FirstChildElement(char const *name, char const *ns) const;
    /** FirstChildElement(name, "ns"). */
    MyTiXmlHandle FirstChildElement(char const *name) const;

    /** The node, or null. */
    TiXmlNode *ToNode() const;
    /** The node as an element, or null when it is none. */
    TiXmlElement *ToElement() const;
    /** The node as a text, or null when it is none. */
    TiXmlText *ToText() const;

private:
    TiXmlHandle m_handle;
};

/** The first child of `parent` matched by the loose suffix rule of MyTiXmlHandle; null when none. */
LIBCONTROL_EXPORT TiXmlElement *getElementSubElement(TiXmlElement *parent, char const *name);
/** The text of that child; "" (never null) when the parent, child or text is missing. */
LIBCONTROL_EXPORT char const *getElementSubEleStringText(TiXmlElement *parent, char const *name);
/**
 * `fallback` when the child's text is empty or missing; otherwise the text
 * as a base-10 integer, 0 when it is not one (the fallback is not used then).
 */
LIBCONTROL_EXPORT int getElementSubEleStringAsInt(TiXmlElement *parent, char const *name, int fallback);
/** "true"/"1" give true, "false"/"0" false (any case); anything else, empty included, `fallback`. */
LIBCONTROL_EXPORT bool getElementSubEleStringAsBool(TiXmlElement *parent, char const *name, bool fallback);
/**
 * `fallback` when the parent, child or text is missing; otherwise the
 * leading number of the text as strtod reads it in the C locale (0 when none).
 */
LIBCONTROL_EXPORT double getElementSubEleAsFloat(TiXmlElement *parent, char const *name, float fallback);
/**
 * The value of `attribute` on the first child named exactly `childName`
 * (unlike the suffix rule above); "" when anything is missing.
 */
LIBCONTROL_EXPORT char const *getElementSubEleStringAttribute(TiXmlElement *parent, char const *childName,
                                                              char const *attribute);

/**
 * Reads a flat field list: from the first child element "f" on, every
 * following sibling element (of any name) with an attribute "n" stores its
 * UTF-8 text under that name; elements without "n" are skipped and a later
 * name replaces an earlier one. Nothing happens for a null parent or one
 * without an "f" child.
 */
LIBCONTROL_EXPORT void readXMLFieldsToStringMap(TiXmlElement *parent, std::map<std::string, CString> &values);
/**
 * Splits a template document into its parts: the root's children named
 * "filepart" (the first found by the suffix rule) store their UTF-8 text
 * under their "name" attribute. Text that does not parse adds nothing.
 */
LIBCONTROL_EXPORT void parseXMLFilePartIntoMap(std::string const &xmlText, std::map<std::string, CString> &parts);

#endif
