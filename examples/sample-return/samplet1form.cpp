#include "samplet1form.h"

#include <LibControl/common/addresschecks.h>
#include <LibControl/common/idchecks.h>
#include <LibControl/forms/NetfileGeneral.h>

#include <QDateTime>

namespace {

// 2025 federal figures used by this sample.
constexpr double BasicPersonalAmount = 16129.0;
constexpr double CaregiverBase = 28798.0;
constexpr double CaregiverMax = 8601.0;
constexpr double LowestRatePercent = 14.5;
constexpr double AgeAmountMax = 9028.0;
constexpr double AgeAmountThreshold = 45522.0;
constexpr double AgeAmountRate = 0.15;
constexpr double DisabilityBase = 10138.0;
constexpr double DisabilitySupplementMax = 5914.0;
constexpr double DisabilityCareExpenseBase = 3464.0;
constexpr int TaxYear2025 = 2025;
constexpr unsigned int First = FIELD_VERSION_FIRST;

} // namespace

SampleT1Form::SampleT1Form(STRUCT_TAX_STAIRS_JURISDICTION const *schedule)
    : CTaxData_Form(FORM_T1GENERAL)
    , fld_FirstName(1, "", 30, First)
    , fld_LastName(2, "", 30, First)
    , fld_SIN(3, "", 9, First)
    , fld_Address(4, "", 30, First)
    , fld_City(5, "", 30, First)
    , fld_Province(6, 0, FIELD_ATTR_NONE)
    , fld_PostalCode(7, "", 7, First)
    , fld_Email(8, "", 60, First)
    , fld_BirthDate(9, FIELD_ATTR_NONE)
    , fld_MaritalStatus(10, 0, FIELD_ATTR_NONE)
    , fld_ElectionsCanada(11, 0)
    , fld_ResidentAllYear(12, 1)
    , fld_DaysInCanada(365.0, 13)
    , fld_10100_Employment(0.0, 10100)
    , fld_11500_Pension(0.0, 11500)
    , fld_12000_Dividends(0.0, 12000)
    , fld_12100_Interest(0.0, 12100)
    , fld_15000_TotalIncome(0.0, 15000)
    , fld_20800_RRSP(0.0, 20800)
    , fld_23600_NetIncome(0.0, 23600)
    , fld_26000_TaxableIncome(0.0, 26000)
    , fld_30000_BasicPersonal(0.0, 30000)
    , fld_30400_EligibleDependant(0.0, 30400)
    , fld_30450_Caregiver(0.0, 30450)
    , fld_30800_CPP(0.0, 30800)
    , fld_31200_EI(0.0, 31200)
    , fld_33099_Medical(0.0, 33099)
    , fld_33500_TotalCredits(0.0, 33500)
    , fld_CreditRate(LowestRatePercent, 0, false, First)
    , fld_33800_CreditAmount(0.0, 33800)
    , fld_40400_FederalTax(0.0, 40400)
    , fld_42000_NetFederalTax(0.0, 42000)
    , fld_43700_TaxDeducted(0.0, 43700)
    , fld_48400_Refund(0.0, 48400)
    , fld_48500_Balance(0.0, 48500)
    , fld_SignedOn(90, FIELD_ATTR_CLEAR_DATE_NEXTYEAR)
    , fld_LastCalculated(FIELD_ATTR_NONE)
    , fld_30100_Age(0.0, 30100)
    , fld_31600_Disability(0.0, 31600)
    , m_schedule(schedule)
{
    add(fld_FirstName, "fld_FirstName");
    add(fld_LastName, "fld_LastName");
    add(fld_SIN, "fld_SIN");
    add(fld_Address, "fld_Address");
    add(fld_City, "fld_City");
    add(fld_Province, "fld_Province");
    add(fld_PostalCode, "fld_PostalCode");
    add(fld_Email, "fld_Email");
    add(fld_BirthDate, "fld_BirthDate");
    add(fld_MaritalStatus, "fld_MaritalStatus");
    add(fld_ElectionsCanada, "fld_ElectionsCanada");
    add(fld_ResidentAllYear, "fld_ResidentAllYear");
    add(fld_DaysInCanada, "fld_DaysInCanada");
    add(fld_10100_Employment, "fld_10100");
    add(fld_11500_Pension, "fld_11500");
    add(fld_12000_Dividends, "fld_12000");
    add(fld_12100_Interest, "fld_12100");
    add(fld_15000_TotalIncome, "fld_15000");
    add(fld_20800_RRSP, "fld_20800");
    add(fld_23600_NetIncome, "fld_23600");
    add(fld_26000_TaxableIncome, "fld_26000");
    add(fld_30000_BasicPersonal, "fld_30000");
    add(fld_30400_EligibleDependant, "fld_30400");
    add(fld_30450_Caregiver, "fld_30450");
    add(fld_30800_CPP, "fld_30800");
    add(fld_31200_EI, "fld_31200");
    add(fld_33099_Medical, "fld_33099");
    add(fld_33500_TotalCredits, "fld_33500");
    add(fld_CreditRate, "fld_CreditRate");
    add(fld_33800_CreditAmount, "fld_33800");
    add(fld_40400_FederalTax, "fld_40400");
    add(fld_42000_NetFederalTax, "fld_42000");
    add(fld_43700_TaxDeducted, "fld_43700");
    add(fld_48400_Refund, "fld_48400");
    add(fld_48500_Balance, "fld_48500");
    add(fld_SignedOn, "fld_SignedOn");
    add(fld_LastCalculated, "fld_LastCalculated");
    add(fld_30100_Age, "fld_30100");
    add(fld_31600_Disability, "fld_31600");

    // Earlier releases called the RRSP line by its old number.
    addFieldOldName("fld_20800", "fld_208");

    ws30400.m_strName = "WS30400";
    ws30400.SetParameter(BasicPersonalAmount, BasicPersonalAmount);
    ws30450.m_strName = "WS30450";
    ws30450.SetParameter(CaregiverBase, CaregiverMax, 0, 0.0);
    m_listWorksheets.push_back(&ws30400);
    m_listWorksheets.push_back(&ws30450);
    ws30100.m_strName = "WS30100";
    ws58440.m_strName = "WS58440";
    m_listWorksheets.push_back(&ws30100);
    m_listWorksheets.push_back(&ws58440);
}

void SampleT1Form::add(CField &field, char const *name)
{
    field.m_strName = name;
    m_fields.push_back(&field);
}

void SampleT1Form::calculateIncome()
{
    fld_15000_TotalIncome = fld_10100_Employment.m_dValue + fld_11500_Pension.m_dValue
                            + fld_12000_Dividends.m_dValue + fld_12100_Interest.m_dValue;
    fld_23600_NetIncome = qMax(0.0, fld_15000_TotalIncome - fld_20800_RRSP);
    fld_26000_TaxableIncome = fld_23600_NetIncome.m_dValue;
}

void SampleT1Form::prepareOwnCreditWorksheets()
{
    int const age = fld_BirthDate.m_date.isValid() ? TaxYear2025 - fld_BirthDate.m_date.year() : 0;
    ws30100.SetAgeParameter(AgeAmountMax, AgeAmountThreshold, AgeAmountRate, 365.0, 365.0, age >= 65,
                            fld_23600_NetIncome.m_dValue);
    // The supplement is only for a taxpayer under 18 at the end of the year.
    ws58440.SetF5844Parameter(DisabilitySupplementMax, DisabilityCareExpenseBase, age > 0 && age < 18);
}

void SampleT1Form::calculateCredits()
{
    prepareOwnCreditWorksheets();
    for (CWSBaseData *worksheet : m_listWorksheets)
        worksheet->Calculate();
    fld_30000_BasicPersonal = BasicPersonalAmount;
    fld_30400_EligibleDependant = ws30400.AmountClaim.m_dValue;
    fld_30450_Caregiver = ws30450.AmountClaim.m_dValue;
    fld_30100_Age = ws30100.fld_ws5808_7.m_dValue;
    fld_31600_Disability =
        ws58440.fld_ws5844_claim.m_nValue ? DisabilityBase + ws58440.fld_ws5844_5.m_dValue : 0.0;
    fld_33500_TotalCredits = fld_30000_BasicPersonal.m_dValue + fld_30100_Age.m_dValue
                             + fld_30400_EligibleDependant.m_dValue + fld_30450_Caregiver.m_dValue
                             + fld_30800_CPP.m_dValue + fld_31200_EI.m_dValue + fld_31600_Disability.m_dValue
                             + fld_33099_Medical.m_dValue;
    fld_33800_CreditAmount = fld_33500_TotalCredits.m_dValue * fld_CreditRate.m_dValue / 100.0;
}

int SampleT1Form::Calculate()
{
    calculateIncome();
    calculateCredits();
    fld_40400_FederalTax = m_schedule ? m_schedule->CalcAlgoForTax(fld_26000_TaxableIncome.m_dValue) : 0.0;
    fld_42000_NetFederalTax = qMax(0.0, fld_40400_FederalTax - fld_33800_CreditAmount);
    double const balance = fld_42000_NetFederalTax - fld_43700_TaxDeducted;
    fld_48400_Refund = balance < 0 ? -balance : 0.0;
    fld_48500_Balance = balance > 0 ? balance : 0.0;
    fld_LastCalculated.m_dateTime = QDateTime(QDate(2026, 4, 30), QTime(12, 0));
    return 0;
}

int SampleT1Form::Validate(unsigned char, std::list<CString> &messages)
{
    size_t const before = messages.size();
    auto refuse = [&messages](char const *text) { messages.push_back(CString(text)); };
    if (!CheckSIN(fld_SIN.m_strValue.toStdStringLatin1().c_str()))
        refuse("Social insurance number is not valid.");
    if (!CheckName(fld_FirstName.m_strValue.toStdStringLatin1().c_str()))
        refuse("First name contains characters that cannot be filed.");
    if (!CheckCityName(fld_City.m_strValue))
        refuse("City name contains characters that cannot be filed.");
    if (!CheckCAPostCode(fld_PostalCode.m_strValue.toStdStringLatin1().c_str()))
        refuse("Postal code is not a Canadian postal code.");
    if (!fld_Email.m_strValue.IsEmpty() && !checkEmail(fld_Email.m_strValue.toStdStringUTF8().c_str()))
        refuse("E-mail address is not valid.");
    return int(messages.size() - before);
}

int SampleT1Form::WriteNetfile(unsigned char, NetfileGenObjParamStru &param)
{
    int lines = 0;
    // Whole-dollar lines: a zero amount is not filed.
    for (CFloatField *field : {&fld_10100_Employment, &fld_11500_Pension, &fld_12000_Dividends, &fld_12100_Interest,
                               &fld_15000_TotalIncome, &fld_20800_RRSP, &fld_23600_NetIncome,
                               &fld_26000_TaxableIncome, &fld_30000_BasicPersonal, &fld_30100_Age,
                               &fld_30400_EligibleDependant, &fld_30450_Caregiver, &fld_31600_Disability,
                               &fld_33099_Medical, &fld_33500_TotalCredits})
        lines += NETFILE_DOLLAR_FIELD_Func(0, *field, param);
    // Dollars-and-cents lines for the tax itself.
    for (CFloatField *field : {&fld_30800_CPP, &fld_31200_EI, &fld_33800_CreditAmount, &fld_40400_FederalTax,
                               &fld_42000_NetFederalTax, &fld_43700_TaxDeducted, &fld_48400_Refund,
                               &fld_48500_Balance})
        lines += NETFILE_DOLLARCENT_VALUE_Func(field->m_nLineCode, field->m_dValue, param);
    return lines;
}
