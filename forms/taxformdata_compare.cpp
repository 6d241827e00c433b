#include <LibControl/forms/taxformdata.h>

#include <LibControl/fields/DateField.h>
#include <LibControl/worksheets/WorkSheetData.h>
#include <LibControl/worksheets/fieldvalues_p.h>

#include <algorithm>
#include <cmath>
#include <typeinfo>

namespace {

enum TypeCode { IntType = 0, BoolType = 1, StringType = 2, FloatType = 3, DateType = 4, DateTimeType = 5 };

bool sameClass(CField const &a, CField const &b)
{
    return typeid(a) == typeid(b);
}

// The re-file comparison is more tolerant than operator!=: texts ignore
// case, amounts agreeing to the cent are equal.
bool differsForReFile(CField &mine, CField &theirs)
{
    switch (mine.GetType()) {
    case IntType:
        return static_cast<CIntField &>(mine).m_nValue != static_cast<CIntField &>(theirs).m_nValue;
    case BoolType:
        return static_cast<CBoolField &>(mine).m_nValue != static_cast<CBoolField &>(theirs).m_nValue;
    case StringType:
        return static_cast<CStringField &>(mine).m_strValue.compare(static_cast<CStringField &>(theirs).m_strValue,
                                                                   Qt::CaseInsensitive)
            != 0;
    case FloatType:
        return !(std::fabs(static_cast<CFloatField &>(mine).m_dValue - static_cast<CFloatField &>(theirs).m_dValue)
                 < 0.009);
    case DateType:
        return static_cast<CDateField &>(mine).m_date != static_cast<CDateField &>(theirs).m_date;
    default:
        return false;
    }
}

} // namespace

CTaxData_Form &CTaxData_Form::operator=(CTaxData_Form &other)
{
    if (this == &other)
        return *this;
    m_nDelimiter = other.m_nDelimiter;
    m_nFormId = other.m_nFormId;
    size_t const common = std::min(m_fields.size(), other.m_fields.size());
    for (size_t i = 0; i < common; ++i) {
        CField *source = other.m_fields[i];
        CField *target = m_fields[i];
        if (!source || !target)
            continue;
        int const type = source->GetType();
        if (type >= IntType && type <= DateTimeType && sameClass(*source, *target))
            LibControl::detail::copyFieldValue(*target, *source);
    }
    auto mine = m_listWorksheets.begin();
    auto theirs = other.m_listWorksheets.begin();
    for (; mine != m_listWorksheets.end() && theirs != other.m_listWorksheets.end(); ++mine, ++theirs)
        (*mine)->copyFrom(**theirs);
    return *this;
}

bool CTaxData_Form::operator!=(CTaxData_Form &other)
{
    size_t const common = std::min(m_fields.size(), other.m_fields.size());
    for (size_t i = 0; i < common; ++i) {
        if (m_fields[i] && other.m_fields[i] && LibControl::detail::fieldValuesDiffer(*m_fields[i], *other.m_fields[i]))
            return true;
    }
    return false;
}

int CTaxData_Form::ReFileCompareFields(CTaxData_Form *other, std::map<int, _ReFileFieldCompareStru> &out)
{
    if (!other)
        return 0;
    size_t const common = std::min(m_fields.size(), other->m_fields.size());
    for (size_t i = 0; i < common; ++i) {
        CField *mine = m_fields[i];
        CField *theirs = other->m_fields[i];
        if (!mine || !theirs || mine->m_nLineCode < 1 || !sameClass(*mine, *theirs))
            continue;
        int const type = mine->GetType();
        if (type < IntType || type > DateType)
            continue;
        if (differsForReFile(*mine, *theirs))
            out[mine->m_nLineCode] = _ReFileFieldCompareStru{mine, theirs};
    }
    return 0;
}
