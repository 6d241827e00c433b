#ifndef LIBCONTROL_FIELDS_FIELD_H
#define LIBCONTROL_FIELDS_FIELD_H

#include <LibControl/common/cstring.h>
#include <LibControl/fields/datastream.h>
#include <LibControl/libcontrol_export.h>

#include <string>
#include <vector>

/**
 * How a field rolls into the next tax year; the widgets may read it too.
 * FIELD_ATTR_KEEP_BLANKS is a bit that can be or-ed onto the other values.
 */
enum ENUMTYPE_FIELD_ATTR {
    FIELD_ATTR_NONE = 0, ///< amounts become 0; integers, texts, flags and dates are kept
    FIELD_ATTR_KEEP_NEXTYEAR = 1, ///< an amount keeps its value
    FIELD_ATTR_INCREASE_NEXTYEAR = 2, ///< an integer grows by 1 (a year number)
    FIELD_ATTR_DATE_NEXTYEAR = 3, ///< a date moves to the same month and day next year
    FIELD_ATTR_CLEAR_DATE_NEXTYEAR = 4, ///< a date becomes the null date
    FIELD_ATTR_CLEAR_TEXT_NEXTYEAR = 5, ///< a text is emptied, even when values are kept
    FIELD_ATTR_KEEP_BLANKS = 0x10000, ///< text fields keep their spaces as typed
};

/** First archive version of a field unless its constructor says otherwise. */
constexpr unsigned int FIELD_VERSION_FIRST = 0x10000;
/** Last archive version of a field that is still current. */
constexpr unsigned int FIELD_VERSION_LAST = 0x0FFFFFFF;

/**
 * Abstract base of every typed value on a form, slip or worksheet.
 *
 * The owning record names the field (m_strName, its XML key) after
 * construction and lists it in its field vector; that order is the archive
 * order. Assignment and comparison in the subclasses touch the value only.
 *
 * Type codes returned by GetType(): 0 integer, 1 flag, 2 text, 3 amount
 * (every CFloatField variant), 4 date, 5 date-time.
 */
class LIBCONTROL_EXPORT CField
{
public:
    /** The six attributes in their archive order; both texts start empty. */
    CField(int lineCode, bool allowNegative, unsigned int versionFrom, unsigned int versionTo,
           ENUMTYPE_FIELD_ATTR attr, int extra);
    virtual ~CField();

    /** The type code, 0 to 5 (see the class description). */
    virtual int GetType() const = 0;
    /**
     * Writes the value to `ar` when it stores, reads it otherwise, but only
     * when the archive `version` lies in m_nVersionFrom..m_nVersionTo. The
     * base does nothing, so a type that keeps it is never archived.
     */
    virtual void Serialize(unsigned int version, MyDataStream &ar);
    /** Cleans the value up after an edit; the base changes nothing. Returns 0. */
    virtual int ValidateAndCorrect();
    /** False when the name contains "notused" (case-sensitive). */
    virtual bool canFieldSavedInXML() const;
    /**
     * Sets `out` to `<f n="name">value</f>` with the toString() text, both
     * inserted as they stand. Returns 0, or -1 with `out` untouched when the
     * field may not be saved in XML.
     */
    virtual int writeToString(CString &out);
    /** Sets the value from its XML text; returns 0. */
    virtual int readFromString(CString const &text) = 0;
    /** The value's XML text; the base leaves `out` untouched. Returns 0. */
    virtual int toString(CString &out);
    /**
     * Sets `out` to the print element `<f><c>name</c><v>value</v></f>`.
     * Returns 0, or -1 with `out` untouched like writeToString().
     */
    virtual int writeToXmlForPdf(CString &out);

    std::string m_strName; ///< the XML key, set by the owner
    std::string m_strPrintValue; ///< integer fields write it as the `p` attribute
    bool m_bAllowNegative;
    int m_nLineCode; ///< below 1: not part of the re-file comparison
    unsigned int m_nVersionFrom; ///< first archive version holding the field
    unsigned int m_nVersionTo; ///< last archive version holding the field
    ENUMTYPE_FIELD_ATTR m_eAttr;
    int m_nExtra; ///< stored as given

protected:
    /** The version gate every Serialize() applies first. */
    bool isArchivedIn(unsigned int version) const;
    /** Fills the `<f n="%1">%2</f>` style template `pattern` with the name and value. */
    int writeElement(QString const &pattern, CString &out);
};

/**
 * Clears a record's fields: texts become empty, amounts 0.0 and flags 0.
 * Integers and dates keep their values on purpose (counters and dates of a
 * record survive clearing). Null entries are skipped.
 */
LIBCONTROL_EXPORT void Common_ClearData_Func(std::vector<CField *> *fields);
/**
 * Archives the fields in order (each behind its own version gate); date-time
 * fields are skipped. Reader and writer must build the same list.
 */
LIBCONTROL_EXPORT void Common_Serialize_Func(int version, MyDataStream &ar, std::vector<CField *> &fields);
/**
 * True at the first pair whose values differ, walking both lists in step.
 * A shorter list whose common part is equal compares equal. Date-time
 * fields are passed over; a pair of different field classes differs.
 */
LIBCONTROL_EXPORT bool Common_Func_OperatorNotEqual(std::vector<CField *> &a, std::vector<CField *> &b);
/**
 * Copies the values of `source` into `target` pairwise (note the order,
 * source first) until either list ends. Date-time fields and pairs of
 * different field classes are passed over.
 */
LIBCONTROL_EXPORT void Common_Func_OperatorAssign(std::vector<CField *> &source, std::vector<CField *> &target);

#endif
