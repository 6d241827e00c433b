#ifndef LIBCONTROL_FIELDS_STRINGFIELD_H
#define LIBCONTROL_FIELDS_STRINGFIELD_H

#include <LibControl/fields/Field.h>
#include <LibControl/libcontrol_export.h>

#include <string>

/**
 * A text of fixed maximum width (type code 2): names, addresses, numbers.
 *
 * m_nSize is both the width in bytes of the text in the binary archive and
 * its maximum length in characters. The archive holds exactly m_nSize bytes:
 * the UTF-8 text, cut at m_nSize bytes or zero-filled after it. Loading
 * reads those bytes back as Latin-1 up to the first zero byte; the asymmetry
 * is the file format's, so non-ASCII text does not survive a save and load.
 *
 * Wide texts can use a length-prefixed form instead (int32 byte count, then
 * that many UTF-8 bytes, read back with the local 8-bit codec): see
 * setLargeSizeSerializeOption(). Such texts are then left out of XML.
 */
class LIBCONTROL_EXPORT CStringField : public CField
{
public:
    /** `text` is read as Latin-1. */
    CStringField(char const *text, int size);
    CStringField(int lineCode, char const *text, int size, unsigned int versionFrom);
    CStringField(int lineCode, char const *text, int size, ENUMTYPE_FIELD_ATTR attr, int extra,
                 unsigned int versionFrom);
    ~CStringField() override;

    CStringField(CStringField const &other) = default;
    /** Copies the text only. */
    CStringField &operator=(CStringField const &other);
    /** The texts differ once both are simplified (trimmed, inner blanks made one space); case counts. */
    bool operator!=(CStringField const &other) const;

    /** Trims leading and trailing white space in place. */
    void RemoveBlanks();
    /** A trimmed copy; the field is unchanged. */
    CString GetTrimedString() const;
    /** The text is empty or white space only. */
    bool IsEmptyIfRemoveBlank() const;
    /** The text is empty or only "0" digits. */
    bool IsAllZero() const;
    /** One pass turning each pair of spaces into one (removeContinuousSpace). */
    void removeContinuousSpaces();
    /**
     * Removes the care-of and at-suite markers "A/S", "A/S:", "C/O", "C/O:",
     * "c/o", "C/o" and "c/O", case-sensitively and in that order. The short
     * forms run first, so a colon after a marker stays; nothing is trimmed.
     */
    void removeCOInAddr();
    /** The trimmed text in UTF-8, not cut to m_nSize. */
    operator std::string() const;

    int GetType() const override;
    void Serialize(unsigned int version, MyDataStream &ar) override;
    /**
     * Trims the text and turns pairs of spaces into one, unless the attribute
     * carries FIELD_ATTR_KEEP_BLANKS. Returns 0.
     */
    int ValidateAndCorrect() override;
    /**
     * False when m_nSize is not below p_for_large_size_serialize_size (so no
     * text field is saved in XML until setLargeSizeSerializeOption() is
     * called), otherwise the CField rule.
     */
    bool canFieldSavedInXML() const override;
    /** The text becomes `text` trimmed and cut to m_nSize characters. Returns 0. */
    int readFromString(CString const &text) override;
    /**
     * Trims the field's own text in place (asking for the text cleans the
     * field), then gives its first m_nSize characters escaped for XML.
     */
    int toString(CString &out) override;

    /**
     * Turns the length-prefixed archive form on for texts of at least `size`
     * bytes width in archives of at least `version`. Process-wide; call once
     * at start.
     */
    static void setLargeSizeSerializeOption(unsigned int version, unsigned int size);

    static bool p_for_large_size_serialize; ///< the length-prefixed form is on
    static unsigned int p_for_large_size_serialize_version; ///< first archive version using it
    static unsigned int p_for_large_size_serialize_size; ///< smallest width using it; wider texts skip XML

    CString m_strValue; ///< the text
    int m_nSize; ///< archive width in bytes and maximum length in characters

private:
    bool usesLengthPrefix(unsigned int version) const;
    void storeFixedWidth(MyDataStream &ar) const;
    void loadFixedWidth(MyDataStream &ar);
    void storeLengthPrefixed(MyDataStream &ar) const;
    void loadLengthPrefixed(MyDataStream &ar);
};

/** A retired text of width `size` for archives of versionFrom..versionTo; empty. */
class LIBCONTROL_EXPORT CStringFieldNotused : public CStringField
{
public:
    CStringFieldNotused(int size, unsigned int versionFrom, unsigned int versionTo);
    ~CStringFieldNotused() override;
    using CStringField::operator=;
};

#endif
