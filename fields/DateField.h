#ifndef LIBCONTROL_FIELDS_DATEFIELD_H
#define LIBCONTROL_FIELDS_DATEFIELD_H

#include <LibControl/fields/Field.h>
#include <LibControl/libcontrol_export.h>

#include <QDate>
#include <QDateTime>

/**
 * A calendar date (type code 4), the null date when empty.
 *
 * Archived as a signed 64-bit Julian day number; an invalid date is written
 * as the null date (the smallest 64-bit integer), and a day number outside
 * -784350574879..784354017364, or a short read, loads as the null date.
 * Its text is "yyyyMMdd", "00000000" for an empty date.
 */
class LIBCONTROL_EXPORT CDateField : public CField
{
public:
    /** The null date, current versions. */
    explicit CDateField(ENUMTYPE_FIELD_ATTR attr);
    CDateField(int lineCode, ENUMTYPE_FIELD_ATTR attr);
    /** `allowNegative` is stored in m_bAllowNegative as given. */
    CDateField(QDate date, bool allowNegative, ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom);
    ~CDateField() override;

    CDateField(CDateField const &other) = default;
    /** Copies the date only. */
    CDateField &operator=(CDateField const &other);
    CDateField &operator=(QDate const &date);
    /** Compares the dates only. */
    bool operator!=(CDateField const &other) const;

    /** Both set the null date. */
    void setNull();
    void setZero();
    /** Today's local date. */
    void setCurTime();
    /**
     * Same month and day a year later by QDate::setDate(), so February 29
     * leads to an invalid date (which prints as zeros).
     */
    void set1YLater();
    int getYear() const;
    int getMonth() const;
    int getDay() const;

    /**
     * True for the null date, any invalid date, and the empty value of the
     * date edit widgets (emptyEditDate()).
     */
    bool IsZero() const;
    /** A real date: !IsZero(). */
    bool IsValid() const;
    /** Strictly after QDate(y, m, d); false whenever !IsValid(). */
    bool IsAfter(int y, int m, int d) const;
    /** Not after QDate(y, m, d); false whenever !IsValid(). */
    bool IsNotAfter(int y, int m, int d) const;
    /** Strictly before QDate(y, m, d); false whenever !IsValid(). */
    bool IsBefore(int y, int m, int d) const;
    /** Not before QDate(y, m, d); false whenever !IsValid(). */
    bool IsNotBefore(int y, int m, int d) const;

    /**
     * The date edit widgets' own default minimum, September 14, 1752, which
     * they show for an empty date; such a date counts as empty here.
     */
    static QDate emptyEditDate();

    int GetType() const override;
    void Serialize(unsigned int version, MyDataStream &ar) override;
    /** Reads a compact "yyyy[MM[dd]]" text; a missing month or day is 1, a bad text the null date. */
    int readFromString(CString const &text) override;
    /** "yyyyMMdd", or "00000000" for the null or an invalid date. */
    int toString(CString &out) override;

    /** The null date, QDate(0, 0, 0). */
    static QDate const s_zeroDate;

    QDate m_date; ///< the date, null when empty
};

/**
 * A time stamp (type code 5) that is never archived. Its text is
 * "yyyy-MM-dd HH:mm:ssAP" (24-hour hour followed by the AM/PM marker).
 */
class LIBCONTROL_EXPORT CDateTimeField : public CField
{
public:
    /** The current local date and time. */
    explicit CDateTimeField(ENUMTYPE_FIELD_ATTR attr);
    ~CDateTimeField() override;

    int GetType() const override;
    int readFromString(CString const &text) override;
    int toString(CString &out) override;

    QDateTime m_dateTime; ///< the time stamp
};

#endif
