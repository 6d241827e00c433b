#ifndef LIBCONTROL_WORKSHEETS_MEDEXPINFO_H
#define LIBCONTROL_WORKSHEETS_MEDEXPINFO_H

#include <LibControl/fields/Field.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/fields/boolfield.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/libcontrol_export.h>

#include <vector>

/**
 * The medical expenses claimed for one dependant, by kind, and the choice of
 * not claiming the disability amount for that person.
 */
struct LIBCONTROL_EXPORT _OneDepMedExpInfoStru
{
    _OneDepMedExpInfoStru();
    _OneDepMedExpInfoStru(_OneDepMedExpInfoStru const &) = delete;

    /** Texts, amounts and flags emptied (the common list clear). */
    void ClearData();
    /** The values of the six fields are equal. */
    bool operator==(_OneDepMedExpInfoStru &other);
    /** Copies the six values. */
    _OneDepMedExpInfoStru &operator=(_OneDepMedExpInfoStru &other);
    /** Archives the six fields, each behind its version gate. */
    void serilize(int version, MyDataStream &ar);

    CFloatField fld_medexp;
    CBoolField fld_disabled_nodisablityclaim;
    CFloatField fld_medexp_other;
    CFloatField fld_medexp_attcare;
    CFloatField fld_medexp_van;
    CFloatField fld_medexp_move;

    std::vector<CField *> m_vecFields;
};

/**
 * The taxpayer's and spouse's medical expenses and one record per
 * dependant. After loading, or after storing an object without records, it
 * always holds at least 12 records.
 */
struct LIBCONTROL_EXPORT _MedExpInfoStruct
{
    _MedExpInfoStruct();
    ~_MedExpInfoStruct();
    _MedExpInfoStruct(_MedExpInfoStruct const &) = delete;

    /** Replaces the records by `count` empty ones and sets fld_nDepNum. */
    void AllocData(int count);
    /** Destroys the records; the count becomes 0. */
    void FreeData();
    /** Clears its own amounts and flags, then every record; the count stays. */
    void ClearData();
    /**
     * Own fields equal, then the records compared for this object's count
     * only (records the other side lacks count as different).
     */
    bool operator==(_MedExpInfoStruct &other);
    /** Takes the source's count, records and own fields. */
    _MedExpInfoStruct &operator=(_MedExpInfoStruct &other);
    /**
     * Own fields first (so the count travels first), then the records. A
     * loaded count below 1 gives 12 records; a count larger than the stream
     * can hold is cut to the records actually present.
     */
    void serilize(int version, MyDataStream &ar);

    /** The records, fld_nDepNum of them. */
    _OneDepMedExpInfoStru *record(int index);

    CIntField fld_nDepNum;
    CFloatField fld_medexp;
    CBoolField fld_disabled_nodisablityclaim;
    CFloatField fld_medexp_other;
    CFloatField fld_medexp_attcare;
    CFloatField fld_medexp_van;
    CFloatField fld_medexp_move;
    CFloatField fld_medexp_spouse;
    CBoolField fld_disabled_nodisablityclaim_spouse;
    CFloatField fld_medexp_other_spouse;
    CFloatField fld_medexp_attcare_spouse;
    CFloatField fld_medexp_van_spouse;
    CFloatField fld_medexp_move_spouse;

    std::vector<CField *> m_vecFields;
    _OneDepMedExpInfoStru *m_pDeps;

private:
    int recordCount() const;
};

#endif
