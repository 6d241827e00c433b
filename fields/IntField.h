#ifndef LIBCONTROL_FIELDS_INTFIELD_H
#define LIBCONTROL_FIELDS_INTFIELD_H

// The chief header of the non-date field classes: integers here, and with
// them the flag, text and amount families.
#include <LibControl/fields/Field.h>
#include <LibControl/fields/boolfield.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/fields/stringfield.h>
#include <LibControl/libcontrol_export.h>

/**
 * A signed 32-bit integer (type code 0): counts, year numbers, codes.
 * Archived as 4 little-endian bytes.
 */
class LIBCONTROL_EXPORT CIntField : public CField
{
public:
    /** Line code 0, negatives not allowed, current versions, extra 0. */
    CIntField(int value, ENUMTYPE_FIELD_ATTR attr);
    CIntField(int lineCode, int value, ENUMTYPE_FIELD_ATTR attr);
    CIntField(int lineCode, int value, ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom);
    ~CIntField() override;

    CIntField(CIntField const &other) = default;
    /** Copies the value only; name, versions and attributes stay. */
    CIntField &operator=(CIntField const &other);
    /** Compares the values only. */
    bool operator!=(CIntField const &other) const;

    int GetType() const override;
    void Serialize(unsigned int version, MyDataStream &ar) override;
    /**
     * As CField::writeToString(), but with a non-empty m_strPrintValue the
     * element is `<f n="name" p="print value">value</f>`.
     */
    int writeToString(CString &out) override;
    /** Reads a base-10 int; anything else (overflow included) gives 0. */
    int readFromString(CString const &text) override;
    /** The decimal text, no grouping or padding ("-12"). */
    int toString(CString &out) override;

    int m_nValue; ///< the value
};

/**
 * A retired integer kept so that archives of versionFrom..versionTo still
 * line up. Its value is -1 until a file sets it, so an unset one shows.
 */
class LIBCONTROL_EXPORT CIntFieldNotused : public CIntField
{
public:
    CIntFieldNotused(unsigned int versionFrom, unsigned int versionTo);
    ~CIntFieldNotused() override;
    using CIntField::operator=;
};

#endif
