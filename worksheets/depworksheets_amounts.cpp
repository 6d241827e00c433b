#include <LibControl/worksheets/DepWorkSheetData.h>

#include <LibControl/worksheets/dependantinfo.h>

namespace {

// The spouse or eligible dependant of schedule 5, who is not in the list.
constexpr int SpouseOrEligibleDependant = 303;
constexpr unsigned int DepNetIncOverwriteVersion = 0x1009a;
constexpr unsigned int CaregiverOverwriteVersion = 0x10192;

// Line 3 of the infirm-dependant and caregiver worksheets: line 1 less line
// 2, within 0 and the maximum (no tolerance on the maximum here).
void calculateLine3(CFloatField &line3, CFloatField &base, CFloatField &netIncome, double max)
{
    line3 = base.m_dValue - netIncome.m_dValue;
    if (line3.m_dValue < 0)
        line3.m_dValue = 0;
    if (line3.m_dValue > max)
        line3.m_dValue = max;
}

} // namespace

// --- CWSDepAmtData --------------------------------------------------------

CWSDepAmtData::CWSDepAmtData() : CWSDepAmtData(WS_DEP_FIELD_VERSION) { }

CWSDepAmtData::CWSDepAmtData(unsigned int version)
    : CWSDepBaseData(version)
    , BaseAmount(0.0, 0, true, version, FIELD_ATTR_NONE)
    , bOverWriteDepNetInc_notused(0, 0, FIELD_ATTR_NONE, 0, DepNetIncOverwriteVersion)
    , DepNetInc(0.0, 0, false, version, FIELD_ATTR_NONE)
    , AmountClaim(0.0, 0, false, version, FIELD_ATTR_NONE)
    , m_dMaxClaim(0.0)
{
    addFields();
}

CWSDepAmtData::~CWSDepAmtData() = default;

void CWSDepAmtData::addFields()
{
    addField(BaseAmount, "BaseAmount");
    addField(bOverWriteDepNetInc_notused, "bOverWriteDepNetInc_notused");
    addField(DepNetInc, "DepNetInc");
    addField(AmountClaim, "AmountClaim");
}

void CWSDepAmtData::SetParameter(double base, double max)
{
    BaseAmount.m_dValue = base;
    m_dMaxClaim = max;
}

int CWSDepAmtData::Calculate()
{
    bOverWriteDepNetInc_notused.m_nValue = 0;
    if (DepIdx.m_nValue < 1) {
        DepNetInc.m_dValue = 0;
        AmountClaim.m_dValue = 0;
        return 0;
    }
    DepNetInc.m_dValue = m_pDepInfo ? m_pDepInfo->GetDepNetIncConsideringF185(DepIdx.m_nValue - 1) : 0.0;
    AmountClaim = BaseAmount.m_dValue - DepNetInc.m_dValue;
    if (AmountClaim.m_dValue < 0)
        AmountClaim.m_dValue = 0;
    // A maximum below a cent means "no maximum".
    if (m_dMaxClaim >= 0.009 && AmountClaim.m_dValue > m_dMaxClaim)
        AmountClaim.m_dValue = m_dMaxClaim;
    return 0;
}

// --- CWSInfirmDepAmtData --------------------------------------------------

CWSInfirmDepAmtData::CWSInfirmDepAmtData() : CWSInfirmDepAmtData(WS_DEP_FIELD_VERSION) { }

CWSInfirmDepAmtData::CWSInfirmDepAmtData(unsigned int version)
    : CWSDepBaseData(version)
    , BaseAmount(0.0, 0, true, version, FIELD_ATTR_NONE)
    , DepNetInc(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_3(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_bClaim5816_notused(0, 0, FIELD_ATTR_NONE, 0, version)
    , fld_4(0.0, 0, false, version, FIELD_ATTR_NONE)
    , AmountClaim(0.0, 0, false, version, FIELD_ATTR_NONE)
    , m_dMax3(0.0)
    , m_dOtherAmount(0.0)
    , m_nOtherDepIdx(0)
{
    addFields();
}

CWSInfirmDepAmtData::~CWSInfirmDepAmtData() = default;

void CWSInfirmDepAmtData::addFields()
{
    addField(BaseAmount, "BaseAmount");
    addField(DepNetInc, "DepNetInc");
    addField(fld_3, "fld_3");
    addField(fld_bClaim5816_notused, "fld_bClaim5816_notused");
    addField(fld_4, "fld_4");
    addField(AmountClaim, "AmountClaim");
}

void CWSInfirmDepAmtData::SetParameterAndF5816Info(double base, double max, int otherDepIdx, double otherAmount)
{
    BaseAmount.m_dValue = base;
    m_dMax3 = max;
    m_nOtherDepIdx = otherDepIdx;
    m_dOtherAmount = otherAmount;
}

int CWSInfirmDepAmtData::Calculate()
{
    int const idx = DepIdx.m_nValue;
    if (idx < 1)
        DepNetInc.m_dValue = 0;
    else if (idx != SpouseOrEligibleDependant)
        DepNetInc.m_dValue = selectedNetIncome();
    calculateLine3(fld_3, BaseAmount, DepNetInc, m_dMax3);
    fld_4.m_dValue = 0;
    if (idx < 1) {
        AmountClaim.m_dValue = 0;
        return 0;
    }
    if (idx == SpouseOrEligibleDependant || idx == m_nOtherDepIdx)
        fld_4.m_dValue = m_dOtherAmount;
    AmountClaim = fld_3.m_dValue - fld_4.m_dValue;
    if (AmountClaim.m_dValue < 0)
        AmountClaim.m_dValue = 0;
    return 0;
}

// --- CWSCaregiverAmtData --------------------------------------------------

CWSCaregiverAmtData::CWSCaregiverAmtData() : CWSCaregiverAmtData(WS_DEP_FIELD_VERSION) { }

CWSCaregiverAmtData::CWSCaregiverAmtData(unsigned int version)
    : CWSDepBaseData(version)
    , BaseAmount(0.0, 0, true, version, FIELD_ATTR_NONE)
    , DepNetInc(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_3(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_bClaim5816_notused(0, 0, FIELD_ATTR_NONE, 0, version)
    , fld_4(0.0, 0, false, version, FIELD_ATTR_NONE)
    , AmountClaim(0.0, 0, false, version, FIELD_ATTR_NONE)
    , bOverwrite(0, 0, FIELD_ATTR_NONE, 0, CaregiverOverwriteVersion)
    , m_dMax3(0.0)
    , m_dOtherAmount(0.0)
    , m_nOtherDepIdx(0)
{
    addFields();
}

CWSCaregiverAmtData::~CWSCaregiverAmtData() = default;

void CWSCaregiverAmtData::addFields()
{
    addField(BaseAmount, "BaseAmount");
    addField(DepNetInc, "DepNetInc");
    addField(fld_3, "fld_3");
    addField(fld_bClaim5816_notused, "fld_bClaim5816_notused");
    addField(fld_4, "fld_4");
    addField(AmountClaim, "AmountClaim");
    addField(bOverwrite, "bOverwrite");
}

void CWSCaregiverAmtData::SetParameter(double base, double max, int otherDepIdx, double otherAmount)
{
    BaseAmount.m_dValue = base;
    m_dMax3 = max;
    m_nOtherDepIdx = otherDepIdx;
    m_dOtherAmount = otherAmount;
}

int CWSCaregiverAmtData::Calculate()
{
    int const idx = DepIdx.m_nValue;
    DepNetInc.m_dValue = idx < 1 ? 0.0 : selectedNetIncome();
    calculateLine3(fld_3, BaseAmount, DepNetInc, m_dMax3);
    fld_4.m_dValue = 0;
    if (idx < 1) {
        AmountClaim.m_dValue = 0;
        return 0;
    }
    if (idx == m_nOtherDepIdx)
        fld_4.m_dValue = m_dOtherAmount;
    double result = fld_3.m_dValue - fld_4.m_dValue;
    if (bOverwrite.m_nValue) {
        if (AmountClaim.m_dValue > result)
            AmountClaim.m_dValue = result;
        else
            result = AmountClaim.m_dValue;
    } else {
        AmountClaim.m_dValue = result;
    }
    if (result < 0)
        AmountClaim.m_dValue = 0;
    return 0;
}
