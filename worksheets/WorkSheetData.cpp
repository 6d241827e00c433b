#include <LibControl/worksheets/WorkSheetData.h>

#include <LibControl/fields/Field.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/worksheets/fieldvalues_p.h>

#include <algorithm>

namespace {

enum TypeCode { IntType = 0, BoolType = 1, StringType = 2, FloatType = 3, DateType = 4 };

} // namespace

CWSBaseData::CWSBaseData() = default;

CWSBaseData::~CWSBaseData() = default;

int CWSBaseData::Calculate()
{
    return 0;
}

CWSBaseData &CWSBaseData::copyFrom(CWSBaseData const &src)
{
    size_t const common = std::min(m_fields.size(), src.m_fields.size());
    for (size_t i = 0; i < common; ++i) {
        CField *source = src.m_fields[i];
        if (source->GetType() >= IntType && source->GetType() <= DateType)
            LibControl::detail::copyFieldValue(*m_fields[i], *source);
    }
    return *this;
}

void CWSBaseData::Serialize(unsigned int version, MyDataStream &ar)
{
    for (CField *field : m_fields)
        field->Serialize(version, ar);
}

void CWSBaseData::ChangeToNewYearData(bool keep)
{
    for (CField *field : m_fields)
        LibControl::detail::rollFieldIntoNewYear(*field, keep);
}

void CWSBaseData::getFldFullName(std::string fieldName, std::string &out) const
{
    out = m_strName + '_' + fieldName;
}

int CWSBaseData::writeToString(CString &out)
{
    std::string fullName;
    for (CField *field : m_fields) {
        CString value;
        field->toString(value);
        getFldFullName(field->m_strName, fullName);
        out += QStringLiteral("<f n=\"%1\">%2</f>").arg(QString::fromStdString(fullName), value);
    }
    return 0;
}

int CWSBaseData::readFromStringMap(std::map<std::string, CString> values)
{
    std::string fullName;
    for (CField *field : m_fields) {
        getFldFullName(field->m_strName, fullName);
        auto found = values.find(fullName);
        if (found == values.end()) {
            auto const oldNames = m_mapFieldOldNames.find(fullName);
            if (oldNames != m_mapFieldOldNames.end()) {
                for (std::string const &oldName : oldNames->second) {
                    found = values.find(oldName);
                    if (found != values.end())
                        break;
                }
            }
        }
        if (found == values.end())
            found = values.find(field->m_strName);
        if (found != values.end())
            field->readFromString(found->second);
    }
    return 0;
}

void CWSBaseData::addFieldOldName(char const *fullName, char const *oldName)
{
    if (fullName && oldName)
        m_mapFieldOldNames[fullName].push_back(oldName);
}

void CWSBaseData::addField(CField &field, char const *name)
{
    field.m_strName = name;
    m_fields.push_back(&field);
}

void CWSBaseData::WriteJavaFileDeclaration(FILE *f)
{
    if (!f)
        return;
    std::string fullName;
    for (CField *field : m_fields) {
        getFldFullName(field->m_strName, fullName);
        char const *name = fullName.c_str();
        switch (field->GetType()) {
        case IntType:
        case BoolType: // Java has no flag field: flags are declared as integers.
            std::fprintf(f, "IntField %s = new IntField(\"%s\"", name, name);
            break;
        case StringType:
            std::fprintf(f, "StringField %s = new StringField(\"%s\", %-d", name, name,
                         static_cast<CStringField *>(field)->m_nSize);
            break;
        case FloatType:
            std::fprintf(f, "FloatField %s = new FloatField(\"%s\"", name, name);
            break;
        case DateType:
            std::fprintf(f, "DateField %s = new DateField(\"%s\"", name, name);
            break;
        default:
            continue;
        }
        std::fprintf(f, ", %-ld, %-ld);\n", long(field->m_nVersionFrom), long(field->m_nVersionTo));
    }
}

void CWSBaseData::WriteJavaFileContruction(FILE *f)
{
    if (!f)
        return;
    std::string fullName;
    for (CField *field : m_fields) {
        getFldFullName(field->m_strName, fullName);
        std::fprintf(f, "m_data.add(%s);\n", fullName.c_str());
    }
}
