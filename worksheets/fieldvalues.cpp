#include <LibControl/worksheets/fieldvalues_p.h>

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/Field.h>
#include <LibControl/fields/IntField.h>

namespace LibControl {
namespace detail {

namespace {

enum TypeCode { IntType = 0, BoolType = 1, StringType = 2, FloatType = 3, DateType = 4, DateTimeType = 5 };

template<typename Field>
Field &as(CField &field)
{
    return static_cast<Field &>(field);
}

} // namespace

bool copyFieldValue(CField &target, CField &source)
{
    int const type = source.GetType();
    if (target.GetType() != type)
        return false;
    switch (type) {
    case IntType:
        as<CIntField>(target) = as<CIntField>(source);
        return true;
    case BoolType:
        as<CBoolField>(target) = as<CBoolField>(source);
        return true;
    case StringType:
        as<CStringField>(target) = as<CStringField>(source);
        return true;
    case FloatType:
        as<CFloatField>(target) = as<CFloatField>(source);
        return true;
    case DateType:
        as<CDateField>(target) = as<CDateField>(source);
        return true;
    case DateTimeType:
        as<CDateTimeField>(target).m_dateTime = as<CDateTimeField>(source).m_dateTime;
        return true;
    default:
        return false;
    }
}

bool fieldValuesDiffer(CField &a, CField &b)
{
    int const type = a.GetType();
    if (b.GetType() != type)
        return false;
    switch (type) {
    case IntType:
        return as<CIntField>(a) != as<CIntField>(b);
    case BoolType:
        return as<CBoolField>(a) != as<CBoolField>(b);
    case StringType:
        return as<CStringField>(a) != as<CStringField>(b);
    case FloatType:
        return as<CFloatField>(a) != as<CFloatField>(b);
    case DateType:
        return as<CDateField>(a) != as<CDateField>(b);
    case DateTimeType:
        return as<CDateTimeField>(a).m_dateTime != as<CDateTimeField>(b).m_dateTime;
    default:
        return false;
    }
}

void rollFieldIntoNewYear(CField &field, bool keep)
{
    // The keep-blanks bit may be combined with a text's roll-over value.
    int const attr = int(field.m_eAttr) & 0xFFFF;
    switch (field.GetType()) {
    case StringType:
        if (attr == FIELD_ATTR_CLEAR_TEXT_NEXTYEAR)
            as<CStringField>(field).m_strValue = CString();
        break;
    case IntType:
        if (!keep && attr == FIELD_ATTR_INCREASE_NEXTYEAR)
            ++as<CIntField>(field).m_nValue;
        break;
    case FloatType:
        if (!keep && attr != FIELD_ATTR_KEEP_NEXTYEAR)
            as<CFloatField>(field).m_dValue = 0.0;
        break;
    case DateType:
        if (!keep && attr == FIELD_ATTR_DATE_NEXTYEAR)
            as<CDateField>(field).set1YLater();
        else if (!keep && attr == FIELD_ATTR_CLEAR_DATE_NEXTYEAR)
            as<CDateField>(field).setNull();
        break;
    default:
        break;
    }
}

} // namespace detail
} // namespace LibControl
