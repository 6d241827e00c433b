#ifndef LIBCONTROL_WORKSHEETS_NONDEPWORKSHEETDATA_H
#define LIBCONTROL_WORKSHEETS_NONDEPWORKSHEETDATA_H

// The worksheets of credits that concern the taxpayer alone. The year's
// figures (amounts, thresholds, rates, day counts) come from the owner
// through the setters; none is built in.

#include <LibControl/fields/IntField.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/libcontrol_export.h>
#include <LibControl/worksheets/WorkSheetData.h>

#include <array>

/** The default version stamp of the own-credit worksheets' fields. */
constexpr unsigned int WS_OWN_FIELD_VERSION = 0x10083;

/**
 * The age amount, prorated by the days of the year and reduced by a rate
 * applied to the net income above a threshold.
 *
 * Its seven lines are deliberately kept out of the field list, so the
 * worksheet stores, exports and declares nothing: every value is recomputed
 * from the parameters. The lines have no names.
 */
class LIBCONTROL_EXPORT CWSAgeAmtData : public CWSBaseData
{
public:
    CWSAgeAmtData();
    /** Every line stamped `version`. */
    explicit CWSAgeAmtData(unsigned int version);
    ~CWSAgeAmtData();

    /**
     * Stores the year's figures and the net income. `rate` goes straight
     * into line 5; `days` prorates the maximum and the threshold, and
     * `resultDays` the result, both over the days of the tax year.
     */
    void SetAgeParameter(double maxAmount, double threshold, double rate, double days, double resultDays,
                         bool eligible, double netIncome);
    /**
     * Lines 1 to 3 are filled even when the taxpayer is not eligible, in
     * which case line 7 is 0. Otherwise line 7 is the prorated maximum less
     * the rate on the income above the prorated threshold, not below 0, times
     * the result days over the days of the year. Returns 0.
     */
    int Calculate() override;

    CFloatField fld_ws5808_1; ///< maximum amount, prorated
    CFloatField fld_ws5808_2; ///< net income
    CFloatField fld_ws5808_3; ///< base amount (the income threshold), prorated
    CFloatField fld_ws5808_4; ///< line 2 - line 3, not below 0
    CFloatField fld_ws5808_5; ///< the rate
    CFloatField fld_ws5808_6; ///< line 4 x line 5
    CFloatField fld_ws5808_7; ///< the age amount

    double m_dMaxAmount;
    double m_dThreshold;
    double m_dDays;
    double m_dResultDays;
    bool m_bEligible;
    double m_dNetIncome;
};

/**
 * The disability amount's supplement: the maximum supplement less the care
 * expenses above a threshold.
 */
class LIBCONTROL_EXPORT CWSDisabilityAmtData : public CWSBaseData
{
public:
    CWSDisabilityAmtData();
    explicit CWSDisabilityAmtData(unsigned int version);
    ~CWSDisabilityAmtData();

    /** Line 1, line 3 and whether the taxpayer is eligible for the amount. */
    void SetF5844Parameter(double maxSupplement, double expenseBase, bool eligible);
    /**
     * Negative expenses become 0. Without a claim or without eligibility
     * line 5 is 0 and line 4 keeps its old value. Returns 0.
     */
    int Calculate() override;

    CBoolField fld_ws5844_claim; ///< the amount is claimed
    CFloatField fld_ws5844_1; ///< maximum supplement
    CFloatField fld_ws5844_2; ///< care expenses entered by the user
    CFloatField fld_ws5844_3; ///< expense threshold
    CFloatField fld_ws5844_4; ///< line 2 - line 3, not below 0
    CFloatField fld_ws5844_5; ///< line 1 - line 4, not below 0

    bool m_bEligible;
};

/** The dividend tax credit: one rate on eligible dividends, another on the rest. */
class LIBCONTROL_EXPORT CWSDividendTaxCreditData : public CWSBaseData
{
public:
    CWSDividendTaxCreditData();
    explicit CWSDividendTaxCreditData(unsigned int version);
    ~CWSDividendTaxCreditData();

    /** The rate on eligible dividends and the rate on the other dividends. */
    void SetParameter(double rate1, double rate2);
    /**
     * fld_6 = eligible x rate1 + (all - eligible, not below 0) x rate2, each
     * product rounded as amounts are. Returns 0.
     */
    int Calculate() override;

    CFloatField fld_Line120; ///< taxable amount of all dividends
    CFloatField fld_Line180; ///< taxable amount of eligible dividends
    CFloatField fld_rate1;
    CFloatField fld_Line120_sub_Line180;
    CFloatField fld_rate2;
    CFloatField fld_4; ///< credit on eligible dividends
    CFloatField fld_5; ///< credit on the other dividends
    CFloatField fld_6; ///< the credit
};

/** The line 58600 amount: a transferred amount, prorated by a rate. */
class LIBCONTROL_EXPORT DataWS58600 : public CWSBaseData
{
public:
    DataWS58600();
    explicit DataWS58600(unsigned int version);
    ~DataWS58600();

    /**
     * Remembers `rate` and sets fld_claim = rate x fld_5860, unrounded. The
     * virtual Calculate() stays the base's no-op.
     */
    void Calculate(double rate);
    using CWSBaseData::Calculate;

    CFloatField fld_5860; ///< total amount transferred
    CFloatField fld_claim; ///< the prorated claim
    /** The rate last given to Calculate(double). */
    double m_dRate;
};

/** Adoption expenses, one amount per adopted child (up to six). */
class LIBCONTROL_EXPORT DataWSAdoptionExpense : public CWSBaseData
{
public:
    DataWSAdoptionExpense();
    explicit DataWSAdoptionExpense(unsigned int version);
    ~DataWSAdoptionExpense();

    /** Negative amounts become 0. Returns 0. */
    int Calculate() override;
    /** The sum of the six amounts, each limited to `limit` on its own (not the total). */
    double CalcResult(double limit);

    CFloatField fld_Adopt_ExpAmt_1;
    CFloatField fld_Adopt_ExpAmt_2;
    CFloatField fld_Adopt_ExpAmt_3;
    CFloatField fld_Adopt_ExpAmt_4;
    CFloatField fld_Adopt_ExpAmt_5;
    CFloatField fld_Adopt_ExpAmt_6;

private:
    std::array<CFloatField *, 6> amounts();
};

#endif
