#include <LibControl/worksheets/medexpinfo.h>

#include <QIODevice>

#include <initializer_list>

namespace {

constexpr unsigned int AmountVersion = 0x100d2;
constexpr unsigned int ChoiceVersion = 0x10185;
constexpr int MinimumRecords = 12;

void nameAndList(std::vector<CField *> &list, std::initializer_list<std::pair<CField *, char const *>> fields)
{
    for (auto const &field : fields) {
        field.first->m_strName = field.second;
        list.push_back(field.first);
    }
}

// Bytes one record occupies in an archive of `version`, so that a stored
// count can be checked against what the device still holds.
qint64 recordBytes(std::vector<CField *> const &fields, unsigned int version)
{
    qint64 bytes = 0;
    for (CField const *field : fields) {
        if (field->m_nVersionFrom > version || version > field->m_nVersionTo)
            continue;
        bytes += field->GetType() == 3 ? 8 : 4;
    }
    return bytes;
}

} // namespace

_OneDepMedExpInfoStru::_OneDepMedExpInfoStru()
    : fld_medexp(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_disabled_nodisablityclaim(0, 0, FIELD_ATTR_NONE, 0, ChoiceVersion)
    , fld_medexp_other(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_attcare(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_van(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_move(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
{
    nameAndList(m_vecFields, {{&fld_medexp, "fld_medexp"},
                              {&fld_disabled_nodisablityclaim, "fld_disabled_nodisablityclaim"},
                              {&fld_medexp_other, "fld_medexp_other"},
                              {&fld_medexp_attcare, "fld_medexp_attcare"},
                              {&fld_medexp_van, "fld_medexp_van"},
                              {&fld_medexp_move, "fld_medexp_move"}});
}

void _OneDepMedExpInfoStru::ClearData()
{
    Common_ClearData_Func(&m_vecFields);
}

bool _OneDepMedExpInfoStru::operator==(_OneDepMedExpInfoStru &other)
{
    return !Common_Func_OperatorNotEqual(m_vecFields, other.m_vecFields);
}

_OneDepMedExpInfoStru &_OneDepMedExpInfoStru::operator=(_OneDepMedExpInfoStru &other)
{
    Common_Func_OperatorAssign(other.m_vecFields, m_vecFields);
    return *this;
}

void _OneDepMedExpInfoStru::serilize(int version, MyDataStream &ar)
{
    Common_Serialize_Func(version, ar, m_vecFields);
}

_MedExpInfoStruct::_MedExpInfoStruct()
    : fld_nDepNum(0, 0, FIELD_ATTR_NONE, 0, AmountVersion)
    , fld_medexp(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_disabled_nodisablityclaim(0, 0, FIELD_ATTR_NONE, 0, ChoiceVersion)
    , fld_medexp_other(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_attcare(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_van(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_move(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_spouse(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_disabled_nodisablityclaim_spouse(0, 0, FIELD_ATTR_NONE, 0, ChoiceVersion)
    , fld_medexp_other_spouse(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_attcare_spouse(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_van_spouse(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_move_spouse(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , m_pDeps(nullptr)
{
    nameAndList(m_vecFields, {{&fld_nDepNum, "fld_nDepNum"},
                              {&fld_medexp, "fld_medexp"},
                              {&fld_disabled_nodisablityclaim, "fld_disabled_nodisablityclaim"},
                              {&fld_medexp_other, "fld_medexp_other"},
                              {&fld_medexp_attcare, "fld_medexp_attcare"},
                              {&fld_medexp_van, "fld_medexp_van"},
                              {&fld_medexp_move, "fld_medexp_move"},
                              {&fld_medexp_spouse, "fld_medexp_spouse"},
                              {&fld_disabled_nodisablityclaim_spouse, "fld_disabled_nodisablityclaim_spouse"},
                              {&fld_medexp_other_spouse, "fld_medexp_other_spouse"},
                              {&fld_medexp_attcare_spouse, "fld_medexp_attcare_spouse"},
                              {&fld_medexp_van_spouse, "fld_medexp_van_spouse"},
                              {&fld_medexp_move_spouse, "fld_medexp_move_spouse"}});
}

_MedExpInfoStruct::~_MedExpInfoStruct()
{
    FreeData();
}

int _MedExpInfoStruct::recordCount() const
{
    return m_pDeps ? fld_nDepNum.m_nValue : 0;
}

_OneDepMedExpInfoStru *_MedExpInfoStruct::record(int index)
{
    return index >= 0 && index < recordCount() ? &m_pDeps[index] : nullptr;
}

void _MedExpInfoStruct::AllocData(int count)
{
    FreeData();
    if (count > 0)
        m_pDeps = new _OneDepMedExpInfoStru[size_t(count)];
    fld_nDepNum.m_nValue = count > 0 ? count : 0;
}

void _MedExpInfoStruct::FreeData()
{
    delete[] m_pDeps;
    m_pDeps = nullptr;
    fld_nDepNum.m_nValue = 0;
}

void _MedExpInfoStruct::ClearData()
{
    Common_ClearData_Func(&m_vecFields);
    for (int i = 0; i < recordCount(); ++i)
        m_pDeps[i].ClearData();
}

bool _MedExpInfoStruct::operator==(_MedExpInfoStruct &other)
{
    if (Common_Func_OperatorNotEqual(m_vecFields, other.m_vecFields))
        return false;
    for (int i = 0; i < recordCount(); ++i) {
        _OneDepMedExpInfoStru *theirs = other.record(i);
        if (!theirs || !(m_pDeps[i] == *theirs))
            return false;
    }
    return true;
}

_MedExpInfoStruct &_MedExpInfoStruct::operator=(_MedExpInfoStruct &other)
{
    if (this == &other)
        return *this;
    AllocData(other.recordCount());
    for (int i = 0; i < recordCount(); ++i)
        m_pDeps[i] = other.m_pDeps[i];
    Common_Func_OperatorAssign(other.m_vecFields, m_vecFields);
    // The count field travels with the own fields; keep it equal to the array.
    fld_nDepNum.m_nValue = recordCount();
    return *this;
}

void _MedExpInfoStruct::serilize(int version, MyDataStream &ar)
{
    bool const storing = ar.IsStoring();
    if (!storing) {
        int const previous = recordCount();
        Common_Serialize_Func(version, ar, m_vecFields);
        int wanted = fld_nDepNum.m_nValue;
        fld_nDepNum.m_nValue = previous;
        if (wanted < 1) {
            wanted = MinimumRecords;
        } else {
            qint64 const perRecord = recordBytes(_OneDepMedExpInfoStru().m_vecFields, unsigned(version));
            qint64 const available = ar.device() ? ar.device()->bytesAvailable() : 0;
            if (perRecord > 0 && wanted > available / perRecord)
                wanted = int(available / perRecord);
        }
        AllocData(wanted);
    } else {
        Common_Serialize_Func(version, ar, m_vecFields);
    }
    for (int i = 0; i < recordCount(); ++i)
        m_pDeps[i].serilize(version, ar);
    if (recordCount() <= 0)
        AllocData(MinimumRecords);
}
