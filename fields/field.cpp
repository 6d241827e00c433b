#include <LibControl/fields/Field.h>

CField::CField(int lineCode, bool allowNegative, unsigned int versionFrom, unsigned int versionTo,
               ENUMTYPE_FIELD_ATTR attr, int extra)
    : m_bAllowNegative(allowNegative)
    , m_nLineCode(lineCode)
    , m_nVersionFrom(versionFrom)
    , m_nVersionTo(versionTo)
    , m_eAttr(attr)
    , m_nExtra(extra)
{
}

CField::~CField() = default;

void CField::Serialize(unsigned int, MyDataStream &)
{
}

int CField::ValidateAndCorrect()
{
    return 0;
}

bool CField::canFieldSavedInXML() const
{
    return m_strName.find("notused") == std::string::npos;
}

int CField::writeToString(CString &out)
{
    return writeElement(QStringLiteral("<f n=\"%1\">%2</f>"), out);
}

int CField::toString(CString &)
{
    return 0;
}

int CField::writeToXmlForPdf(CString &out)
{
    return writeElement(QStringLiteral("<f><c>%1</c><v>%2</v></f>"), out);
}

bool CField::isArchivedIn(unsigned int version) const
{
    return m_nVersionFrom <= version && version <= m_nVersionTo;
}

int CField::writeElement(QString const &pattern, CString &out)
{
    if (!canFieldSavedInXML())
        return -1;
    CString value;
    toString(value);
    // One multi-argument arg() so that a "%2" inside the name is not expanded.
    out = pattern.arg(QString::fromStdString(m_strName), value);
    return 0;
}
