#ifndef LIBCONTROL_WORKSHEETS_DEPENDANTINFO_H
#define LIBCONTROL_WORKSHEETS_DEPENDANTINFO_H

#include <LibControl/common/cstring.h>
#include <LibControl/fields/Field.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/libcontrol_export.h>

#include <QDate>

#include <memory>
#include <vector>

class MyDataStream;
class StyledComboBox;

/** One row of the infirmity status table: the code and its text. */
struct LIBCONTROL_EXPORT STRUCT_INFIRM_STATUS_INFO
{
    int code;
    char text[60];
};

/** One row of the relationship table: a flag (1 but for "Other") and the text. */
struct LIBCONTROL_EXPORT STRUCT_RELATIONSHIP_INFO
{
    unsigned char flag;
    char text[60];
};

/** The infirmity statuses indexed by code: 0 "Normal", 1 "Infirm", 2 "Disabled". */
LIBCONTROL_EXPORT extern STRUCT_INFIRM_STATUS_INFO const Global_InfirmStatus_Info[3];
/** The 15 relationships indexed by a dependant's relationship: 0 "Son" .. 14 "Other". */
LIBCONTROL_EXPORT extern STRUCT_RELATIONSHIP_INFO const Global_Relationship_Info[15];

/** The tax year of this build; a dependant's age is this minus the birth year. */
constexpr int DEPENDANT_TAX_YEAR = 2025;

/**
 * One dependant of the return: names, birth date, relationship, net income
 * and the infirmity fields.
 *
 * A record is "named" when its first or last name, trimmed, is not empty;
 * unnamed records keep their place in the list but take part in no count.
 * Copying goes through operator=, which copies values and keeps each record's
 * own field list.
 */
struct LIBCONTROL_EXPORT _OneDependantInfoStru
{
    _OneDependantInfoStru();
    _OneDependantInfoStru(_OneDependantInfoStru const &other);
    ~_OneDependantInfoStru();

    char m_szFirstName[80];
    char m_szLastName[80];
    /** Null when unknown. */
    QDate m_dateBirth;
    /** Row of Global_Relationship_Info. */
    int m_nRelationship;
    /** Net income in dollars. */
    double m_dNetIncome;

    /** 0 Normal, 1 Infirm, 2 Disabled. */
    CIntField fld_Infirm;
    CStringField fld_InfirmNature;
    CStringField fld_Addr;
    /** The province of residence (ENUMTYPE_PROVINCE), held as a number in an amount field. */
    CFloatField fld_iProv;
    CFloatField fld_medexp_other_notused;
    CFloatField fld_medexp_attcare_notused;
    CFloatField fld_medexp_van_notused;
    CFloatField fld_medexp_move_notused;
    /** The eight fields above, in archive order. */
    std::vector<CField *> m_fields;

    /** First and last name joined by a space and trimmed; "<unknown name>" when that is empty. */
    void getName(CString &out) const;
    /** 2025 minus the birth year; month and day are ignored, so a null date gives 2025. */
    int getAge() const;
    /** True when either name, trimmed, is not empty. */
    bool isNamed() const;
    /** A son or daughter under 18. */
    bool IsMedExpForLine330() const;
    bool IsDisabled() const;
    bool IsInfirmOrDisabled() const;
    /** The status text of fld_Infirm; fld_Infirm must stay within 0..2. */
    char const *getInfirmStatusStr() const;
    /**
     * The selector text "First Last - Relationship - net inc.($1234.00) -  - Status[ - yyyy-MM-dd]",
     * with "<FirstName>"/"<LastName>" for a blank half. The doubled separator
     * before the status is intended. Returns false, with `out` empty, for an
     * unnamed record.
     */
    bool MakeComboBoxString(CString &out) const;

    /**
     * Names byte-equal, birth dates both null or equal, same relationship,
     * net incomes within 0.009, and equal field values.
     */
    bool operator==(_OneDependantInfoStru const &other) const;
    bool operator!=(_OneDependantInfoStru const &other) const { return !(*this == other); }
    /** Copies every member and every field value. */
    _OneDependantInfoStru &operator=(_OneDependantInfoStru const &other);

    /**
     * Stores the record, or loads it in the layout of `version`: above
     * 0x10210 the birth date is "yyyyMMdd" text; from 0x100b2 a day-number
     * double; below that also the net income is a single-precision float.
     * A short stream leaves its status set and the record partly read.
     */
    void serilize(int version, MyDataStream &ar);

    /** The fewest bytes one record occupies in the layout of `version`. */
    static qint64 minimumArchiveSize(int version);

private:
    void initFields();
};

/**
 * The return's list of dependants, with the counting questions the credit
 * lines ask. Counts look at named records only; ages below 0 never count.
 */
class LIBCONTROL_EXPORT DependantInfoStruct
{
public:
    DependantInfoStruct();
    DependantInfoStruct(DependantInfoStruct const &other);
    ~DependantInfoStruct();

    /** Number of records. */
    int m_nCount;
    /**
     * Added to a dependant's net income by GetDepNetIncConsideringF185; set
     * by the owner and never stored with the list.
     */
    CFloatField fld_AdjustAmount;
    CFloatField fld_medexp_notused;
    CFloatField fld_medexp_other_notused;
    CFloatField fld_medexp_attcare_notused;
    CFloatField fld_medexp_van_notused;
    CFloatField fld_medexp_move_notused;
    CFloatField fld_medexp_spouse_notused;
    CFloatField fld_medexp_other_spouse_notused;
    CFloatField fld_medexp_attcare_spouse_notused;
    CFloatField fld_medexp_van_spouse_notused;
    CFloatField fld_medexp_move_spouse_notused;
    /** The ten retired fields above, in archive order. */
    std::vector<CField *> m_fields;
    /** The m_nCount records. */
    std::unique_ptr<_OneDependantInfoStru[]> m_pData;

    /** Replaces the records with `n` empty ones (none for `n` below 1). */
    void AllocData(int n);
    /** Destroys the records; the count becomes 0. */
    void FreeData();
    /** Record `i`, or null outside 0..count-1. */
    _OneDependantInfoStru *getDependant(int i) const;

    /** Copies the records and the field values; the adjustment amount stays the owner's. */
    DependantInfoStruct &operator=(DependantInfoStruct const &other);
    /**
     * Record i against record i for every i below this list's count, then the
     * fields. The counts are not compared: a longer `other` whose first
     * records match is equal; a shorter one is not.
     */
    bool operator==(DependantInfoStruct const &other) const;
    bool operator!=(DependantInfoStruct const &other) const { return !(*this == other); }

    /**
     * Stores the count, the records and the fields, or loads them. A stored
     * count that the remaining bytes cannot hold marks the stream corrupt and
     * leaves the list empty, without allocating for it.
     */
    void serilize(int version, MyDataStream &ar);

    /**
     * Fills `box` with the dependant selector: `firstItem` (or "Please select a
     * dependant") with data 0, then each named record with data = its
     * one-based index. An empty list gives the single item "No dependant
     * information was entered.". A null `box` is ignored.
     */
    void FillComboBox(StyledComboBox *box, char *firstItem) const;
    /**
     * Leaves 0 alone; turns an index below 0, beyond the count or at an
     * unnamed record into 0 and returns 1. Returns 0 otherwise.
     */
    int ValidateAndCorrectDepIndex(int &idx) const;
    /** Net income of record `i` plus the adjustment amount; 0 outside the list. */
    double GetDepNetIncConsideringF185(int i) const;

    /** Infirm or disabled, of at least `minAge`. */
    int GetInfirmDependantsNumberNotUnderAge(int minAge) const;
    /** Disabled, of at least `minAge` and at most `maxAge` (no upper limit when `maxAge` <= 0). */
    int GetDisabledDependantsBetweenAges(int minAge, int maxAge) const;
    /** Infirm or disabled, under 18. */
    int GetInfirmDependentNumberUnderAge18() const;
    /**
     * Of at least `minAge` (any when <= 0) and at most `maxAge` (any when < 1),
     * whatever the relationship.
     */
    int GetDepChildrenNumberBetweenAges(int minAge, int maxAge) const;
    /** The same as GetDepChildrenNumberBetweenAges. */
    int GetDepNumberBetweenAges(int minAge, int maxAge) const;
    /** GetDepChildrenNumberBetweenAges limited to records whose infirm-or-disabled state equals `infirm`. */
    int GetDepChildrenNumberBetweenAges_Infirm(int minAge, int maxAge, bool infirm) const;
    /** Not a count: the sum of the birth months of the records aged exactly `age`. */
    int GetMonthsDepChildrenAtAge_Infirm(int age) const;
    /** Records of relationship `relation`; the two ages are ignored on purpose. */
    int GetDepNumberBetweenAgesAndRelation(int minAge, int maxAge, int relation) const;
    /** Under 18, or infirm or disabled. */
    int GetDepChildrenNumberForLine305() const;
    /**
     * Parents and grandparents at any age; brothers and sisters when 17 or
     * younger or infirm or disabled; nobody else.
     */
    int GetDepOtherThanChildrenNumberForLine305() const;

private:
    void initFields();
    template<typename Predicate>
    int countNamed(Predicate predicate) const;
};

#endif
