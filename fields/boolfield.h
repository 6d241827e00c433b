#ifndef LIBCONTROL_FIELDS_BOOLFIELD_H
#define LIBCONTROL_FIELDS_BOOLFIELD_H

#include <LibControl/fields/Field.h>
#include <LibControl/libcontrol_export.h>

/**
 * A yes/no flag (type code 1) held as an int, normally 0 or 1. Archived as a
 * 4-byte little-endian int; other values are kept as they are.
 */
class LIBCONTROL_EXPORT CBoolField : public CField
{
public:
    explicit CBoolField(int value);
    CBoolField(int lineCode, int value);
    CBoolField(int lineCode, int value, ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom);
    ~CBoolField() override;

    CBoolField(CBoolField const &other) = default;
    /** Copies the value only. */
    CBoolField &operator=(CBoolField const &other);
    /** Compares the values only. */
    bool operator!=(CBoolField const &other) const;

    int GetType() const override;
    void Serialize(unsigned int version, MyDataStream &ar) override;
    /**
     * 0 for "false", "0" or "no" in any case; 1 for every other text, the
     * empty text and texts with surrounding spaces included.
     */
    int readFromString(CString const &text) override;
    /** "1" or "0" (any non-zero value gives "1"). */
    int toString(CString &out) override;

    int m_nValue; ///< 0 or 1
};

/** A retired flag for archives of versionFrom..versionTo; value 0. */
class LIBCONTROL_EXPORT CBoolFieldNotused : public CBoolField
{
public:
    CBoolFieldNotused(unsigned int versionFrom, unsigned int versionTo);
    ~CBoolFieldNotused() override;
    using CBoolField::operator=;
};

#endif
