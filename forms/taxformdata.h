#ifndef LIBCONTROL_FORMS_TAXFORMDATA_H
#define LIBCONTROL_FORMS_TAXFORMDATA_H

#include <LibControl/common/cstring.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/forms/taxformtype.h>
#include <LibControl/libcontrol_export.h>

#include <QObject>

#include <cstdio>
#include <list>
#include <map>
#include <string>
#include <vector>

class BaseTaxPage;
class CField;
class CWSBaseData;
class DependantInfoStruct;
class MyDataStream;
class QWidget;
struct NetfileGenObjParamStru;

/** The marker that opens every form block of a return file (bytes 04 03 02 01). */
constexpr int FORM_ARCHIVE_DELIMITER = 0x01020304;
/** The first archive version whose form blocks hold the four data flags. */
constexpr unsigned int FORM_DATAFLAG_VERSION = 0x101F4;

/** One difference found by CTaxData_Form::ReFileCompareFields. */
struct LIBCONTROL_EXPORT _ReFileFieldCompareStru
{
    /** The field of this form. */
    CField *pField;
    /** The corresponding field of the other form. */
    CField *pOtherField;
};

/**
 * The data of one form, slip or wizard of a return: its fields in archive
 * order, the worksheets that feed it, the return's dependants and the
 * return-wide facts its rules need.
 *
 * A concrete form derives from this class, declares its fields as members,
 * names them and pushes them into m_fields in its constructor, pushes its
 * worksheets, registers renamed fields with addFieldOldName, and overrides
 * the hooks (Calculate, Validate, WriteNetfile, getUIPages ...). Fields,
 * worksheets and the dependant list are never owned by the form.
 *
 * On disk a form is a marker, a byte count and one block of XML text
 * scrambled with the caller's key; values are keyed by field name, so fields
 * may be added, dropped or reordered between versions.
 */
class LIBCONTROL_EXPORT CTaxData_Form : public QObject
{
    Q_OBJECT
public:
    /** A form of the catalogue. */
    explicit CTaxData_Form(ENUMTYPE_FORM formId);
    /** An information slip. */
    explicit CTaxData_Form(ENUMTYPE_SLIP slipId);
    /** A page set of the interview wizard. */
    explicit CTaxData_Form(ENUMTYPE_TAXWIZARD wizardId);
    /** Releases the lists only; fields, worksheets and dependants belong to others. */
    ~CTaxData_Form() override;

    /** Appends the form's pages to `pages`; the base adds none. Returns 0. */
    virtual int getUIPages(std::list<BaseTaxPage *> &pages, QWidget *parent);
    /**
     * Copies the marker, the form id, the field values pair by pair (same
     * class only, date-times included) and the worksheets pair by pair, each
     * walk stopping at the shorter list. Returns this form.
     */
    virtual CTaxData_Form &operator=(CTaxData_Form &other);
    /**
     * True at the first pair of fields whose values differ; lists of
     * different lengths compare on their common part only. Worksheets and
     * data flags are not compared.
     */
    virtual bool operator!=(CTaxData_Form &other);
    /**
     * True when the form is mandatory for the return kinds `year` and
     * `province`, otherwise the import flag of the form's catalogue row.
     */
    virtual bool ShouldBeImported(unsigned char year, ENUMTYPE_PROVINCE province);
    /**
     * Prepares a form carried into the next tax year by each field's
     * roll-over attribute, then rolls the worksheets over. Texts marked to be
     * cleared are emptied even when `keep` is true; the data flags stay.
     */
    virtual void ChangeToNewYearData(bool keep);
    /** Shares data with the spouse's copy of the form; the base does nothing. Returns 0. */
    virtual int SyncSharedData(CTaxData_Form *other);
    /** Whether the form is shared with the spouse's return; false in the base. */
    virtual bool IsShared();
    /**
     * Stores or loads the form block. Storing writes the marker, the byte
     * count and the XML text XOR-ed with the UTF-8 bytes of `key` (an empty
     * key writes it plain); the data flags are included from version 66036.
     *
     * Loading logs "delimeter error" for a wrong marker and carries on. A
     * block that does not parse (wrong key, damaged file) changes no field;
     * a byte count beyond the stream's end marks the stream corrupt and
     * reads nothing more. Fields are found by name, then by their old names
     * in the order registered; fields missing from the block keep their
     * values, and each worksheet gets the whole name-to-value map.
     */
    virtual void Serialize(unsigned int version, CString const &key, MyDataStream &ar);
    /** Writes the print-data item (start, body, end) when `ar` stores; loading does nothing. */
    virtual void SerializeXml(std::string const &name, int number, MyDataStream &ar);
    /** "<item>\n<c>name</c>\n<d>number</d>\n". */
    virtual void SerializeXmlStart(std::string const &name, int number, MyDataStream &ar);
    /** Each printable field's "<f><c>..</c><v>..</v></f>" and a line feed. */
    virtual void SerializeXmlBody(MyDataStream &ar);
    /** "</item>", without a line feed. */
    virtual void SerializeXmlEnd(MyDataStream &ar);
    /** Works out the kind of taxpayer from the form's data; the base returns 0. */
    virtual int deduceEntity();
    /** Sets `out` to the name shown for this copy of the form; "Untitled" in the base. */
    virtual void GetDisplayName(CString &out);
    /** Recalculates the form; the base does nothing. Returns 0. */
    virtual int Calculate();
    /** A second calculation pass for forms that need one; the base does nothing. Returns 0. */
    virtual int Calculate02();
    /**
     * Collects, keyed by line code, the fields whose values differ from
     * `other` (the form as filed before). Fields without a line code (below
     * 1), pairs of different classes and date-times are passed over; texts
     * compare ignoring case, amounts to the cent (a difference under 0.009
     * does not count). A later pair with the same line code replaces an
     * earlier one. Returns 0.
     */
    virtual int ReFileCompareFields(CTaxData_Form *other, std::map<int, _ReFileFieldCompareStru> &out);
    /** Appends the form's warnings; the base adds none. */
    virtual void Warning(std::list<CString> &messages);
    /** Appends the form's errors and returns their number; the base adds none and returns 0. */
    virtual int Validate(unsigned char kinds, std::list<CString> &messages);
    /** Lets every field clean up its value, in list order. */
    virtual void ValidateAndCorrect();
    /** Writes the form's Netfile records; the base writes nothing. Returns 0. */
    virtual int WriteNetfile(unsigned char kinds, NetfileGenObjParamStru &param);
    /** Links the return's dependant list and hands it to every dependant worksheet. */
    virtual void SetDepInfo(DependantInfoStruct *depInfo);
    /**
     * Writes `folder`/xml/`fileName`: a form named after `formName` without
     * "TaxData_", one row per field (integers as radio groups, flags, texts
     * with their width, amounts, dates), retired fields marked notused and
     * version bounds other than the defaults as attributes. A date-time field
     * gets an empty row. `flags` select nothing. Returns 0, -1 for an empty
     * file name (nothing written), -5 when the file cannot be created.
     */
    virtual int WriteLumenFormXmlFile(char const *folder, char const *formName, char const *fileName,
                                      unsigned int flags);
    /**
     * Writes `folder`/`className`.java: a TaxFormData subclass declaring the
     * form's fields and then its worksheets' fields, with the print package
     * header when `forPrint` is true. Returns 0, -1 for an empty class name
     * (no file is made), -5 when the file cannot be created.
     */
    virtual int WriteJavaFile(char const *folder, char const *className, bool forPrint);
    /** Writes the form's XML description; the base writes nothing. Returns 0. */
    virtual int WriteXMLFile(char const *folder, char const *formName, char const *fileName, unsigned int flags);
    /**
     * Puts test values into the fields for checking print layouts: integers
     * 1 (fld_moreentry_num 0, so no extra entries are printed), flags 1,
     * texts up to ten "a" letters within their width, amounts 12345.67, dates
     * and date-times the current ones. Worksheets are left alone.
     */
    virtual void FillTestPrintData();
    /** Appends names of extra print fields; the base adds none. */
    virtual void GetXtraPrintFields(std::list<std::string> &names);
    /**
     * Writes one Java declaration per field, named by DotChangeToUnderscore
     * of the field name, with its line code (null when 0), extra value and
     * version bounds. A null file writes nothing.
     */
    virtual void WriteJavaFileDeclaration(FILE *f);
    /** Writes "m_data.add(identifier);" per field. A null file writes nothing. */
    virtual void WriteJavaFileContruction(FILE *f);
    /** Writes extra Java methods; the base writes nothing. */
    virtual void WriteJavaFileImplementation(FILE *f);

    DependantInfoStruct *GetDepInfo() const;
    ENUMTYPE_PROVINCE getMainTaxProvince() const;
    void setMainTaxProvince(ENUMTYPE_PROVINCE province);
    bool isCoupledReturn() const;
    void setCoupledReturn(bool coupled);
    /**
     * Registers `oldName` as an earlier name of the field `name`; a field
     * renamed twice gets two calls, and loading tries them in that order.
     */
    void addFieldOldName(char const *name, char const *oldName);

    /** The plain XML text of the form block ("<m>...</m>") for `version`. */
    QByteArray blockText(unsigned int version);
    /**
     * Sets the fields and worksheets from a plain block text, as loading
     * does after unscrambling; returns false, changing nothing, when the text
     * does not parse.
     */
    bool readBlockText(QByteArray const &text, unsigned int version);

    CIntField m_DataFlag1;
    CIntField m_DataFlag2;
    CIntField m_DataFlag3;
    CIntField m_DataFlag4;
    /** Free for derived forms; the base never reads it. */
    bool m_bFlag;
    /** The form's fields in archive order; not owned. */
    std::vector<CField *> m_fields;
    /** The form's worksheets in order; not owned. */
    std::list<CWSBaseData *> m_listWorksheets;
    /** The return's dependant list; not owned. */
    DependantInfoStruct *m_pDepInfo;
    ENUMTYPE_PROVINCE m_eMainTaxProvince;
    bool m_bCoupledReturn;
    /** Earlier names of renamed fields, in the order registered; the lists are owned. */
    std::map<std::string, std::list<std::string> *> m_mapFieldOldNames;
    /** 0 a form, 1 a slip, 2 a wizard. */
    int m_nFormKind;
    /** The form, slip or wizard identifier. */
    quint16 m_nFormId;
    /** The last marker read or written. */
    int m_nDelimiter;

private:
    CTaxData_Form(int kind, quint16 id);
    void loadFromMap(std::map<std::string, CString> values, unsigned int version);
};

/** A provincial form; it differs from CTaxData_Form only by its type. */
class LIBCONTROL_EXPORT CProvinceTaxData_Form : public CTaxData_Form
{
    Q_OBJECT
public:
    explicit CProvinceTaxData_Form(ENUMTYPE_FORM formId);
    ~CProvinceTaxData_Form() override;
};

/**
 * A form whose amounts spouses may share in a coupled return. Its two fields
 * come first in m_fields, before every field of the derived form.
 */
class LIBCONTROL_EXPORT CSharableTaxData_Form : public CTaxData_Form
{
    Q_OBJECT
public:
    explicit CSharableTaxData_Form(ENUMTYPE_FORM formId);
    explicit CSharableTaxData_Form(ENUMTYPE_SLIP slipId);
    ~CSharableTaxData_Form() override;

    /** When shared, this return's percentage overrides the spouse's. */
    CBoolField fld_bOverwritePercentIfShared;
    /** This taxpayer's share, in percent. */
    CFloatField fld_MyPercent;

private:
    void addSharingFields();
};

#endif
