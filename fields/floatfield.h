#ifndef LIBCONTROL_FIELDS_FLOATFIELD_H
#define LIBCONTROL_FIELDS_FLOATFIELD_H

#include <LibControl/fields/Field.h>
#include <LibControl/libcontrol_export.h>

class QDebug;

/**
 * An amount, rate or percentage (type code 3), held as a double in dollars.
 *
 * Assigning a double rounds it (to cents, or to whole dollars while
 * p_for_quillon is on); loading, readFromString() and field-to-field
 * assignment store the value unrounded. Two amounts are equal when they
 * differ by less than 0.009. Archived as an 8-byte double; archives of
 * version 65713 or older hold single precision, so such values are narrowed
 * to float on load.
 *
 * operator=(double) is not virtual: through a CFloatField reference every
 * variant rounds to cents (or whole dollars), whatever its own rule.
 */
class LIBCONTROL_EXPORT CFloatField : public CField
{
public:
    /** Value 0.0, line code 0, negatives allowed, the given versions. */
    CFloatField(int versionFrom, int versionTo);
    /** Negatives not allowed, current versions, attribute 0, extra 0. */
    CFloatField(double value, int lineCode);
    CFloatField(double value, int lineCode, bool allowNegative, unsigned int versionFrom, ENUMTYPE_FIELD_ATTR attr);
    CFloatField(bool checkNegative, double value, int lineCode, bool allowNegative, ENUMTYPE_FIELD_ATTR attr,
                int extra, unsigned int versionFrom);
    ~CFloatField() override;

    CFloatField(CFloatField const &other) = default;
    /** Copies the value only, unrounded. */
    CFloatField &operator=(CFloatField const &other);
    /**
     * Rounded assignment: half away from zero to a whole number while
     * p_for_quillon is on, otherwise RoundFloatAtDecision(value, 2) whatever
     * m_nDecimalsToSave says.
     */
    CFloatField &operator=(double value);
    /** Differ by 0.009 or more; two NaN values are equal, NaN and a number differ. */
    bool operator!=(CFloatField const &other) const;

    /** Arithmetic on the values; the field is the left operand, nothing changes. */
    double operator+(CFloatField other) const;
    double operator-(CFloatField other) const;
    double operator*(CFloatField other) const;
    double operator/(CFloatField other) const;
    double operator+(double other) const;
    double operator-(double other) const;
    double operator*(double other) const;
    double operator/(double other) const;

    /**
     * The value as an int: truncated toward zero, or with `round` half away
     * from zero. NaN gives 0; values beyond the int range saturate.
     */
    int getIntVal(bool round) const;
    /** Decimals shown by toString(); negative counts show as 0. */
    void setNDecimalsToSave(int decimals);
    /** True for a NaN. */
    static bool isIndeterminate(double value);

    int GetType() const override;
    void Serialize(unsigned int version, MyDataStream &ar) override;
    /**
     * A negative value becomes 0 when m_bCheckNegative is set and negatives
     * are not allowed. Returns 0.
     */
    int ValidateAndCorrect() override;
    /** Commas are dropped, then the text is read as a double (0.0 if it is none); no rounding. */
    int readFromString(CString const &text) override;
    /** Fixed notation with m_nDecimalsToSave decimals, no grouping ("-3.00"). */
    int toString(CString &out) override;

    /** Whole-dollar assignment for every amount but percentages; set once at start. */
    static bool p_for_quillon;

    double m_dValue; ///< the amount in dollars (or the rate)
    bool m_bCheckNegative; ///< ValidateAndCorrect() may zero a negative value
    bool m_bInversePrint; ///< for the print layer only
    int m_nDecimalsToSave; ///< decimals shown by toString(), 2 unless a variant says otherwise
};

/** Debug output: "FF(id: <line code>, value: <text>)". */
LIBCONTROL_EXPORT QDebug operator<<(QDebug debug, CFloatField const &field);

/** A whole-number amount: no decimals, and every assignment rounds to a whole number. */
class LIBCONTROL_EXPORT CIntFloatField : public CFloatField
{
public:
    CIntFloatField(double value, int lineCode);
    CIntFloatField(double value, int lineCode, bool allowNegative, unsigned int versionFrom,
                   ENUMTYPE_FIELD_ATTR attr);
    CIntFloatField(bool checkNegative, double value, int lineCode, bool allowNegative, ENUMTYPE_FIELD_ATTR attr,
                   int extra, unsigned int versionFrom);
    ~CIntFloatField() override;

    using CFloatField::operator=;
    /** Half away from zero to a whole number, whatever p_for_quillon says. */
    CIntFloatField &operator=(double value);
};

/**
 * An amount whose text shows `decimals` places. The stored value is still
 * rounded to cents on assignment (or whole dollars under p_for_quillon).
 */
class LIBCONTROL_EXPORT CDecimalFloatField : public CFloatField
{
public:
    CDecimalFloatField(int decimals, double value, int lineCode);
    CDecimalFloatField(int decimals, double value, int lineCode, bool allowNegative, unsigned int versionFrom,
                       ENUMTYPE_FIELD_ATTR attr);
    CDecimalFloatField(int decimals, bool checkNegative, double value, int lineCode, bool allowNegative,
                       ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom);
    ~CDecimalFloatField() override;

    using CFloatField::operator=;
};

/** An amount that the print layer prints as its inverse (m_bInversePrint). */
class LIBCONTROL_EXPORT CFloatFieldInversePrint : public CFloatField
{
public:
    /** Negatives not allowed, current versions. */
    CFloatFieldInversePrint(bool checkNegative, double value, int lineCode);
    CFloatFieldInversePrint(bool checkNegative, double value, int lineCode, bool allowNegative,
                            ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom);
    ~CFloatFieldInversePrint() override;

    using CFloatField::operator=;
};

/** A retired amount for archives of versionFrom..versionTo; value 0.0, negatives allowed. */
class LIBCONTROL_EXPORT CFloatFieldNotused : public CFloatField
{
public:
    CFloatFieldNotused(unsigned int versionFrom, unsigned int versionTo);
    ~CFloatFieldNotused() override;

    using CFloatField::operator=;
};

/** A percentage, 0 to 100 with four decimals. */
class LIBCONTROL_EXPORT CPercentField : public CFloatField
{
public:
    CPercentField(double value, int lineCode, bool allowNegative, unsigned int versionFrom);
    CPercentField(bool checkNegative, double value, int lineCode, bool allowNegative, ENUMTYPE_FIELD_ATTR attr,
                  int extra, unsigned int versionFrom);
    ~CPercentField() override;

    using CFloatField::operator=;
    /** RoundFloatAtDecision(value, 4); p_for_quillon plays no part. */
    CPercentField &operator=(double value);

    /** Clamps to 0..100 whatever the negative flags say. Returns 0. */
    int ValidateAndCorrect() override;
};

#endif
