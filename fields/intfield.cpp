#include <LibControl/fields/IntField.h>

CIntField::CIntField(int value, ENUMTYPE_FIELD_ATTR attr) : CIntField(0, value, attr, 0, FIELD_VERSION_FIRST)
{
}

CIntField::CIntField(int lineCode, int value, ENUMTYPE_FIELD_ATTR attr)
    : CIntField(lineCode, value, attr, 0, FIELD_VERSION_FIRST)
{
}

CIntField::CIntField(int lineCode, int value, ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom)
    : CField(lineCode, false, versionFrom, FIELD_VERSION_LAST, attr, extra)
    , m_nValue(value)
{
}

CIntField::~CIntField() = default;

CIntField &CIntField::operator=(CIntField const &other)
{
    m_nValue = other.m_nValue;
    return *this;
}

bool CIntField::operator!=(CIntField const &other) const
{
    return m_nValue != other.m_nValue;
}

int CIntField::GetType() const
{
    return 0;
}

void CIntField::Serialize(unsigned int version, MyDataStream &ar)
{
    if (!isArchivedIn(version))
        return;
    if (ar.IsStoring())
        ar << qint32(m_nValue);
    else
        ar >> m_nValue;
}

int CIntField::writeToString(CString &out)
{
    if (!canFieldSavedInXML())
        return -1;
    if (m_strPrintValue.empty())
        return CField::writeToString(out);
    out = QStringLiteral("<f n=\"%1\" p=\"%2\">%3</f>")
              .arg(QString::fromStdString(m_strName), QString::fromStdString(m_strPrintValue),
                   QString::number(m_nValue));
    return 0;
}

int CIntField::readFromString(CString const &text)
{
    bool ok = false;
    int const value = text.toInt(&ok, 10);
    m_nValue = ok ? value : 0;
    return 0;
}

int CIntField::toString(CString &out)
{
    out = QString::number(m_nValue);
    return 0;
}

CIntFieldNotused::CIntFieldNotused(unsigned int versionFrom, unsigned int versionTo)
    : CIntField(0, -1, FIELD_ATTR_NONE, 0, versionFrom)
{
    m_nVersionTo = versionTo;
}

CIntFieldNotused::~CIntFieldNotused() = default;
