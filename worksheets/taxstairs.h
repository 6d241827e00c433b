#ifndef LIBCONTROL_WORKSHEETS_TAXSTAIRS_H
#define LIBCONTROL_WORKSHEETS_TAXSTAIRS_H

#include <LibControl/libcontrol_export.h>

#include <list>

/** One bracket of a progressive schedule. */
struct LIBCONTROL_EXPORT STRUCT_TAX_STAIRS_LEVEL
{
    double m_dThreshold; ///< bottom of the bracket, in dollars
    double m_dRate; ///< marginal rate as a fraction (0.15)
    double m_dBaseTax; ///< tax on all income up to the threshold
};

/**
 * One jurisdiction's progressive tax schedule: up to 10 brackets, added in
 * increasing threshold order. An income exactly at a threshold is taxed in
 * the lower bracket.
 */
struct LIBCONTROL_EXPORT STRUCT_TAX_STAIRS_JURISDICTION
{
    /** The fixed number of brackets a schedule can hold. */
    static constexpr int MaxLevels = 10;

    STRUCT_TAX_STAIRS_JURISDICTION();
    virtual ~STRUCT_TAX_STAIRS_JURISDICTION();
    STRUCT_TAX_STAIRS_JURISDICTION(STRUCT_TAX_STAIRS_JURISDICTION const &) = delete;
    STRUCT_TAX_STAIRS_JURISDICTION &operator=(STRUCT_TAX_STAIRS_JURISDICTION const &) = delete;

    /**
     * Stores the next bracket and returns the new count. Adding an eleventh
     * is a caller error; it is refused and the count stays 10.
     */
    int addLevel(double threshold, double rate, double baseTax);
    /**
     * Tax on `income`: 0 without brackets; income x rate with one (no
     * rounding); otherwise (income - threshold) x rate + base tax of the
     * income's bracket, each step rounded to cents as an amount field rounds.
     */
    double CalcAlgoForTax(double income) const;
    /** The bracket `income` falls in; outputs untouched without brackets. */
    void CalcAlgoForSetFieldsToCalcTax(double income, double &threshold, double &rate, double &baseTax) const;
    /** Appends the thresholds of brackets 2 and up; the list is not cleared. */
    void GetIncomeThresholds(std::list<double> &out) const;
    /** 0, or the tax when `income` exceeds the second threshold by 0.009 or more. */
    void CalcAlgoForSpouseF260S2(double income, double &tax) const;

    int m_nLevelCount;
    STRUCT_TAX_STAIRS_LEVEL *m_pLevels;

private:
    STRUCT_TAX_STAIRS_LEVEL const *levelFor(double income) const;
};

#endif
