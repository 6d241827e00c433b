#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>

namespace {

enum TypeCode { IntCode = 0, BoolCode = 1, StringCode = 2, FloatCode = 3, DateCode = 4 };

bool isArchivedType(int code)
{
    return code >= IntCode && code <= DateCode;
}

template<class T>
bool valuesDiffer(CField *a, CField *b)
{
    auto const *x = dynamic_cast<T *>(a);
    auto const *y = dynamic_cast<T *>(b);
    if (!x || !y)
        return true;
    return *x != *y;
}

template<class T>
void copyValue(CField *source, CField *target)
{
    auto const *from = dynamic_cast<T *>(source);
    auto *to = dynamic_cast<T *>(target);
    if (from && to)
        *to = *from;
}

bool differ(int code, CField *a, CField *b)
{
    switch (code) {
    case IntCode: return valuesDiffer<CIntField>(a, b);
    case BoolCode: return valuesDiffer<CBoolField>(a, b);
    case StringCode: return valuesDiffer<CStringField>(a, b);
    case FloatCode: return valuesDiffer<CFloatField>(a, b);
    case DateCode: return valuesDiffer<CDateField>(a, b);
    default: return false;
    }
}

void assign(int code, CField *source, CField *target)
{
    switch (code) {
    case IntCode: copyValue<CIntField>(source, target); break;
    case BoolCode: copyValue<CBoolField>(source, target); break;
    case StringCode: copyValue<CStringField>(source, target); break;
    case FloatCode: copyValue<CFloatField>(source, target); break;
    case DateCode: copyValue<CDateField>(source, target); break;
    default: break;
    }
}

} // namespace

void Common_ClearData_Func(std::vector<CField *> *fields)
{
    if (!fields)
        return;
    for (CField *field : *fields) {
        if (auto *text = dynamic_cast<CStringField *>(field))
            text->m_strValue = CString();
        else if (auto *amount = dynamic_cast<CFloatField *>(field))
            amount->m_dValue = 0.0;
        else if (auto *flag = dynamic_cast<CBoolField *>(field))
            flag->m_nValue = 0;
    }
}

void Common_Serialize_Func(int version, MyDataStream &ar, std::vector<CField *> &fields)
{
    for (CField *field : fields) {
        if (field && isArchivedType(field->GetType()))
            field->Serialize(static_cast<unsigned int>(version), ar);
    }
}

bool Common_Func_OperatorNotEqual(std::vector<CField *> &a, std::vector<CField *> &b)
{
    size_t const count = std::min(a.size(), b.size());
    for (size_t i = 0; i < count; ++i) {
        if (!a[i] || !b[i])
            continue;
        int const code = a[i]->GetType();
        if (isArchivedType(code) && differ(code, a[i], b[i]))
            return true;
    }
    return false;
}

void Common_Func_OperatorAssign(std::vector<CField *> &source, std::vector<CField *> &target)
{
    size_t const count = std::min(source.size(), target.size());
    for (size_t i = 0; i < count; ++i) {
        if (source[i] && target[i])
            assign(source[i]->GetType(), source[i], target[i]);
    }
}
