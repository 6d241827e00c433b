#include <LibControl/worksheets/DepWorkSheetData.h>

#include <LibControl/worksheets/dependantinfo.h>

namespace {

constexpr unsigned int MedicalExpenseVersion = 0x100c0;
constexpr int AdultAge = 18;

void notBelowZero(CFloatField &field)
{
    if (field.m_dValue < 0)
        field.m_dValue = 0;
}

} // namespace

// --- CWSDisabilityTransferAmtData -----------------------------------------

CWSDisabilityTransferAmtData::CWSDisabilityTransferAmtData()
    : CWSDisabilityTransferAmtData(WS_DEP_FIELD_VERSION)
{
}

CWSDisabilityTransferAmtData::CWSDisabilityTransferAmtData(unsigned int version)
    : CWSDepBaseData(version)
    , fld_BaseAmount(0.0, 0, true, version, FIELD_ATTR_NONE)
    , fld_Line2Max(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_Line3ChldCareExp(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_Line4ExpBase(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_Line5CareExpAfter(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_Line6AmtUnder18(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_2(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_Line8(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_4(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_5(0.0, 0, false, version, FIELD_ATTR_NONE)
    , DepTaxInc(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_7(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_overwrite(0, 0, FIELD_ATTR_NONE, 0, version)
    , fld_claim(0.0, 0, false, version, FIELD_ATTR_NONE)
{
    addFields();
}

CWSDisabilityTransferAmtData::~CWSDisabilityTransferAmtData() = default;

void CWSDisabilityTransferAmtData::addFields()
{
    addField(fld_BaseAmount, "fld_BaseAmount");
    addField(fld_Line2Max, "fld_Line2Max");
    addField(fld_Line3ChldCareExp, "fld_Line3ChldCareExp");
    addField(fld_Line4ExpBase, "fld_Line4ExpBase");
    addField(fld_Line5CareExpAfter, "fld_Line5CareExpAfter");
    addField(fld_Line6AmtUnder18, "fld_Line6AmtUnder18");
    addField(fld_2, "fld_2");
    addField(fld_Line8, "fld_Line8");
    addField(fld_4, "fld_4");
    addField(fld_5, "fld_5");
    addField(DepTaxInc, "DepTaxInc");
    addField(fld_7, "fld_7");
    addField(fld_overwrite, "fld_overwrite");
    addField(fld_claim, "fld_claim");
}

void CWSDisabilityTransferAmtData::SetF5848Parameter(double base, double line2Max, double line4Base)
{
    fld_BaseAmount.m_dValue = base;
    fld_Line2Max.m_dValue = line2Max;
    fld_Line4ExpBase.m_dValue = line4Base;
}

void CWSDisabilityTransferAmtData::calculateSupplement()
{
    // A record that cannot be found has no known age and gets no supplement.
    _OneDependantInfoStru const *dependant = selectedDependant();
    if (!dependant || dependant->getAge() >= AdultAge)
        return;
    fld_Line5CareExpAfter = fld_Line3ChldCareExp.m_dValue - fld_Line4ExpBase.m_dValue;
    notBelowZero(fld_Line5CareExpAfter);
    fld_Line6AmtUnder18 = fld_Line2Max.m_dValue - fld_Line5CareExpAfter.m_dValue;
    if (fld_Line6AmtUnder18.m_dValue < 0) {
        fld_Line6AmtUnder18.m_dValue = 0;
        fld_2.m_dValue = 0;
    } else {
        fld_2.m_dValue = fld_Line6AmtUnder18.m_dValue;
    }
}

int CWSDisabilityTransferAmtData::Calculate()
{
    for (CFloatField *line : {&fld_Line5CareExpAfter, &fld_Line6AmtUnder18, &fld_2, &fld_Line8, &fld_5, &fld_7})
        line->m_dValue = 0;
    if (DepIdx.m_nValue < 1) {
        fld_4.m_dValue = 0;
        DepTaxInc.m_dValue = 0;
        fld_claim.m_dValue = 0;
        return 0;
    }
    calculateSupplement();
    notBelowZero(fld_4);
    notBelowZero(DepTaxInc);
    fld_Line8 = fld_BaseAmount.m_dValue + fld_2.m_dValue;
    fld_5 = fld_Line8.m_dValue + fld_4.m_dValue;
    fld_7 = fld_5.m_dValue - DepTaxInc.m_dValue;
    notBelowZero(fld_7);

    double claim;
    if (fld_overwrite.m_nValue) {
        claim = fld_claim.m_dValue;
        if (claim > fld_Line8.m_dValue)
            claim = fld_Line8.m_dValue;
        if (claim > fld_7.m_dValue)
            claim = fld_7.m_dValue;
    } else {
        claim = fld_Line8.m_dValue <= fld_7.m_dValue ? fld_Line8.m_dValue : fld_7.m_dValue;
    }
    fld_claim.m_dValue = claim < 0 ? 0.0 : claim;
    return 0;
}

// --- CWSMedicalExpAdjustmentData ------------------------------------------

CWSMedicalExpAdjustmentData::CWSMedicalExpAdjustmentData(double cap, double rate, double maxClaim)
    : CWSMedicalExpAdjustmentData(cap, rate, maxClaim, WS_DEP_FIELD_VERSION)
{
}

CWSMedicalExpAdjustmentData::CWSMedicalExpAdjustmentData(double cap, double rate, double maxClaim,
                                                         unsigned int version)
    : CWSDepBaseData(version)
    , DepNetInc(0.0, 0, false, version, FIELD_ATTR_NONE)
    , BaseAmount(0.0, 0, true, version, FIELD_ATTR_NONE)
    , fld_3(0.0, 0, false, version, FIELD_ATTR_NONE)
    , Rate(0.0, 0, false, version, FIELD_ATTR_NONE)
    , fld_exp(0.0, 0, false, MedicalExpenseVersion, FIELD_ATTR_NONE)
    , fld_line2(0.0, 0, false, MedicalExpenseVersion, FIELD_ATTR_NONE)
    , AmountClaim(0.0, 0, false, version, FIELD_ATTR_NONE)
    , m_dThresholdCap(cap)
    , m_dRate(rate)
    , m_dMaxClaim(maxClaim)
{
    addFields();
}

CWSMedicalExpAdjustmentData::~CWSMedicalExpAdjustmentData() = default;

void CWSMedicalExpAdjustmentData::addFields()
{
    addField(DepNetInc, "DepNetInc");
    addField(BaseAmount, "BaseAmount");
    addField(fld_3, "fld_3");
    addField(Rate, "Rate");
    addField(fld_exp, "fld_exp");
    addField(fld_line2, "fld_line2");
    addField(AmountClaim, "AmountClaim");
}

int CWSMedicalExpAdjustmentData::Calculate()
{
    bool const selected = DepIdx.m_nValue >= 1;
    DepNetInc.m_dValue = selected ? selectedNetIncome() : 0.0;
    fld_line2 = DepNetInc.m_dValue * m_dRate;
    if (fld_line2.m_dValue > m_dThresholdCap)
        fld_line2.m_dValue = m_dThresholdCap;
    if (!selected) {
        AmountClaim.m_dValue = 0;
        return 0;
    }
    AmountClaim = fld_exp.m_dValue - fld_line2.m_dValue;
    notBelowZero(AmountClaim);
    if (AmountClaim.m_dValue > m_dMaxClaim)
        AmountClaim.m_dValue = m_dMaxClaim;
    return 0;
}
