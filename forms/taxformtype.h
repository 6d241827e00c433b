#ifndef LIBCONTROL_FORMS_TAXFORMTYPE_H
#define LIBCONTROL_FORMS_TAXFORMTYPE_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

// The catalogue of everything a return can hold: forms, slips, provinces,
// countries, US states, wizard steps and the small code tables of particular
// forms, with the per-jurisdiction form lists and the questions asked of them.
// Every table is constant after start-up except Province_Forms_Info.

/**
 * Provinces and territories of residence (1 to 13, alphabetical by code),
 * then the non-resident and deemed-resident kinds (14 to 17). The value is
 * the row of Global_Provs_Info. In the combined province-or-state numbering
 * US state n of Global_USStates_Info is n + 17.
 */
enum ENUMTYPE_PROVINCE : int {
    PROV_NONE = 0,
    PROV_AB = 1,
    PROV_BC = 2,
    PROV_MB = 3,
    PROV_NB = 4,
    PROV_NL = 5,
    PROV_NS = 6,
    PROV_NT = 7,
    PROV_NU = 8,
    PROV_ON = 9,
    PROV_PE = 10,
    PROV_QC = 11,
    PROV_SK = 12,
    PROV_YT = 13,
    PROV_NONRESIDENT = 14,
    PROV_NONRESIDENT_S216 = 15,
    PROV_NONRESIDENT_S217 = 16,
    PROV_DEEMED_RESIDENT = 17,
};

/** Information slips; the value is the row of Global_Slips_Info. */
enum ENUMTYPE_SLIP : int {
    SLIP_NA = 0,
    SLIP_T4 = 1,
    SLIP_T4A = 2,
    SLIP_T4AP = 3,
    SLIP_T4RSP = 4,
    SLIP_T4E = 5,
    SLIP_T4AOAS = 6,
    SLIP_T4RIF = 7,
    SLIP_T5 = 8,
    SLIP_T3 = 9,
    SLIP_T5003 = 10,
    SLIP_T5007 = 11,
    SLIP_T4F = 12,
    SLIP_T5013 = 13,
    SLIP_T4PS = 14,
    SLIP_T4ARCA = 15,
    SLIP_T5006 = 16,
    SLIP_RC62 = 17,
    SLIP_RC210 = 18,
    SLIP_T5008 = 19,
    SLIP_RRSP_CONTRIBUTION = 20,
    SLIP_MB_SHELTER_BENEFIT = 21,
    SLIP_PRPP_RECEIPT = 22,
    SLIP_T1204 = 23,
    SLIP_NR4 = 24,
    SLIP_T2202 = 25,
    SLIP_T4FHSA = 26,
};

/** Steps of the interview wizard; the value is the row of Global_TaxWizard_Info. */
enum ENUMTYPE_TAXWIZARD : int {
    TAXWIZARD_NA = 0,
    TAXWIZARD_GENERAL_INFO = 1,
    TAXWIZARD_LAST_YEAR = 2,
    TAXWIZARD_DEPENDANTS = 3,
    TAXWIZARD_MEDICAL_EXPENSE = 4,
    TAXWIZARD_RRSP = 5,
    TAXWIZARD_PROVINCIAL = 6,
};

/**
 * Forms; the value is the row of Global_Forms_Info. Some short names occur
 * twice in the catalogue for different forms: FORM_SCHEDULE8_OLD (retired)
 * and FORM_SCHEDULE8, FORM_COMMISSION and FORM_COMMISSION_SFD, FORM_RC59
 * and FORM_RC59_BUSINESS.
 */
enum ENUMTYPE_FORM : int {
    FORM_NA = 0,
    FORM_T1GENERAL = 1,
    FORM_SCHEDULE1 = 2,
    FORM_SCHEDULE2 = 3,
    FORM_SCHEDULE3 = 4,
    FORM_WS_SCHEDULE4 = 5,
    FORM_SCHEDULE5 = 6,
    FORM_SCHEDULE7 = 7,
    FORM_SCHEDULE8_OLD = 8,
    FORM_SCHEDULE9 = 9,
    FORM_SCHEDULE10 = 10,
    FORM_SCHEDULE11 = 11,
    FORM_T776 = 12,
    FORM_T778 = 13,
    FORM_T929 = 14,
    FORM_T1163 = 15,
    FORM_T1165 = 16,
    FORM_T1172 = 17,
    FORM_T1212 = 18,
    FORM_T2032 = 19,
    FORM_T2038 = 20,
    FORM_T2042 = 21,
    FORM_T2124 = 22,
    FORM_T2204 = 23,
    FORM_ON428 = 24,
    FORM_ON479 = 25,
    FORM_ON_S2 = 26,
    FORM_ON_S11 = 27,
    FORM_GST370 = 28,
    FORM_T1206 = 29,
    FORM_T626 = 30,
    FORM_T691 = 31,
    FORM_T936 = 32,
    FORM_COMMISSION = 33,
    FORM_T2036 = 34,
    FORM_T2209 = 35,
    FORM_T1139 = 36,
    FORM_T2017 = 37,
    FORM_T5013 = 38,
    FORM_T1A = 39,
    FORM_T657 = 40,
    FORM_BC428 = 41,
    FORM_BC479 = 42,
    FORM_BC_S2 = 43,
    FORM_BC_S11 = 44,
    FORM_AB428 = 45,
    FORM_AB479 = 46,
    FORM_AB_S2 = 47,
    FORM_AB_S11 = 48,
    FORM_T2222 = 49,
    FORM_T1231 = 50,
    FORM_T2121 = 51,
    FORM_T1DD = 52,
    FORM_RC71 = 53,
    FORM_T1238 = 54,
    FORM_T5004 = 55,
    FORM_BCFIN542 = 56,
    FORM_CPT20 = 57,
    FORM_T1219_ON = 58,
    FORM_T777 = 59,
    FORM_MB428 = 60,
    FORM_MB479 = 61,
    FORM_NB428 = 62,
    FORM_NL428 = 63,
    FORM_NL_S2 = 64,
    FORM_NL_S11 = 65,
    FORM_NT428 = 66,
    FORM_NT479 = 67,
    FORM_NT_S2 = 68,
    FORM_NT_S11 = 69,
    FORM_NS428 = 70,
    FORM_NS479 = 71,
    FORM_NS_S2 = 72,
    FORM_NS_S11 = 73,
    FORM_NU428 = 74,
    FORM_NU479 = 75,
    FORM_NU_S2 = 76,
    FORM_NU_S11 = 77,
    FORM_PE428 = 78,
    FORM_PE_S2 = 79,
    FORM_PE_S11 = 80,
    FORM_SK428 = 81,
    FORM_SK_S2 = 82,
    FORM_SK_S11 = 83,
    FORM_YT428 = 84,
    FORM_YT432 = 85,
    FORM_YT479 = 86,
    FORM_T1241 = 87,
    FORM_T1237 = 88,
    FORM_T1219 = 89,
    FORM_MB_S2 = 90,
    FORM_MB_S11 = 91,
    FORM_TL2 = 92,
    FORM_T1KS = 93,
    FORM_NB_S2 = 94,
    FORM_NB_S11 = 95,
    FORM_T183 = 96,
    FORM_T1153 = 97,
    FORM_T1256 = 98,
    FORM_T1258 = 99,
    FORM_T79 = 100,
    FORM_T1135 = 101,
    FORM_T1M = 102,
    FORM_T1223 = 103,
    FORM_RC66 = 104,
    FORM_T746 = 105,
    FORM_T1221 = 106,
    FORM_T1229 = 107,
    FORM_T1272 = 108,
    FORM_T1273 = 109,
    FORM_YT_S2 = 110,
    FORM_YT_S11 = 111,
    FORM_T1285 = 112,
    FORM_T1170 = 113,
    FORM_T4164 = 114,
    FORM_T1284 = 115,
    FORM_T1ADJ = 116,
    FORM_T1013_ONLINE = 117,
    FORM_T1032 = 118,
    FORM_SCHEDULE6 = 119,
    FORM_T1005 = 120,
    FORM_T1014 = 121,
    FORM_T1014_1 = 122,
    FORM_T1199 = 123,
    FORM_T2205 = 124,
    FORM_T2125 = 125,
    FORM_MB428A = 126,
    FORM_SK479 = 127,
    FORM_T1129 = 128,
    FORM_T1297 = 129,
    FORM_T1256_1 = 130,
    FORM_COMMISSION_SFD = 131,
    FORM_T1299 = 132,
    FORM_SCHEDULE12 = 133,
    FORM_T1317 = 134,
    FORM_T1232 = 135,
    FORM_RC267 = 136,
    FORM_RC268 = 137,
    FORM_RC269 = 138,
    FORM_SCHEDULE13 = 139,
    FORM_ON_BEN = 140,
    FORM_RC310 = 141,
    FORM_ON_S12 = 142,
    FORM_BC_S12 = 143,
    FORM_RC360 = 144,
    FORM_RC359 = 145,
    FORM_T1014_2 = 146,
    FORM_T2091 = 147,
    FORM_RC381 = 148,
    FORM_RC383 = 149,
    FORM_SCHEDULE8 = 150,
    FORM_SCHEDULE1A = 151,
    FORM_T1256_2 = 152,
    FORM_NB_S12 = 153,
    FORM_ON_COOP = 154,
    FORM_ON_APPRENTICE = 155,
    FORM_T2203 = 156,
    FORM_WS31285 = 157,
    FORM_T1161 = 158,
    FORM_T1KS_OLD = 159,
    FORM_T1255 = 160,
    FORM_T1159 = 161,
    FORM_T5013_SCHA = 162,
    FORM_T5013_SCHB = 163,
    FORM_T5013_SCHC = 164,
    FORM_T1KS_LASTYEAR = 165,
    FORM_SCHEDULE14 = 166,
    FORM_SCHEDULE_AB = 167,
    FORM_SCHEDULE_C = 168,
    FORM_ON428A = 169,
    FORM_ON479A = 170,
    FORM_T90 = 171,
    FORM_YT_S14 = 172,
    FORM_T224 = 173,
    FORM_T225 = 174,
    FORM_T1013_OFFLINE = 175,
    FORM_RC59 = 176,
    FORM_T1134 = 177,
    FORM_T1134_SUPPLEMENT = 178,
    FORM_T777_COVID = 179,
    FORM_T2200_COVID = 180,
    FORM_T185 = 181,
    FORM_T106_SUMMARY = 182,
    FORM_T106_SLIP = 183,
    FORM_RC59_BUSINESS = 184,
    FORM_RC59X = 185,
    FORM_T1044 = 186,
    FORM_T3010 = 187,
    FORM_NL479 = 188,
    FORM_SK_S12 = 189,
    FORM_T183CORP = 190,
    FORM_T183TRUST = 191,
    FORM_T183PARTNERSHIP = 192,
    FORM_T2043 = 193,
    FORM_NR5 = 194,
    FORM_T2SCH89 = 195,
    FORM_T2054 = 196,
    FORM_T217 = 197,
    FORM_T1B = 198,
    FORM_T2039 = 199,
    FORM_UNSUED = 200,
    FORM_T2057 = 201,
    FORM_T2058 = 202,
    FORM_T2059 = 203,
    FORM_UHT2900 = 204,
    FORM_SCHEDULE15 = 205,
    FORM_T1279 = 206,
    FORM_T1248_SCHD = 207,
    FORM_T1356 = 208,
    FORM_INSTALMENT = 209,
    FORM_WS_T1 = 210,
    FORM_T1294 = 211,
    FORM_T2048 = 212,
    FORM_T1198 = 213,
};

// --- Records --------------------------------------------------------------

/** One form of Global_Forms_Info. */
struct LIBCONTROL_EXPORT STRUCT_TAXFORM_INFO
{
    int id; ///< the ENUMTYPE_FORM value, equal to the row
    char const *title; ///< full title, "Schedule 1 - Federal Tax"
    char const *shortName; ///< name shown in lists, "Schedule 1"; not unique
    char const *dataClass; ///< name of the form's data class, "TaxData_S1"
    char const *printFile; ///< government PDF it prints on, or "noprint.pdf"
    char const *layoutFile; ///< form layout description, "s1.xml"
    unsigned char flagA; ///< set on the tax and credit calculation forms
    /** Set on the forms carried into next year's return even when not mandatory (the import flag). */
    unsigned char flagB;
};

/** One form of a jurisdiction's list (Federal_Forms_Info, AB_Forms_Info, ...). */
struct LIBCONTROL_EXPORT STRUCT_JURISDICTION_FORM_INFO
{
    int form; ///< ENUMTYPE_FORM value
    unsigned char mandatory; ///< return kinds (bits 0 and 1) for which the form is mandatory
    /** Federal list only: 1 when the mask decides, 0 when the form is never mandatory. */
    unsigned char conditional;
    unsigned char reserved[2]; ///< always zero
};

/** One entry of Province_Forms_Info: a province's form list and its length. */
struct LIBCONTROL_EXPORT STRUCT_PROVINCE_FORMS_INFO
{
    STRUCT_JURISDICTION_FORM_INFO const *forms; ///< null when the province has no list
    int count;
};

/** One row of Global_Provs_Info. */
struct LIBCONTROL_EXPORT STRUCT_PROVINCE_INFO
{
    int id; ///< the ENUMTYPE_PROVINCE value
    char const *name;
    char const *code; ///< two letters; null for row 0, "OT" for the non-resident kinds
    char const *module; ///< calculation module for a resident; null when there is none
    char const *nonResidentModule; ///< calculation module for a non-resident; null when there is none
};

/** One row of Global2_Provs_Info, the trust returns' province table. */
struct LIBCONTROL_EXPORT STRUCT_PROVINCE2_INFO
{
    int id;
    char const *name;
    char const *code;
    char const *module; ///< null when there is none
};

/** One slip of Global_Slips_Info. */
struct LIBCONTROL_EXPORT STRUCT_SLIP_INFO
{
    int id; ///< the ENUMTYPE_SLIP value
    char const *shortName;
    char const *title;
    char const *dataClass; ///< "SlipData_" and the slip code; "None" for row 0
};

/** One step of Global_TaxWizard_Info. */
struct LIBCONTROL_EXPORT STRUCT_TAXWIZARD_INFO
{
    int id;
    char const *title;
    char const *shortTitle;
    unsigned char enabled;
};

/** One country of Global_Countries_Info. */
struct LIBCONTROL_EXPORT STRUCT_COUNTRY_INFO
{
    int id;
    char const *name;
    char const *isoCode2; ///< ISO 3166 alpha-2; empty in row 0
    char const *isoCode3; ///< ISO 3166 alpha-3; empty in row 0
};

/** One state or territory of Global_USStates_Info. */
struct LIBCONTROL_EXPORT STRUCT_USSTATE_INFO
{
    int id;
    char const *name;
    char const *code; ///< USPS two-letter code; "N/A" in row 0
    int unused; ///< always 0
};

/** A {code, text} row of the small code tables and of Global_CAUSProvs_Info. */
struct LIBCONTROL_EXPORT STRUCT_GENERAL_RELATION_CODE_INFO
{
    int code;
    char const *name;
};

// --- Catalogues -----------------------------------------------------------

/** The 214 forms, row = ENUMTYPE_FORM. */
LIBCONTROL_EXPORT extern STRUCT_TAXFORM_INFO const Global_Forms_Info[214];
/** The 27 slips, row = ENUMTYPE_SLIP. */
LIBCONTROL_EXPORT extern STRUCT_SLIP_INFO const Global_Slips_Info[27];
/** The 18 provinces and resident kinds, row = ENUMTYPE_PROVINCE; modules null for 0, 11 (Quebec) and 14 to 17. */
LIBCONTROL_EXPORT extern STRUCT_PROVINCE_INFO const Global_Provs_Info[18];
/** The trust returns' province table: same rows as Global_Provs_Info, their own modules. */
LIBCONTROL_EXPORT extern STRUCT_PROVINCE2_INFO const Global2_Provs_Info[18];
/** The seven wizard steps, row = ENUMTYPE_TAXWIZARD. */
LIBCONTROL_EXPORT extern STRUCT_TAXWIZARD_INFO const Global_TaxWizard_Info[7];
/** "Select", countries 1 ("Canada") to 116 ("Nigeria"), then id 999 "Other Country" OT OTH. */
LIBCONTROL_EXPORT extern STRUCT_COUNTRY_INFO const Global_Countries_Info[118];
/** "Choose A State", then 1 to 59 in order of their codes, territories included ("Vemont" is spelled so). */
LIBCONTROL_EXPORT extern STRUCT_USSTATE_INFO const Global_USStates_Info[60];
/**
 * Provinces and states in the combined numbering, for province-or-state
 * pickers: codes 0 to 17 are the rows of Global_Provs_Info, state n of
 * Global_USStates_Info is code n + 17 (76 "Wyoming").
 */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_CAUSProvs_Info[77];

// --- Jurisdiction form lists ---------------------------------------------

/** The federal forms with their mandatory masks and conditional bytes. */
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const Federal_Forms_Info[62];
/** 62, the length of Federal_Forms_Info. */
LIBCONTROL_EXPORT extern int const Federal_Forms_Num;

/**
 * @name Provincial form lists
 * Each province's forms with their lengths. Mask 1 marks the province's own
 * tax and credit forms, 0 an optional form; the conditional byte is 0.
 * @{
 */
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const AB_Forms_Info[3];
LIBCONTROL_EXPORT extern int const AB_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const BC_Forms_Info[10];
LIBCONTROL_EXPORT extern int const BC_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const MB_Forms_Info[11];
LIBCONTROL_EXPORT extern int const MB_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const NB_Forms_Info[5];
LIBCONTROL_EXPORT extern int const NB_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const NL_Forms_Info[7];
LIBCONTROL_EXPORT extern int const NL_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const NS_Forms_Info[5];
LIBCONTROL_EXPORT extern int const NS_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const NT_Forms_Info[4];
LIBCONTROL_EXPORT extern int const NT_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const NU_Forms_Info[4];
LIBCONTROL_EXPORT extern int const NU_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const ON_Forms_Info[8];
LIBCONTROL_EXPORT extern int const ON_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const PE_Forms_Info[3];
LIBCONTROL_EXPORT extern int const PE_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const SK_Forms_Info[8];
LIBCONTROL_EXPORT extern int const SK_Forms_Num;
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const YT_Forms_Info[7];
LIBCONTROL_EXPORT extern int const YT_Forms_Num;
/** @} */
/**
 * Quebec's slot, empty (null, 0) in this library. A Quebec module that
 * provides a list sets both and then the Province_Forms_Info[PROV_QC] entry,
 * which was copied from them when the library was loaded.
 */
LIBCONTROL_EXPORT extern STRUCT_JURISDICTION_FORM_INFO const *QC_Forms_Info;
/** The length of QC_Forms_Info; 0 in this library. */
LIBCONTROL_EXPORT extern int QC_Forms_Num;

/**
 * Each province's form list, indexed by ENUMTYPE_PROVINCE 0 to 13; entry 0
 * is empty. The counts and the Quebec pointer are copied from the
 * *_Forms_Num values and QC_Forms_Info when the library is loaded.
 */
LIBCONTROL_EXPORT extern STRUCT_PROVINCE_FORMS_INFO Province_Forms_Info[14];

/** Forms filed once per source, so a return may hold several copies. */
LIBCONTROL_EXPORT extern ENUMTYPE_FORM const SFD_Forms_Info[11];
/** 11, the length of SFD_Forms_Info. */
LIBCONTROL_EXPORT extern int const SFD_Forms_Num;

/** Forms no longer filed; IsFormExpired reads it. */
LIBCONTROL_EXPORT extern ENUMTYPE_FORM const Expired_Forms_Info[17];
/** Provinces without a farm-income stabilisation form: NT, NS, QC. */
LIBCONTROL_EXPORT extern ENUMTYPE_PROVINCE const NoFarmStabilization_Provs_Info[3];
/** Provinces whose farmers file T1163: PE, ON, SK, AB. */
LIBCONTROL_EXPORT extern ENUMTYPE_PROVINCE const T1163_Provs_Info[4];

// --- Code tables of particular forms -------------------------------------

/** Alberta AT1: kinds of third party authorised on the return. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_AB_3RDPartyTypes_Info[5];
/** Alberta AT1 Schedule 7: sources of an adjustment to the Alberta tax credit. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_AB_SCH7_SRC_ADJUSTMENT_Info[4];
/** T2 Schedule 389 (Manitoba book publishing tax credit): book classes. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_MB_S389_Book_Class_Info[6];
/** T2 Schedule 389: book formats. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_MB_S389_Book_Format_Info[3];
/** Quebec CO-17 Annexe 3: kinds of payer of the dividends received. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_QC_ANNEXE3_Info[4];
/** T2 Schedule 11: relationship of the person to the corporation. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S11_RELATIONCODE_Info[4];
/** T2 Schedule 15: who files the T4PS slips. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S15_T4PSFiledBy_Info[2];
/** T2 Schedule 15: type of deferred income plan. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S15_TypeOfPlan_Info[5];
/** T2 Schedule 23: association codes. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S23_ASSCCODE_Info[5];
/** T2 Schedule 29: kinds of payment to non-residents. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S29_PAYMENT_CODE_Info[8];
/** T2 Schedule 8: kinds of clean-energy and manufacturing property of classes 43 to 43.2. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S8_ASSET43_CODE_Info[3];
/** T2 Schedule 97: how a non-resident corporation is present in Canada. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S97_NONRESI_CODE_Info[4];
/** T2 Schedule 9: relationship codes of related and associated corporations. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_S9_RELATIONCODE_Info[4];
/** T106: transfer-pricing methods. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_T106_TPM_CODE_Info[8];
/** T661 Part 9: how the claim preparer bills. */
LIBCONTROL_EXPORT extern STRUCT_GENERAL_RELATION_CODE_INFO const Global_T661_BILLING_CODE_Info[4];

// --- Questions ------------------------------------------------------------

/** A Canadian province or territory, 1 to 13; the same rule as isCanProv. */
LIBCONTROL_EXPORT bool isCanProvince(int province);
/**
 * The province 1 to 13 whose two-letter code equals `code`, ignoring case;
 * PROV_NONE for a null or unknown code and for "OT".
 */
LIBCONTROL_EXPORT ENUMTYPE_PROVINCE getProvince(char const *code);
/** A province 1 to 13 with a resident calculation module; Quebec has none. */
LIBCONTROL_EXPORT bool IsProvinceSupported(int province);
/** The first province, in id order, whose list holds `form`; PROV_NONE for federal and unknown forms. */
LIBCONTROL_EXPORT ENUMTYPE_PROVINCE getFormProv(ENUMTYPE_FORM form);
/**
 * Whether `form` must be on a return of the given kinds (a bit mask) for
 * residents of `province`.
 *
 * A federal form is mandatory when its conditional byte is set and its mask
 * shares a bit with `kinds`. A provincial form is mandatory when it is in
 * the list of `province` itself with a non-zero mask; `kinds` is not
 * consulted, and a province outside 1 to 13 has no mandatory provincial
 * forms. Forms in no list are never mandatory.
 */
LIBCONTROL_EXPORT bool IsFormMandatory(unsigned char kinds, ENUMTYPE_PROVINCE province, ENUMTYPE_FORM form);
/** `form` is in SFD_Forms_Info. */
LIBCONTROL_EXPORT bool IsSFDForm(ENUMTYPE_FORM form);
/** A return may hold several copies: an SFD form, T1-M, T2209 or T1134 Supplement. */
LIBCONTROL_EXPORT bool IsMultipleForm(ENUMTYPE_FORM form);
/** Spouses may share the form's data: an SFD form or Schedule 3. */
LIBCONTROL_EXPORT bool IsFormSharable(ENUMTYPE_FORM form);
/** Spouses may share the slip's data: T5, T3 or T5013. */
LIBCONTROL_EXPORT bool IsSlipSharable(ENUMTYPE_SLIP slip);
/** `form` is in Expired_Forms_Info; `province` is not consulted. */
LIBCONTROL_EXPORT bool IsFormExpired(ENUMTYPE_FORM form, ENUMTYPE_PROVINCE province);
/**
 * The farm-income stabilisation form of a province: FORM_NA for NT, NS and
 * QC, FORM_T1163 for PE, ON, SK and AB, FORM_T1273 for every other value.
 */
LIBCONTROL_EXPORT ENUMTYPE_FORM GetCAISFormTypeFromProv(ENUMTYPE_PROVINCE province);

// --- Codes as written -----------------------------------------------------

/**
 * Sets `out` to a place's two-letter code: with `kind` 1 the code of
 * province `value` (1 to 17; "OT" from 14), with `kind` 2 the code of US
 * state `value` (1 to 59). Any other kind or value leaves `out` as it was.
 */
LIBCONTROL_EXPORT void setProvValueToShortName(int kind, int value, CString &out);
/**
 * For a country id 1 to 116, sets `out` to its three-letter code and returns
 * its row; otherwise returns -1 and leaves `out` untouched. Id 999 "Other
 * Country" is deliberately not found. The third argument is not used.
 */
LIBCONTROL_EXPORT int getCountryCode(CString &out, int id, int unused);
/** Appends the three-letter code of country `id` as element `tag`; returns its row, or -1 and writes nothing. */
LIBCONTROL_EXPORT int xmlWriteTagForCountryCode(CString &xml, char const *tag, int id);
/**
 * Appends the code that setProvValueToShortName gives for `kind` and `value`
 * as element `tag`; nothing for other kinds or unknown values. Returns `kind`.
 */
LIBCONTROL_EXPORT int xmlWriteTagForProvCode(CString &xml, char const *tag, int kind, int value);

#endif
