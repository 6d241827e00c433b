#ifndef LIBCONTROL_WORKSHEETS_DEPWORKSHEETDATA_H
#define LIBCONTROL_WORKSHEETS_DEPWORKSHEETDATA_H

#include <LibControl/fields/IntField.h>
#include <LibControl/libcontrol_export.h>
#include <LibControl/worksheets/WorkSheetData.h>

class DependantInfoStruct;
struct _OneDependantInfoStru;

/** The default version stamp of the dependant worksheets' fields. */
constexpr unsigned int WS_DEP_FIELD_VERSION = 0x10083;

/**
 * A worksheet about one dependant of the return: the link to the return's
 * dependant list and the selector DepIdx (0 or less: none; n: record n-1).
 */
class LIBCONTROL_EXPORT CWSDepBaseData : public CWSBaseData
{
public:
    /** DepIdx 0, stamped `version`; no dependant list. */
    explicit CWSDepBaseData(unsigned int version = WS_DEP_FIELD_VERSION);
    ~CWSDepBaseData();

    /** Links the return's dependant list; not owned, may be null. */
    void SetDepInfo(DependantInfoStruct *depInfo);
    DependantInfoStruct *GetDepInfo() const;

    /** The return's dependant list; not owned. */
    DependantInfoStruct *m_pDepInfo;
    /** The selected dependant, one-based; 0 or less selects none. */
    CIntField DepIdx;

protected:
    /** The record DepIdx selects, or null (no list, no selection, index beyond the list). */
    _OneDependantInfoStru const *selectedDependant() const;
    /** Net income of the selected record without the list's adjustment; 0 when there is none. */
    double selectedNetIncome() const;
};

/** The amount for a dependant, reduced by the dependant's net income and capped. */
class LIBCONTROL_EXPORT CWSDepAmtData : public CWSDepBaseData
{
public:
    CWSDepAmtData();
    explicit CWSDepAmtData(unsigned int version);
    ~CWSDepAmtData();

    /** The base amount and the maximum claim (below 0.009: no maximum). */
    void SetParameter(double base, double max);
    /**
     * AmountClaim = BaseAmount - the dependant's net income with the list's
     * adjustment, not below 0 and capped by a maximum of at least 0.009.
     * No dependant clears DepNetInc and AmountClaim. Returns 0.
     */
    int Calculate() override;

    CFloatField BaseAmount;
    CBoolField bOverWriteDepNetInc_notused;
    CFloatField DepNetInc;
    CFloatField AmountClaim;
    double m_dMaxClaim;

private:
    void addFields();
};

/**
 * Lines 1 to 4 shared by the infirm-dependant and caregiver worksheets: a
 * base amount less the dependant's net income, limited, less what the other
 * worksheet already claims for the same dependant. The fields follow DepIdx
 * in this order in both worksheets.
 */
class LIBCONTROL_EXPORT CWSDepClaimLinesData : public CWSDepBaseData
{
public:
    CFloatField BaseAmount;
    CFloatField DepNetInc;
    CFloatField fld_3;
    CBoolField fld_bClaim5816_notused;
    CFloatField fld_4;
    CFloatField AmountClaim;
    /** The limit of fld_3. */
    double m_dMax3;
    /** The amount the other worksheet claims. */
    double m_dOtherAmount;
    /** The dependant the other worksheet claims for. */
    int m_nOtherDepIdx;

protected:
    /** Every field stamped `version`. */
    explicit CWSDepClaimLinesData(unsigned int version);
    ~CWSDepClaimLinesData();

    /** Line 1, the limit of line 3, and the other worksheet's dependant index and amount. */
    void setLineParameters(double base, double max, int otherDepIdx, double otherAmount);
    /**
     * Fills lines 2 to 4 from `netIncome`: line 3 is line 1 less line 2
     * within 0 and m_dMax3; line 4 is the other worksheet's amount when it
     * claims for this dependant, or always when `alwaysShared`. Returns line
     * 3 less line 4 and true; with no dependant selected it clears the claim
     * and returns false.
     */
    bool line3LessLine4(double netIncome, bool alwaysShared, double &result);
};

/** The amount for an infirm dependant aged 18 or older. */
class LIBCONTROL_EXPORT CWSInfirmDepAmtData : public CWSDepClaimLinesData
{
public:
    CWSInfirmDepAmtData();
    explicit CWSInfirmDepAmtData(unsigned int version);
    ~CWSInfirmDepAmtData();

    /** Line 1, the limit of line 3, and the other worksheet's dependant index and amount. */
    void SetParameterAndF5816Info(double base, double max, int otherDepIdx, double otherAmount);
    /**
     * DepIdx 303 stands for the spouse or eligible dependant, who is not in
     * the list: the typed DepNetInc is kept and the other worksheet's amount
     * is always subtracted. Returns 0.
     */
    int Calculate() override;
};

/**
 * The caregiver amount: the infirm-dependant lines (same fields, same order)
 * plus an overridable claim.
 */
class LIBCONTROL_EXPORT CWSCaregiverAmtData : public CWSDepClaimLinesData
{
public:
    CWSCaregiverAmtData();
    explicit CWSCaregiverAmtData(unsigned int version);
    ~CWSCaregiverAmtData();

    /** Line 1, the limit of line 3, and the other worksheet's dependant index and amount. */
    void SetParameter(double base, double max, int otherDepIdx, double otherAmount);
    /**
     * As the infirm-dependant worksheet without the 303 case; with bOverwrite
     * a typed AmountClaim is kept when it does not exceed the computed one.
     * Returns 0.
     */
    int Calculate() override;

    /** Keep the user's own AmountClaim when it is not above the computed one. */
    CBoolField bOverwrite;
};

/** The disability amount transferred from a dependant, with the supplement for a minor. */
class LIBCONTROL_EXPORT CWSDisabilityTransferAmtData : public CWSDepBaseData
{
public:
    CWSDisabilityTransferAmtData();
    explicit CWSDisabilityTransferAmtData(unsigned int version);
    ~CWSDisabilityTransferAmtData();

    /** Line 1 (base amount), line 2 (maximum supplement) and line 4 (expense threshold). */
    void SetF5848Parameter(double base, double line2Max, double line4Base);
    /**
     * The supplement goes to dependants under 18 only; the claim is the lower
     * of line 8 and what the dependant's taxable income leaves, never below 0.
     * Returns 0.
     */
    int Calculate() override;

    CFloatField fld_BaseAmount;
    CFloatField fld_Line2Max;
    CFloatField fld_Line3ChldCareExp;
    CFloatField fld_Line4ExpBase;
    CFloatField fld_Line5CareExpAfter;
    CFloatField fld_Line6AmtUnder18;
    CFloatField fld_2;
    CFloatField fld_Line8;
    CFloatField fld_4;
    CFloatField fld_5;
    CFloatField DepTaxInc;
    CFloatField fld_7;
    CBoolField fld_overwrite;
    CFloatField fld_claim;

private:
    void addFields();
    void calculateSupplement();
};

/** The medical expenses of a dependant above a threshold drawn from the dependant's income. */
class LIBCONTROL_EXPORT CWSMedicalExpAdjustmentData : public CWSDepBaseData
{
public:
    /** The threshold cap, the rate applied to the net income, and the maximum claim. */
    CWSMedicalExpAdjustmentData(double cap, double rate, double maxClaim);
    CWSMedicalExpAdjustmentData(double cap, double rate, double maxClaim, unsigned int version);
    ~CWSMedicalExpAdjustmentData();

    /** AmountClaim = expenses - min(net income x rate, cap), within 0 and the maximum. Returns 0. */
    int Calculate() override;

    CFloatField DepNetInc;
    CFloatField BaseAmount;
    CFloatField fld_3;
    CFloatField Rate;
    CFloatField fld_exp;
    CFloatField fld_line2;
    CFloatField AmountClaim;
    double m_dThresholdCap;
    double m_dRate;
    double m_dMaxClaim;

private:
    void addFields();
};

#endif
