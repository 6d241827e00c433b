#include <LibControl/common/xmlutil.h>
#include <LibControl/common/xmlwriter.h>

CString XmlUtil::xmlTagString(char const *tag, CString const &value)
{
    return xmlTagFill(tag, convertToXMLString(value));
}

CString XmlUtil::xmlTagString(char const *tag, char const *value)
{
    return xmlTagString(tag, CString(value));
}

CString XmlUtil::xmlTagStringIfNotEmpty(char const *tag, CString const &value)
{
    return value.isEmpty() ? CString() : xmlTagString(tag, value);
}

CString XmlUtil::xmlTagFill(char const *tag, CString const &value)
{
    QString const name = QString::fromUtf8(tag);
    return CString(QStringLiteral("<%1>%2</%3>").arg(name, value, name));
}
