#ifndef SAMPLE_RETURN_SAMPLET1FORM_H
#define SAMPLE_RETURN_SAMPLET1FORM_H

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/fields/boolfield.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/fields/stringfield.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/worksheets/DepWorkSheetData.h>
#include <LibControl/worksheets/NonDepWorkSheetData.h>
#include <LibControl/worksheets/taxstairs.h>

/**
 * A small T1-style return form: identification, income, deductions,
 * non-refundable credits and the federal tax, fed by two dependant
 * worksheets and a federal bracket schedule.
 */
class SampleT1Form : public CTaxData_Form
{
    Q_OBJECT
public:
    /** `schedule` is the federal bracket schedule; the form does not own it. */
    explicit SampleT1Form(STRUCT_TAX_STAIRS_JURISDICTION const *schedule);

    int Calculate() override;
    int Validate(unsigned char kinds, std::list<CString> &messages) override;
    /** Files the income, deduction, credit and tax lines. */
    int WriteNetfile(unsigned char kinds, NetfileGenObjParamStru &param) override;

    // Identification
    CStringField fld_FirstName;
    CStringField fld_LastName;
    CStringField fld_SIN;
    CStringField fld_Address;
    CStringField fld_City;
    CIntField fld_Province;
    CStringField fld_PostalCode;
    CStringField fld_Email;
    CDateField fld_BirthDate;
    CIntField fld_MaritalStatus;
    CBoolField fld_ElectionsCanada;
    CBoolField fld_ResidentAllYear;
    CIntFloatField fld_DaysInCanada;

    // Income and deductions
    CFloatField fld_10100_Employment;
    CFloatField fld_11500_Pension;
    CFloatField fld_12000_Dividends;
    CFloatField fld_12100_Interest;
    CFloatField fld_15000_TotalIncome;
    CFloatField fld_20800_RRSP;
    CFloatField fld_23600_NetIncome;
    CFloatField fld_26000_TaxableIncome;

    // Non-refundable credits
    CFloatField fld_30000_BasicPersonal;
    CFloatField fld_30400_EligibleDependant;
    CFloatField fld_30450_Caregiver;
    CFloatField fld_30800_CPP;
    CFloatField fld_31200_EI;
    CFloatField fld_33099_Medical;
    CFloatField fld_33500_TotalCredits;
    CPercentField fld_CreditRate;
    CFloatField fld_33800_CreditAmount;

    // Tax
    CFloatField fld_40400_FederalTax;
    CFloatField fld_42000_NetFederalTax;
    CFloatField fld_43700_TaxDeducted;
    CFloatField fld_48400_Refund;
    CFloatField fld_48500_Balance;
    CDateField fld_SignedOn;
    CDateTimeField fld_LastCalculated;

    // Own credits fed by worksheets; appended after the older lines so
    // earlier files read unchanged.
    CFloatField fld_30100_Age;
    CFloatField fld_31600_Disability;

    // Worksheets feeding the credit lines; listed, not owned, by the base.
    CWSDepAmtData ws30400;
    CWSCaregiverAmtData ws30450;
    CWSAgeAmtData ws30100;
    CWSDisabilityAmtData ws58440;

private:
    void add(CField &field, char const *name);
    void calculateIncome();
    void calculateCredits();
    void prepareOwnCreditWorksheets();

    STRUCT_TAX_STAIRS_JURISDICTION const *m_schedule;
};

#endif
