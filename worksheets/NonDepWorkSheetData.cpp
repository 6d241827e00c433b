#include <LibControl/worksheets/NonDepWorkSheetData.h>

#include <LibControl/common/dates.h>
#include <LibControl/common/utilities.h>

#include <algorithm>

namespace {

// The one yearly figure that is not a parameter: the year whose days prorate.
constexpr int TaxYear = 2025;

CFloatField amountField(unsigned int version)
{
    return CFloatField(0.0, 0, false, version, FIELD_ATTR_NONE);
}

void notBelowZero(CFloatField &field)
{
    if (field.m_dValue < 0)
        field.m_dValue = 0;
}

} // namespace

// --- CWSAgeAmtData --------------------------------------------------------

CWSAgeAmtData::CWSAgeAmtData() : CWSAgeAmtData(WS_OWN_FIELD_VERSION) { }

CWSAgeAmtData::CWSAgeAmtData(unsigned int version)
    : fld_ws5808_1(amountField(version))
    , fld_ws5808_2(amountField(version))
    , fld_ws5808_3(amountField(version))
    , fld_ws5808_4(amountField(version))
    , fld_ws5808_5(amountField(version))
    , fld_ws5808_6(amountField(version))
    , fld_ws5808_7(amountField(version))
    , m_dMaxAmount(0.0)
    , m_dThreshold(0.0)
    , m_dDays(0.0)
    , m_dResultDays(0.0)
    , m_bEligible(false)
    , m_dNetIncome(0.0)
{
    // The lines stay out of m_fields on purpose: they are recomputed, never stored.
}

CWSAgeAmtData::~CWSAgeAmtData() = default;

void CWSAgeAmtData::SetAgeParameter(double maxAmount, double threshold, double rate, double days,
                                    double resultDays, bool eligible, double netIncome)
{
    m_dMaxAmount = maxAmount;
    m_dThreshold = threshold;
    fld_ws5808_5.m_dValue = rate;
    m_dDays = days;
    m_dResultDays = resultDays;
    m_bEligible = eligible;
    m_dNetIncome = netIncome;
}

int CWSAgeAmtData::Calculate()
{
    double const daysInYear = GetDaysInYear(TaxYear);
    fld_ws5808_1.m_dValue = m_dMaxAmount / daysInYear * m_dDays;
    fld_ws5808_3.m_dValue = m_dThreshold / daysInYear * m_dDays;
    fld_ws5808_2.m_dValue = m_dNetIncome;
    if (!m_bEligible) {
        fld_ws5808_7.m_dValue = 0;
        return 0;
    }
    fld_ws5808_4 = fld_ws5808_2.m_dValue - fld_ws5808_3.m_dValue;
    notBelowZero(fld_ws5808_4);
    fld_ws5808_6 = fld_ws5808_4.m_dValue * fld_ws5808_5.m_dValue;
    double const reduced = std::max(fld_ws5808_1.m_dValue - fld_ws5808_6.m_dValue, 0.0);
    fld_ws5808_7 = div(m_dResultDays, daysInYear, 0) * reduced;
    return 0;
}

// --- CWSDisabilityAmtData -------------------------------------------------

CWSDisabilityAmtData::CWSDisabilityAmtData() : CWSDisabilityAmtData(WS_OWN_FIELD_VERSION) { }

CWSDisabilityAmtData::CWSDisabilityAmtData(unsigned int version)
    : fld_ws5844_claim(0, 0, FIELD_ATTR_NONE, 0, version)
    , fld_ws5844_1(amountField(version))
    , fld_ws5844_2(amountField(version))
    , fld_ws5844_3(amountField(version))
    , fld_ws5844_4(amountField(version))
    , fld_ws5844_5(amountField(version))
    , m_bEligible(false)
{
    addField(fld_ws5844_claim, "fld_ws5844_claim");
    addField(fld_ws5844_1, "fld_ws5844_1");
    addField(fld_ws5844_2, "fld_ws5844_2");
    addField(fld_ws5844_3, "fld_ws5844_3");
    addField(fld_ws5844_4, "fld_ws5844_4");
    addField(fld_ws5844_5, "fld_ws5844_5");
}

CWSDisabilityAmtData::~CWSDisabilityAmtData() = default;

void CWSDisabilityAmtData::SetF5844Parameter(double maxSupplement, double expenseBase, bool eligible)
{
    fld_ws5844_1.m_dValue = maxSupplement;
    fld_ws5844_3.m_dValue = expenseBase;
    m_bEligible = eligible;
}

int CWSDisabilityAmtData::Calculate()
{
    notBelowZero(fld_ws5844_2);
    if (!fld_ws5844_claim.m_nValue || !m_bEligible) {
        // Line 4 keeps its last value: the page still shows it.
        fld_ws5844_5.m_dValue = 0;
        return 0;
    }
    fld_ws5844_4 = fld_ws5844_2.m_dValue - fld_ws5844_3.m_dValue;
    notBelowZero(fld_ws5844_4);
    fld_ws5844_5 = fld_ws5844_1.m_dValue - fld_ws5844_4.m_dValue;
    notBelowZero(fld_ws5844_5);
    return 0;
}

// --- CWSDividendTaxCreditData ---------------------------------------------

CWSDividendTaxCreditData::CWSDividendTaxCreditData() : CWSDividendTaxCreditData(WS_OWN_FIELD_VERSION) { }

CWSDividendTaxCreditData::CWSDividendTaxCreditData(unsigned int version)
    : fld_Line120(amountField(version))
    , fld_Line180(amountField(version))
    , fld_rate1(amountField(version))
    , fld_Line120_sub_Line180(amountField(version))
    , fld_rate2(amountField(version))
    , fld_4(amountField(version))
    , fld_5(amountField(version))
    , fld_6(amountField(version))
{
    addField(fld_Line120, "fld_Line120");
    addField(fld_Line180, "fld_Line180");
    addField(fld_rate1, "fld_rate1");
    addField(fld_Line120_sub_Line180, "fld_Line120_sub_Line180");
    addField(fld_rate2, "fld_rate2");
    addField(fld_4, "fld_4");
    addField(fld_5, "fld_5");
    addField(fld_6, "fld_6");
}

CWSDividendTaxCreditData::~CWSDividendTaxCreditData() = default;

void CWSDividendTaxCreditData::SetParameter(double rate1, double rate2)
{
    fld_rate1.m_dValue = rate1;
    fld_rate2.m_dValue = rate2;
}

int CWSDividendTaxCreditData::Calculate()
{
    fld_Line120_sub_Line180 = fld_Line120.m_dValue - fld_Line180.m_dValue;
    notBelowZero(fld_Line120_sub_Line180);
    fld_4 = fld_Line180.m_dValue * fld_rate1.m_dValue;
    fld_5 = fld_Line120_sub_Line180.m_dValue * fld_rate2.m_dValue;
    fld_6 = fld_4.m_dValue + fld_5.m_dValue;
    return 0;
}

// --- DataWS58600 ----------------------------------------------------------

DataWS58600::DataWS58600() : DataWS58600(WS_OWN_FIELD_VERSION) { }

DataWS58600::DataWS58600(unsigned int version)
    : fld_5860(int(version), int(FIELD_VERSION_LAST))
    , fld_claim(false, 0.0, 0, false, FIELD_ATTR_NONE, 0, version)
    , m_dRate(0.0)
{
    addField(fld_5860, "fld_5860");
    addField(fld_claim, "fld_claim");
}

DataWS58600::~DataWS58600() = default;

void DataWS58600::Calculate(double rate)
{
    m_dRate = rate;
    fld_claim.m_dValue = rate * fld_5860.m_dValue;
}

// --- DataWSAdoptionExpense ------------------------------------------------

DataWSAdoptionExpense::DataWSAdoptionExpense() : DataWSAdoptionExpense(WS_OWN_FIELD_VERSION) { }

DataWSAdoptionExpense::DataWSAdoptionExpense(unsigned int version)
    : fld_Adopt_ExpAmt_1(int(version), int(FIELD_VERSION_LAST))
    , fld_Adopt_ExpAmt_2(int(version), int(FIELD_VERSION_LAST))
    , fld_Adopt_ExpAmt_3(int(version), int(FIELD_VERSION_LAST))
    , fld_Adopt_ExpAmt_4(int(version), int(FIELD_VERSION_LAST))
    , fld_Adopt_ExpAmt_5(int(version), int(FIELD_VERSION_LAST))
    , fld_Adopt_ExpAmt_6(int(version), int(FIELD_VERSION_LAST))
{
    addField(fld_Adopt_ExpAmt_1, "fld_Adopt_ExpAmt_1");
    addField(fld_Adopt_ExpAmt_2, "fld_Adopt_ExpAmt_2");
    addField(fld_Adopt_ExpAmt_3, "fld_Adopt_ExpAmt_3");
    addField(fld_Adopt_ExpAmt_4, "fld_Adopt_ExpAmt_4");
    addField(fld_Adopt_ExpAmt_5, "fld_Adopt_ExpAmt_5");
    addField(fld_Adopt_ExpAmt_6, "fld_Adopt_ExpAmt_6");
}

DataWSAdoptionExpense::~DataWSAdoptionExpense() = default;

std::array<CFloatField *, 6> DataWSAdoptionExpense::amounts()
{
    return {&fld_Adopt_ExpAmt_1, &fld_Adopt_ExpAmt_2, &fld_Adopt_ExpAmt_3,
            &fld_Adopt_ExpAmt_4, &fld_Adopt_ExpAmt_5, &fld_Adopt_ExpAmt_6};
}

int DataWSAdoptionExpense::Calculate()
{
    for (CFloatField *amount : amounts())
        notBelowZero(*amount);
    return 0;
}

double DataWSAdoptionExpense::CalcResult(double limit)
{
    double total = 0.0;
    for (CFloatField *amount : amounts())
        total += std::min(limit, amount->m_dValue);
    return total;
}
