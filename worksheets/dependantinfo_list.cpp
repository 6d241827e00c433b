#include <LibControl/worksheets/dependantinfo.h>

#include <LibControl/widgets/styledcombobox.h>

namespace {

constexpr unsigned int AmountVersion = 0x100c0;

} // namespace

DependantInfoStruct::DependantInfoStruct()
    : m_nCount(0)
    , fld_AdjustAmount(0.0, 0)
    , fld_medexp_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_other_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_attcare_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_van_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_move_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_spouse_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_other_spouse_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_attcare_spouse_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_van_spouse_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
    , fld_medexp_move_spouse_notused(0.0, 0, false, AmountVersion, FIELD_ATTR_NONE)
{
    initFields();
}

DependantInfoStruct::DependantInfoStruct(DependantInfoStruct const &other) : DependantInfoStruct()
{
    *this = other;
}

DependantInfoStruct::~DependantInfoStruct() = default;

void DependantInfoStruct::initFields()
{
    struct Entry
    {
        CFloatField *field;
        char const *name;
    };
    Entry const entries[] = {
        {&fld_medexp_notused, "fld_medexp_notused"},
        {&fld_medexp_other_notused, "fld_medexp_other_notused"},
        {&fld_medexp_attcare_notused, "fld_medexp_attcare_notused"},
        {&fld_medexp_van_notused, "fld_medexp_van_notused"},
        {&fld_medexp_move_notused, "fld_medexp_move_notused"},
        {&fld_medexp_spouse_notused, "fld_medexp_spouse_notused"},
        {&fld_medexp_other_spouse_notused, "fld_medexp_other_spouse_notused"},
        {&fld_medexp_attcare_spouse_notused, "fld_medexp_attcare_spouse_notused"},
        {&fld_medexp_van_spouse_notused, "fld_medexp_van_spouse_notused"},
        {&fld_medexp_move_spouse_notused, "fld_medexp_move_spouse_notused"},
    };
    for (Entry const &entry : entries) {
        entry.field->m_strName = entry.name;
        m_fields.push_back(entry.field);
    }
}

void DependantInfoStruct::AllocData(int n)
{
    FreeData();
    if (n < 1)
        return;
    m_pData.reset(new _OneDependantInfoStru[size_t(n)]);
    m_nCount = n;
}

void DependantInfoStruct::FreeData()
{
    m_pData.reset();
    m_nCount = 0;
}

_OneDependantInfoStru *DependantInfoStruct::getDependant(int i) const
{
    if (i < 0 || i >= m_nCount)
        return nullptr;
    return &m_pData[size_t(i)];
}

DependantInfoStruct &DependantInfoStruct::operator=(DependantInfoStruct const &other)
{
    if (this == &other)
        return *this;
    AllocData(other.m_nCount);
    for (int i = 0; i < m_nCount; ++i)
        m_pData[size_t(i)] = other.m_pData[size_t(i)];
    Common_Func_OperatorAssign(const_cast<std::vector<CField *> &>(other.m_fields), m_fields);
    return *this;
}

bool DependantInfoStruct::operator==(DependantInfoStruct const &other) const
{
    for (int i = 0; i < m_nCount; ++i) {
        _OneDependantInfoStru const *theirs = other.getDependant(i);
        if (!theirs || m_pData[size_t(i)] != *theirs)
            return false;
    }
    return !Common_Func_OperatorNotEqual(const_cast<std::vector<CField *> &>(m_fields),
                                         const_cast<std::vector<CField *> &>(other.m_fields));
}

void DependantInfoStruct::FillComboBox(StyledComboBox *box, char *firstItem) const
{
    if (!box)
        return;
    if (m_nCount == 0) {
        box->AddString("No dependant information was entered.");
        box->EnableWindow(false);
        return;
    }
    box->SetItemData(box->AddString(firstItem ? firstItem : "Please select a dependant"), 0);
    for (int i = 0; i < m_nCount; ++i) {
        CString text;
        if (m_pData[size_t(i)].MakeComboBoxString(text))
            box->SetItemData(box->AddString(text.toStdStringUTF8().c_str()), i + 1);
    }
}

int DependantInfoStruct::ValidateAndCorrectDepIndex(int &idx) const
{
    if (idx == 0)
        return 0;
    _OneDependantInfoStru const *dependant = getDependant(idx - 1);
    if (dependant && dependant->isNamed())
        return 0;
    idx = 0;
    return 1;
}

double DependantInfoStruct::GetDepNetIncConsideringF185(int i) const
{
    _OneDependantInfoStru const *dependant = getDependant(i);
    return dependant ? dependant->m_dNetIncome + fld_AdjustAmount.m_dValue : 0.0;
}
