#include <LibControl/common/xmlreader.h>

#include <QLoggingCategory>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <locale.h>
#include <strings.h>

namespace {

Q_LOGGING_CATEGORY(lcXmlReader, "libcontrol.xml", QtInfoMsg)

char const Empty[] = "";

bool endsWithNoCase(char const *tag, char const *suffix)
{
    size_t const tagLength = std::strlen(tag);
    size_t const suffixLength = std::strlen(suffix);
    return tagLength >= suffixLength && strcasecmp(tag + tagLength - suffixLength, suffix) == 0;
}

char const *orEmpty(char const *text)
{
    return text ? text : Empty;
}

// strtod follows the process locale, which a Qt application sets from the
// environment; amounts in XML always use a point.
double strtodC(char const *text)
{
    static locale_t const cLocale = newlocale(LC_NUMERIC_MASK, "C", locale_t(nullptr));
    return cLocale ? strtod_l(text, nullptr, cLocale) : std::strtod(text, nullptr);
}

CString fromUtf8(char const *text)
{
    return CString(QString::fromUtf8(orEmpty(text)));
}

} // namespace

MyTiXmlHandle::MyTiXmlHandle(TiXmlNode *node) : m_handle(node) { }

MyTiXmlHandle::~MyTiXmlHandle() = default;

MyTiXmlHandle::MyTiXmlHandle(MyTiXmlHandle const &other) = default;

MyTiXmlHandle &MyTiXmlHandle::operator=(MyTiXmlHandle const &other) = default;

MyTiXmlHandle MyTiXmlHandle::FirstChildElement() const
{
    return MyTiXmlHandle(m_handle.FirstChildElement().ToElement());
}

MyTiXmlHandle MyTiXmlHandle::FirstChildElement(char const *name, char const *) const
{
    TiXmlNode *const node = m_handle.ToNode();
    if (!node || !name)
        return MyTiXmlHandle(nullptr);
    // Any tag ending with the name matches, prefix or not: the files mix
    // namespace prefixes freely.
    for (TiXmlElement *child = node->FirstChildElement(); child; child = child->NextSiblingElement()) {
        if (endsWithNoCase(child->Value(), name))
            return MyTiXmlHandle(child);
    }
    return MyTiXmlHandle(nullptr);
}

MyTiXmlHandle MyTiXmlHandle::FirstChildElement(char const *name) const
{
    return FirstChildElement(name, "ns");
}

TiXmlNode *MyTiXmlHandle::ToNode() const
{
    return m_handle.ToNode();
}

TiXmlElement *MyTiXmlHandle::ToElement() const
{
    return m_handle.ToElement();
}

TiXmlText *MyTiXmlHandle::ToText() const
{
    return m_handle.ToText();
}

TiXmlElement *getElementSubElement(TiXmlElement *parent, char const *name)
{
    return MyTiXmlHandle(parent).FirstChildElement(name).ToElement();
}

char const *getElementSubEleStringText(TiXmlElement *parent, char const *name)
{
    TiXmlElement const *const child = getElementSubElement(parent, name);
    return child ? orEmpty(child->GetText()) : Empty;
}

int getElementSubEleStringAsInt(TiXmlElement *parent, char const *name, int fallback)
{
    char const *const text = getElementSubEleStringText(parent, name);
    if (!*text)
        return fallback;
    return QString::fromUtf8(text).toInt(nullptr, 10);
}

bool getElementSubEleStringAsBool(TiXmlElement *parent, char const *name, bool fallback)
{
    char const *const text = getElementSubEleStringText(parent, name);
    if (strcasecmp(text, "true") == 0 || std::strcmp(text, "1") == 0)
        return true;
    if (strcasecmp(text, "false") == 0 || std::strcmp(text, "0") == 0)
        return false;
    return fallback;
}

double getElementSubEleAsFloat(TiXmlElement *parent, char const *name, float fallback)
{
    TiXmlElement const *const child = getElementSubElement(parent, name);
    char const *const text = child ? child->GetText() : nullptr;
    return text ? strtodC(text) : double(fallback);
}

char const *getElementSubEleStringAttribute(TiXmlElement *parent, char const *childName, char const *attribute)
{
    if (!parent || !childName || !attribute)
        return Empty;
    TiXmlElement const *const child = parent->FirstChildElement(childName);
    return child ? orEmpty(child->Attribute(attribute)) : Empty;
}

void readXMLFieldsToStringMap(TiXmlElement *parent, std::map<std::string, CString> &values)
{
    if (!parent)
        return;
    for (TiXmlElement *field = parent->FirstChildElement("f"); field; field = field->NextSiblingElement()) {
        char const *const name = field->Attribute("n");
        if (name)
            values[name] = fromUtf8(field->GetText());
    }
}

void parseXMLFilePartIntoMap(std::string const &xmlText, std::map<std::string, CString> &parts)
{
    TiXmlDocument document;
    document.Parse(xmlText.c_str(), nullptr, TIXML_ENCODING_UTF8);
    if (document.Error()) {
        qCInfo(lcXmlReader) << "template does not parse:" << document.ErrorDesc() << "at row" << document.ErrorRow();
        return;
    }
    TiXmlElement *const root = document.FirstChildElement();
    TiXmlElement *part = getElementSubElement(root, "filepart");
    for (; part; part = part->NextSiblingElement("filepart")) {
        if (char const *const name = part->Attribute("name"))
            parts[name] = fromUtf8(part->GetText());
    }
}
