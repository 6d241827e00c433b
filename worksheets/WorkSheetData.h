#ifndef LIBCONTROL_WORKSHEETS_WORKSHEETDATA_H
#define LIBCONTROL_WORKSHEETS_WORKSHEETDATA_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <cstdio>
#include <list>
#include <map>
#include <string>
#include <vector>

class CField;
class MyDataStream;

/**
 * Base of every worksheet: the ordered list of its fields and the generic
 * operations that walk it (copy, archive, roll-over, field/value text, Java
 * declarations).
 *
 * The fields are members of the derived class, appended in declaration order
 * by its constructor; the list does not own them. Exported field names are
 * the worksheet name, "_" and the field name. There is no virtual
 * destructor: worksheets are destroyed through their own type, and copying
 * is by copyFrom only.
 */
class LIBCONTROL_EXPORT CWSBaseData
{
public:
    CWSBaseData();
    ~CWSBaseData();
    CWSBaseData(CWSBaseData const &) = delete;
    CWSBaseData &operator=(CWSBaseData const &) = delete;

    /** Computes the results from the inputs; the base does nothing. Returns 0. */
    virtual int Calculate();
    /**
     * Copies the values of `src`'s fields into this worksheet's, pair by pair
     * until the shorter list ends, with the assignment of the source field's
     * type (integer, flag, text, amount, date). Returns this worksheet.
     */
    virtual CWSBaseData &copyFrom(CWSBaseData const &src);
    /** Archives every field with `version`, in list order; nothing else is written. */
    virtual void Serialize(unsigned int version, MyDataStream &ar);
    /**
     * Prepares the worksheet for the next tax year by each field's roll-over
     * attribute. Texts marked to be cleared are emptied even when `keep` is
     * true; flags are never touched.
     */
    virtual void ChangeToNewYearData(bool keep);
    /** Appends `<f n="full name">value</f>` for every field, no separators. Returns 0. */
    virtual int writeToString(CString &out);
    /**
     * Sets each field from the first key found: its full name, then its old
     * names in the order registered (taken as given), then its bare name.
     * Fields without a key keep their values. Returns 0.
     */
    virtual int readFromStringMap(std::map<std::string, CString> values);
    /** Writes one Java field declaration per field, named by its full name. */
    virtual void WriteJavaFileDeclaration(FILE *f);
    /** Writes "m_data.add(full name);" per field. */
    virtual void WriteJavaFileContruction(FILE *f);

    /** `out` = worksheet name + "_" + `fieldName`. */
    void getFldFullName(std::string fieldName, std::string &out) const;
    /** Registers `oldName` as a former name of the field `fullName`; duplicates are kept. */
    void addFieldOldName(char const *fullName, char const *oldName);

    /** The worksheet's fields in archive order; not owned. */
    std::vector<CField *> m_fields;
    /** Former full names by current full name, in the order registered. */
    std::map<std::string, std::list<std::string>> m_mapFieldOldNames;
    /** Prefix of every exported field name; set by the owner. */
    std::string m_strName;

protected:
    /** Names `field` and appends it to the list. */
    void addField(CField &field, char const *name);
};

#endif
