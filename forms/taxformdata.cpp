#include <LibControl/forms/taxformdata.h>

#include <LibControl/worksheets/DepWorkSheetData.h>
#include <LibControl/worksheets/WorkSheetData.h>

namespace {

enum FormKind { FormKindForm = 0, FormKindSlip = 1, FormKindWizard = 2 };

constexpr unsigned int SharingVersion = 0x10192;

} // namespace

CTaxData_Form::CTaxData_Form(int kind, quint16 id)
    : m_DataFlag1(0, 0, FIELD_ATTR_NONE, 0, FORM_DATAFLAG_VERSION)
    , m_DataFlag2(0, 0, FIELD_ATTR_NONE, 0, FORM_DATAFLAG_VERSION)
    , m_DataFlag3(0, 0, FIELD_ATTR_NONE, 0, FORM_DATAFLAG_VERSION)
    , m_DataFlag4(0, 0, FIELD_ATTR_NONE, 0, FORM_DATAFLAG_VERSION)
    , m_bFlag(false)
    , m_pDepInfo(nullptr)
    , m_eMainTaxProvince(ENUMTYPE_PROVINCE(0))
    , m_bCoupledReturn(false)
    , m_nFormKind(kind)
    , m_nFormId(id)
    , m_nDelimiter(FORM_ARCHIVE_DELIMITER)
{
    m_DataFlag1.m_strName = "m_DataFlag1";
    m_DataFlag2.m_strName = "m_DataFlag2";
    m_DataFlag3.m_strName = "m_DataFlag3";
    m_DataFlag4.m_strName = "m_DataFlag4";
}

CTaxData_Form::CTaxData_Form(ENUMTYPE_FORM formId) : CTaxData_Form(FormKindForm, quint16(formId)) { }

CTaxData_Form::CTaxData_Form(ENUMTYPE_SLIP slipId) : CTaxData_Form(FormKindSlip, quint16(slipId)) { }

CTaxData_Form::CTaxData_Form(ENUMTYPE_TAXWIZARD wizardId) : CTaxData_Form(FormKindWizard, quint16(wizardId)) { }

CTaxData_Form::~CTaxData_Form()
{
    for (auto &entry : m_mapFieldOldNames)
        delete entry.second;
}

int CTaxData_Form::getUIPages(std::list<BaseTaxPage *> &pages, QWidget *parent)
{
    Q_UNUSED(pages);
    Q_UNUSED(parent);
    return 0;
}

bool CTaxData_Form::ShouldBeImported(unsigned char year, ENUMTYPE_PROVINCE province)
{
    if (IsFormMandatory(year, province, ENUMTYPE_FORM(m_nFormId)))
        return true;
    constexpr size_t FormRows = sizeof Global_Forms_Info / sizeof Global_Forms_Info[0];
    return m_nFormId < FormRows && Global_Forms_Info[m_nFormId].flagB != 0;
}

int CTaxData_Form::SyncSharedData(CTaxData_Form *other)
{
    Q_UNUSED(other);
    return 0;
}

bool CTaxData_Form::IsShared()
{
    return false;
}

int CTaxData_Form::deduceEntity()
{
    return 0;
}

void CTaxData_Form::GetDisplayName(CString &out)
{
    out = CString("Untitled");
}

int CTaxData_Form::Calculate()
{
    return 0;
}

int CTaxData_Form::Calculate02()
{
    return 0;
}

void CTaxData_Form::Warning(std::list<CString> &messages)
{
    Q_UNUSED(messages);
}

int CTaxData_Form::Validate(unsigned char kinds, std::list<CString> &messages)
{
    Q_UNUSED(kinds);
    Q_UNUSED(messages);
    return 0;
}

void CTaxData_Form::ValidateAndCorrect()
{
    for (CField *field : m_fields)
        field->ValidateAndCorrect();
}

int CTaxData_Form::WriteNetfile(unsigned char kinds, NetfileGenObjParamStru &param)
{
    Q_UNUSED(kinds);
    Q_UNUSED(param);
    return 0;
}

void CTaxData_Form::SetDepInfo(DependantInfoStruct *depInfo)
{
    m_pDepInfo = depInfo;
    for (CWSBaseData *worksheet : m_listWorksheets) {
        if (auto *dependantWorksheet = dynamic_cast<CWSDepBaseData *>(worksheet))
            dependantWorksheet->SetDepInfo(depInfo);
    }
}

int CTaxData_Form::WriteXMLFile(char const *folder, char const *formName, char const *fileName, unsigned int flags)
{
    Q_UNUSED(folder);
    Q_UNUSED(formName);
    Q_UNUSED(fileName);
    Q_UNUSED(flags);
    return 0;
}

void CTaxData_Form::GetXtraPrintFields(std::list<std::string> &names)
{
    Q_UNUSED(names);
}

DependantInfoStruct *CTaxData_Form::GetDepInfo() const
{
    return m_pDepInfo;
}

ENUMTYPE_PROVINCE CTaxData_Form::getMainTaxProvince() const
{
    return m_eMainTaxProvince;
}

void CTaxData_Form::setMainTaxProvince(ENUMTYPE_PROVINCE province)
{
    m_eMainTaxProvince = province;
}

bool CTaxData_Form::isCoupledReturn() const
{
    return m_bCoupledReturn;
}

void CTaxData_Form::setCoupledReturn(bool coupled)
{
    m_bCoupledReturn = coupled;
}

void CTaxData_Form::addFieldOldName(char const *name, char const *oldName)
{
    if (!name || !oldName)
        return;
    std::list<std::string> *&names = m_mapFieldOldNames[name];
    if (!names)
        names = new std::list<std::string>;
    names->push_back(oldName);
}

// --- The two thin subclasses ----------------------------------------------

CProvinceTaxData_Form::CProvinceTaxData_Form(ENUMTYPE_FORM formId) : CTaxData_Form(formId) { }

CProvinceTaxData_Form::~CProvinceTaxData_Form() = default;

CSharableTaxData_Form::CSharableTaxData_Form(ENUMTYPE_FORM formId)
    : CTaxData_Form(formId)
    , fld_bOverwritePercentIfShared(0, 0, FIELD_ATTR_NONE, 0, SharingVersion)
    , fld_MyPercent(0.0, 0, false, SharingVersion, FIELD_ATTR_NONE)
{
    addSharingFields();
}

CSharableTaxData_Form::CSharableTaxData_Form(ENUMTYPE_SLIP slipId)
    : CTaxData_Form(slipId)
    , fld_bOverwritePercentIfShared(0, 0, FIELD_ATTR_NONE, 0, SharingVersion)
    , fld_MyPercent(0.0, 0, false, SharingVersion, FIELD_ATTR_NONE)
{
    addSharingFields();
}

CSharableTaxData_Form::~CSharableTaxData_Form() = default;

void CSharableTaxData_Form::addSharingFields()
{
    fld_bOverwritePercentIfShared.m_strName = "fld_bOverwritePercentIfShared";
    fld_MyPercent.m_strName = "fld_MyPercent";
    m_fields.push_back(&fld_bOverwritePercentIfShared);
    m_fields.push_back(&fld_MyPercent);
}
