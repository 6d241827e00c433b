#include <LibControl/worksheets/DepWorkSheetData.h>

#include <LibControl/worksheets/dependantinfo.h>

namespace {

// The spouse or eligible dependant of schedule 5, who is not in the list.
constexpr int SpouseOrEligibleDependant = 303;
constexpr unsigned int DepNetIncOverwriteVersion = 0x1009a;
constexpr unsigned int CaregiverOverwriteVersion = 0x10192;

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

// --- CWSDepClaimLinesData -------------------------------------------------

CWSDepClaimLinesData::CWSDepClaimLinesData(unsigned int version)
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
    addField(BaseAmount, "BaseAmount");
    addField(DepNetInc, "DepNetInc");
    addField(fld_3, "fld_3");
    addField(fld_bClaim5816_notused, "fld_bClaim5816_notused");
    addField(fld_4, "fld_4");
    addField(AmountClaim, "AmountClaim");
}

CWSDepClaimLinesData::~CWSDepClaimLinesData() = default;

void CWSDepClaimLinesData::setLineParameters(double base, double max, int otherDepIdx, double otherAmount)
{
    BaseAmount.m_dValue = base;
    m_dMax3 = max;
    m_nOtherDepIdx = otherDepIdx;
    m_dOtherAmount = otherAmount;
}

// No tolerance on the maximum here, unlike the plain dependant amount.
bool CWSDepClaimLinesData::line3LessLine4(double netIncome, bool alwaysShared, double &result)
{
    int const idx = DepIdx.m_nValue;
    DepNetInc.m_dValue = idx < 1 ? 0.0 : netIncome;
    fld_3 = BaseAmount.m_dValue - DepNetInc.m_dValue;
    if (fld_3.m_dValue < 0)
        fld_3.m_dValue = 0;
    if (fld_3.m_dValue > m_dMax3)
        fld_3.m_dValue = m_dMax3;
    fld_4.m_dValue = 0;
    if (idx < 1) {
        AmountClaim.m_dValue = 0;
        return false;
    }
    if (alwaysShared || idx == m_nOtherDepIdx)
        fld_4.m_dValue = m_dOtherAmount;
    result = fld_3.m_dValue - fld_4.m_dValue;
    return true;
}

// --- CWSInfirmDepAmtData --------------------------------------------------

CWSInfirmDepAmtData::CWSInfirmDepAmtData() : CWSInfirmDepAmtData(WS_DEP_FIELD_VERSION) { }

CWSInfirmDepAmtData::CWSInfirmDepAmtData(unsigned int version)
    : CWSDepClaimLinesData(version)
{
}

CWSInfirmDepAmtData::~CWSInfirmDepAmtData() = default;

void CWSInfirmDepAmtData::SetParameterAndF5816Info(double base, double max, int otherDepIdx, double otherAmount)
{
    setLineParameters(base, max, otherDepIdx, otherAmount);
}

int CWSInfirmDepAmtData::Calculate()
{
    bool const spouse = DepIdx.m_nValue == SpouseOrEligibleDependant;
    double claim = 0;
    if (!line3LessLine4(spouse ? DepNetInc.m_dValue : selectedNetIncome(), spouse, claim))
        return 0;
    AmountClaim = claim;
    if (AmountClaim.m_dValue < 0)
        AmountClaim.m_dValue = 0;
    return 0;
}

// --- CWSCaregiverAmtData --------------------------------------------------

CWSCaregiverAmtData::CWSCaregiverAmtData() : CWSCaregiverAmtData(WS_DEP_FIELD_VERSION) { }

CWSCaregiverAmtData::CWSCaregiverAmtData(unsigned int version)
    : CWSDepClaimLinesData(version)
    , bOverwrite(0, 0, FIELD_ATTR_NONE, 0, CaregiverOverwriteVersion)
{
    addField(bOverwrite, "bOverwrite");
}

CWSCaregiverAmtData::~CWSCaregiverAmtData() = default;

void CWSCaregiverAmtData::SetParameter(double base, double max, int otherDepIdx, double otherAmount)
{
    setLineParameters(base, max, otherDepIdx, otherAmount);
}

int CWSCaregiverAmtData::Calculate()
{
    double result = 0;
    if (!line3LessLine4(selectedNetIncome(), false, result))
        return 0;
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
