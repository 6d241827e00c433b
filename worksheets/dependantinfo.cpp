#include <LibControl/worksheets/dependantinfo.h>

#include <cmath>
#include <cstring>

namespace {

constexpr unsigned int InfirmVersion = 0x100a1;
constexpr unsigned int TextVersion = 0x100db;
constexpr unsigned int AmountVersion = 0x100c0;

// Names are fixed 80-byte buffers; never read past them even when a caller
// filled one to the brim.
CString nameText(char const (&buffer)[80])
{
    return CString(QString::fromLatin1(buffer, int(qstrnlen(buffer, sizeof buffer))));
}

void nameField(CField &field, char const *name, std::vector<CField *> &fields)
{
    field.m_strName = name;
    fields.push_back(&field);
}

char const *relationshipText(int relationship)
{
    if (relationship < 0 || relationship >= int(sizeof Global_Relationship_Info / sizeof Global_Relationship_Info[0]))
        return "";
    return Global_Relationship_Info[relationship].text;
}

} // namespace

_OneDependantInfoStru::_OneDependantInfoStru()
    : m_szFirstName{}
    , m_szLastName{}
    , m_nRelationship(0)
    , m_dNetIncome(0.0)
    , fld_Infirm(0, 0, FIELD_ATTR_NONE, 0, InfirmVersion)
    , fld_InfirmNature(0, "", 80, TextVersion)
    , fld_Addr(0, "", 160, TextVersion)
    , fld_iProv(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_other_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_attcare_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_van_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_move_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
{
    initFields();
}

_OneDependantInfoStru::_OneDependantInfoStru(_OneDependantInfoStru const &other) : _OneDependantInfoStru()
{
    *this = other;
}

_OneDependantInfoStru::~_OneDependantInfoStru() = default;

void _OneDependantInfoStru::initFields()
{
    nameField(fld_Infirm, "fld_Infirm", m_fields);
    nameField(fld_InfirmNature, "fld_InfirmNature", m_fields);
    nameField(fld_Addr, "fld_Addr", m_fields);
    nameField(fld_iProv, "fld_iProv", m_fields);
    nameField(fld_medexp_other_notused, "fld_medexp_other_notused", m_fields);
    nameField(fld_medexp_attcare_notused, "fld_medexp_attcare_notused", m_fields);
    nameField(fld_medexp_van_notused, "fld_medexp_van_notused", m_fields);
    nameField(fld_medexp_move_notused, "fld_medexp_move_notused", m_fields);
}

void _OneDependantInfoStru::getName(CString &out) const
{
    out = CString(nameText(m_szFirstName) + QLatin1Char(' ') + nameText(m_szLastName)).trimmed();
    if (out.isEmpty())
        out = CString("<unknown name>");
}

int _OneDependantInfoStru::getAge() const
{
    return DEPENDANT_TAX_YEAR - m_dateBirth.year();
}

bool _OneDependantInfoStru::isNamed() const
{
    return !nameText(m_szFirstName).trimmed().isEmpty() || !nameText(m_szLastName).trimmed().isEmpty();
}

bool _OneDependantInfoStru::IsMedExpForLine330() const
{
    return getAge() < 18 && m_nRelationship < 2;
}

bool _OneDependantInfoStru::IsDisabled() const
{
    return fld_Infirm.m_nValue == 2;
}

bool _OneDependantInfoStru::IsInfirmOrDisabled() const
{
    return fld_Infirm.m_nValue == 1 || fld_Infirm.m_nValue == 2;
}

char const *_OneDependantInfoStru::getInfirmStatusStr() const
{
    // A damaged file may hold any number here; an empty text beats reading past the table.
    int const status = fld_Infirm.m_nValue;
    if (status < 0 || status > 2)
        return "";
    return Global_InfirmStatus_Info[status].text;
}

bool _OneDependantInfoStru::MakeComboBoxString(CString &out) const
{
    out = CString();
    CString const first = CString(nameText(m_szFirstName).trimmed());
    CString const last = CString(nameText(m_szLastName).trimmed());
    if (first.isEmpty() && last.isEmpty())
        return false;
    QString text = first.isEmpty() ? QStringLiteral("<FirstName>") : QString(first);
    text += QLatin1Char(' ') + (last.isEmpty() ? QStringLiteral("<LastName>") : QString(last));
    text += QLatin1String(" - ") + QLatin1String(relationshipText(m_nRelationship));
    // The status follows " - " twice: the income part ends in its own separator.
    text += QLatin1String(" - net inc.") + QStringLiteral("($%1) - ").arg(m_dNetIncome, 0, 'f', 2);
    text += QLatin1String(" - ") + QLatin1String(getInfirmStatusStr());
    if (m_dateBirth.isValid())
        text += QLatin1String(" - ") + m_dateBirth.toString(QStringLiteral("yyyy-MM-dd"));
    out = CString(text);
    return true;
}

bool _OneDependantInfoStru::operator==(_OneDependantInfoStru const &other) const
{
    if (std::strncmp(m_szFirstName, other.m_szFirstName, sizeof m_szFirstName) != 0
        || std::strncmp(m_szLastName, other.m_szLastName, sizeof m_szLastName) != 0)
        return false;
    bool const sameBirth = (m_dateBirth.isNull() && other.m_dateBirth.isNull()) || m_dateBirth == other.m_dateBirth;
    if (!sameBirth || m_nRelationship != other.m_nRelationship)
        return false;
    if (!(std::fabs(m_dNetIncome - other.m_dNetIncome) < 0.009))
        return false;
    return !Common_Func_OperatorNotEqual(const_cast<std::vector<CField *> &>(m_fields),
                                         const_cast<std::vector<CField *> &>(other.m_fields));
}

_OneDependantInfoStru &_OneDependantInfoStru::operator=(_OneDependantInfoStru const &other)
{
    if (this == &other)
        return *this;
    std::memcpy(m_szFirstName, other.m_szFirstName, sizeof m_szFirstName);
    std::memcpy(m_szLastName, other.m_szLastName, sizeof m_szLastName);
    m_dateBirth = other.m_dateBirth;
    m_nRelationship = other.m_nRelationship;
    m_dNetIncome = other.m_dNetIncome;
    Common_Func_OperatorAssign(const_cast<std::vector<CField *> &>(other.m_fields), m_fields);
    return *this;
}
