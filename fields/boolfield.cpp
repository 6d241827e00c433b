#include <LibControl/fields/boolfield.h>

CBoolField::CBoolField(int value) : CBoolField(0, value, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST)
{
}

CBoolField::CBoolField(int lineCode, int value) : CBoolField(lineCode, value, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST)
{
}

CBoolField::CBoolField(int lineCode, int value, ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom)
    : CField(lineCode, false, versionFrom, FIELD_VERSION_LAST, attr, extra)
    , m_nValue(value)
{
}

CBoolField::~CBoolField() = default;

CBoolField &CBoolField::operator=(CBoolField const &other)
{
    m_nValue = other.m_nValue;
    return *this;
}

bool CBoolField::operator!=(CBoolField const &other) const
{
    return m_nValue != other.m_nValue;
}

int CBoolField::GetType() const
{
    return 1;
}

void CBoolField::Serialize(unsigned int version, MyDataStream &ar)
{
    if (!isArchivedIn(version))
        return;
    if (ar.IsStoring())
        ar << qint32(m_nValue);
    else
        ar >> m_nValue;
}

int CBoolField::readFromString(CString const &text)
{
    bool const isNo = text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0
        || text == QLatin1String("0") || text.compare(QLatin1String("no"), Qt::CaseInsensitive) == 0;
    m_nValue = isNo ? 0 : 1;
    return 0;
}

int CBoolField::toString(CString &out)
{
    out = m_nValue != 0 ? QStringLiteral("1") : QStringLiteral("0");
    return 0;
}

CBoolFieldNotused::CBoolFieldNotused(unsigned int versionFrom, unsigned int versionTo)
    : CBoolField(0, 0, FIELD_ATTR_NONE, 0, versionFrom)
{
    m_nVersionTo = versionTo;
}

CBoolFieldNotused::~CBoolFieldNotused() = default;
