#include <LibControl/worksheets/DepWorkSheetData.h>

#include <LibControl/worksheets/dependantinfo.h>

#include <optional>

namespace {

// The spouse or eligible dependant of schedule 5, who is not in the list.
constexpr int SpouseOrEligibleDependant = 303;
constexpr unsigned int DepNetIncOverwriteVersion = 0x1009a;
constexpr unsigned int CaregiverOverwriteVersion = 0x10192;

// The infirm-dependant and caregiver worksheets name their lines alike:
// BaseAmount is line 1, DepNetInc line 2, fld_3 and fld_4 lines 3 and 4.
//
// Fills lines 2 to 4: line 3 is line 1 less line 2 within 0 and m_dMax3 (no
// tolerance on the maximum here); line 4 is the other worksheet's amount when
// it claims for this dependant, or always when `alwaysShared`. Returns line 3
// less line 4; with no dependant selected the claim is cleared instead.
template<class Worksheet>
std::optional<double> line3LessLine4(Worksheet &ws, double netIncome, bool alwaysShared)
{
    int const idx = ws.DepIdx.m_nValue;
    ws.DepNetInc.m_dValue = idx < 1 ? 0.0 : netIncome;
    ws.fld_3 = ws.BaseAmount.m_dValue - ws.DepNetInc.m_dValue;
    if (ws.fld_3.m_dValue < 0)
        ws.fld_3.m_dValue = 0;
    if (ws.fld_3.m_dValue > ws.m_dMax3)
        ws.fld_3.m_dValue = ws.m_dMax3;
    ws.fld_4.m_dValue = 0;
    if (idx < 1) {
        ws.AmountClaim.m_dValue = 0;
        return std::nullopt;
    }
    if (alwaysShared || idx == ws.m_nOtherDepIdx)
        ws.fld_4.m_dValue = ws.m_dOtherAmount;
    return ws.fld_3.m_dValue - ws.fld_4.m_dValue;
}

// The fields the two worksheets share, in archive order; `add` registers one.
template<class Worksheet, class Add>
void addLineFields(Worksheet &ws, Add const &add)
{
    add(ws.BaseAmount, "BaseAmount");
    add(ws.DepNetInc, "DepNetInc");
    add(ws.fld_3, "fld_3");
    add(ws.fld_bClaim5816_notused, "fld_bClaim5816_notused");
    add(ws.fld_4, "fld_4");
    add(ws.AmountClaim, "AmountClaim");
}

template<class Worksheet>
void setLineParameters(Worksheet &ws, double base, double max, int otherDepIdx, double otherAmount)
{
    ws.BaseAmount.m_dValue = base;
    ws.m_dMax3 = max;
    ws.m_nOtherDepIdx = otherDepIdx;
    ws.m_dOtherAmount = otherAmount;
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
    addLineFields(*this, [this](CField &field, char const *name) { addField(field, name); });
}

void CWSInfirmDepAmtData::SetParameterAndF5816Info(double base, double max, int otherDepIdx, double otherAmount)
{
    setLineParameters(*this, base, max, otherDepIdx, otherAmount);
}

int CWSInfirmDepAmtData::Calculate()
{
    bool const spouse = DepIdx.m_nValue == SpouseOrEligibleDependant;
    auto const claim = line3LessLine4(*this, spouse ? DepNetInc.m_dValue : selectedNetIncome(), spouse);
    if (!claim)
        return 0;
    AmountClaim = *claim;
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
    addLineFields(*this, [this](CField &field, char const *name) { addField(field, name); });
    addField(bOverwrite, "bOverwrite");
}

void CWSCaregiverAmtData::SetParameter(double base, double max, int otherDepIdx, double otherAmount)
{
    setLineParameters(*this, base, max, otherDepIdx, otherAmount);
}

int CWSCaregiverAmtData::Calculate()
{
    std::optional<double> const computed = line3LessLine4(*this, selectedNetIncome(), false);
    if (!computed)
        return 0;
    double result = *computed;
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
