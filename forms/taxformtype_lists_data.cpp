#include <LibControl/forms/taxformtype.h>

// Jurisdiction form lists: {form, mandatory mask, conditional, zero bytes}.
// The federal list is in filing order; unmarked forms have mask 3 and
// conditional 0, so they are never mandatory.

STRUCT_JURISDICTION_FORM_INFO const Federal_Forms_Info[62] = {
    {FORM_T1GENERAL, 3, 1, {0, 0}},
    {FORM_SCHEDULE2, 3, 0, {0, 0}},
    {FORM_SCHEDULE3, 3, 0, {0, 0}},
    {FORM_WS_T1, 3, 0, {0, 0}},
    {FORM_SCHEDULE5, 3, 0, {0, 0}},
    {FORM_SCHEDULE6, 3, 0, {0, 0}},
    {FORM_SCHEDULE7, 3, 0, {0, 0}},
    {FORM_SCHEDULE8, 3, 0, {0, 0}},
    {FORM_SCHEDULE9, 3, 0, {0, 0}},
    {FORM_SCHEDULE10, 3, 0, {0, 0}},
    {FORM_SCHEDULE11, 3, 0, {0, 0}},
    {FORM_SCHEDULE12, 3, 0, {0, 0}},
    {FORM_WS31285, 3, 0, {0, 0}},
    {FORM_SCHEDULE13, 3, 0, {0, 0}},
    {FORM_SCHEDULE15, 3, 0, {0, 0}},
    {FORM_CPT20, 3, 0, {0, 0}},
    {FORM_T1A, 3, 0, {0, 0}},
    {FORM_T1ADJ, 3, 0, {0, 0}},
    {FORM_T1DD, 3, 0, {0, 0}},
    {FORM_T1M, 3, 0, {0, 0}},
    {FORM_RC267, 3, 0, {0, 0}},
    {FORM_RC268, 3, 0, {0, 0}},
    {FORM_RC269, 3, 0, {0, 0}},
    {FORM_RC359, 3, 0, {0, 0}},
    {FORM_RC381, 3, 0, {0, 0}},
    {FORM_RC383, 3, 0, {0, 0}},
    {FORM_T90, 3, 0, {0, 0}},
    {FORM_T183, 1, 1, {0, 0}},
    {FORM_T185, 1, 0, {0, 0}},
    {FORM_T224, 3, 0, {0, 0}},
    {FORM_T225, 3, 0, {0, 0}},
    {FORM_T657, 3, 0, {0, 0}},
    {FORM_T691, 3, 0, {0, 0}},
    {FORM_T746, 3, 0, {0, 0}},
    {FORM_T778, 3, 0, {0, 0}},
    {FORM_T929, 3, 0, {0, 0}},
    {FORM_T936, 3, 0, {0, 0}},
    {FORM_T1013_ONLINE, 1, 0, {0, 0}},
    {FORM_T1032, 3, 0, {0, 0}},
    {FORM_T1135, 3, 0, {0, 0}},
    {FORM_T1170, 3, 0, {0, 0}},
    {FORM_T1172, 3, 0, {0, 0}},
    {FORM_T1198, 3, 0, {0, 0}},
    {FORM_T1206, 3, 0, {0, 0}},
    {FORM_T1212, 3, 0, {0, 0}},
    {FORM_T1223, 3, 0, {0, 0}},
    {FORM_T1229, 3, 0, {0, 0}},
    {FORM_T1248_SCHD, 3, 0, {0, 0}},
    {FORM_T2017, 3, 0, {0, 0}},
    {FORM_T2038, 3, 0, {0, 0}},
    {FORM_T2039, 3, 0, {0, 0}},
    {FORM_T2043, 3, 0, {0, 0}},
    {FORM_T2048, 3, 0, {0, 0}},
    {FORM_T2204, 3, 0, {0, 0}},
    {FORM_T2205, 3, 0, {0, 0}},
    {FORM_T2209, 3, 0, {0, 0}},
    {FORM_T2222, 3, 0, {0, 0}},
    {FORM_T5004, 3, 0, {0, 0}},
    {FORM_GST370, 3, 0, {0, 0}},
    {FORM_RC71, 1, 0, {0, 0}},
    {FORM_T1KS, 3, 1, {0, 0}},
    {FORM_INSTALMENT, 3, 0, {0, 0}},
};
int const Federal_Forms_Num = 62;

STRUCT_JURISDICTION_FORM_INFO const AB_Forms_Info[3] = {
    {FORM_AB428, 1, 0, {0, 0}},
    {FORM_AB_S2, 0, 0, {0, 0}},
    {FORM_AB_S11, 0, 0, {0, 0}},
};
int const AB_Forms_Num = 3;

STRUCT_JURISDICTION_FORM_INFO const BC_Forms_Info[10] = {
    {FORM_BC428, 1, 0, {0, 0}},
    {FORM_BC479, 1, 0, {0, 0}},
    {FORM_BC_S2, 0, 0, {0, 0}},
    {FORM_BC_S11, 0, 0, {0, 0}},
    {FORM_BC_S12, 0, 0, {0, 0}},
    {FORM_T1231, 0, 0, {0, 0}},
    {FORM_T1014, 0, 0, {0, 0}},
    {FORM_T1014_1, 0, 0, {0, 0}},
    {FORM_T1014_2, 0, 0, {0, 0}},
    {FORM_T1356, 0, 0, {0, 0}},
};
int const BC_Forms_Num = 10;

STRUCT_JURISDICTION_FORM_INFO const MB_Forms_Info[11] = {
    {FORM_MB428, 1, 0, {0, 0}},
    {FORM_MB479, 1, 0, {0, 0}},
    {FORM_MB428A, 1, 0, {0, 0}},
    {FORM_MB_S2, 0, 0, {0, 0}},
    {FORM_MB_S11, 0, 0, {0, 0}},
    {FORM_T1241, 0, 0, {0, 0}},
    {FORM_T1256, 0, 0, {0, 0}},
    {FORM_T1256_1, 0, 0, {0, 0}},
    {FORM_T1256_2, 0, 0, {0, 0}},
    {FORM_T1294, 0, 0, {0, 0}},
    {FORM_T1299, 0, 0, {0, 0}},
};
int const MB_Forms_Num = 11;

STRUCT_JURISDICTION_FORM_INFO const NB_Forms_Info[5] = {
    {FORM_NB428, 1, 0, {0, 0}},
    {FORM_NB_S2, 0, 0, {0, 0}},
    {FORM_NB_S11, 0, 0, {0, 0}},
    {FORM_NB_S12, 0, 0, {0, 0}},
    {FORM_T1258, 0, 0, {0, 0}},
};
int const NB_Forms_Num = 5;

STRUCT_JURISDICTION_FORM_INFO const NL_Forms_Info[7] = {
    {FORM_NL428, 1, 0, {0, 0}},
    {FORM_NL479, 1, 0, {0, 0}},
    {FORM_NL_S2, 0, 0, {0, 0}},
    {FORM_NL_S11, 0, 0, {0, 0}},
    {FORM_T1129, 0, 0, {0, 0}},
    {FORM_T1272, 0, 0, {0, 0}},
    {FORM_T1297, 0, 0, {0, 0}},
};
int const NL_Forms_Num = 7;

STRUCT_JURISDICTION_FORM_INFO const NS_Forms_Info[5] = {
    {FORM_NS428, 1, 0, {0, 0}},
    {FORM_NS479, 1, 0, {0, 0}},
    {FORM_NS_S2, 0, 0, {0, 0}},
    {FORM_NS_S11, 0, 0, {0, 0}},
    {FORM_T1285, 0, 0, {0, 0}},
};
int const NS_Forms_Num = 5;

STRUCT_JURISDICTION_FORM_INFO const NT_Forms_Info[4] = {
    {FORM_NT428, 1, 0, {0, 0}},
    {FORM_NT479, 1, 0, {0, 0}},
    {FORM_NT_S2, 0, 0, {0, 0}},
    {FORM_NT_S11, 0, 0, {0, 0}},
};
int const NT_Forms_Num = 4;

STRUCT_JURISDICTION_FORM_INFO const NU_Forms_Info[4] = {
    {FORM_NU428, 1, 0, {0, 0}},
    {FORM_NU479, 1, 0, {0, 0}},
    {FORM_NU_S2, 0, 0, {0, 0}},
    {FORM_NU_S11, 0, 0, {0, 0}},
};
int const NU_Forms_Num = 4;

STRUCT_JURISDICTION_FORM_INFO const ON_Forms_Info[8] = {
    {FORM_ON428, 1, 0, {0, 0}},
    {FORM_ON428A, 1, 0, {0, 0}},
    {FORM_ON479, 1, 0, {0, 0}},
    {FORM_ON479A, 0, 0, {0, 0}},
    {FORM_ON_BEN, 1, 0, {0, 0}},
    {FORM_ON_S2, 0, 0, {0, 0}},
    {FORM_ON_S11, 0, 0, {0, 0}},
    {FORM_T1221, 0, 0, {0, 0}},
};
int const ON_Forms_Num = 8;

STRUCT_JURISDICTION_FORM_INFO const PE_Forms_Info[3] = {
    {FORM_PE428, 1, 0, {0, 0}},
    {FORM_PE_S2, 0, 0, {0, 0}},
    {FORM_PE_S11, 0, 0, {0, 0}},
};
int const PE_Forms_Num = 3;

STRUCT_JURISDICTION_FORM_INFO const SK_Forms_Info[8] = {
    {FORM_SK428, 1, 0, {0, 0}},
    {FORM_SK479, 1, 0, {0, 0}},
    {FORM_SK_S2, 0, 0, {0, 0}},
    {FORM_SK_S11, 0, 0, {0, 0}},
    {FORM_SK_S12, 0, 0, {0, 0}},
    {FORM_T1237, 0, 0, {0, 0}},
    {FORM_T1279, 0, 0, {0, 0}},
    {FORM_RC360, 0, 0, {0, 0}},
};
int const SK_Forms_Num = 8;

STRUCT_JURISDICTION_FORM_INFO const YT_Forms_Info[7] = {
    {FORM_YT428, 1, 0, {0, 0}},
    {FORM_YT479, 1, 0, {0, 0}},
    {FORM_YT432, 1, 0, {0, 0}},
    {FORM_YT_S2, 0, 0, {0, 0}},
    {FORM_YT_S11, 0, 0, {0, 0}},
    {FORM_YT_S14, 1, 0, {0, 0}},
    {FORM_T1232, 0, 0, {0, 0}},
};
int const YT_Forms_Num = 7;

ENUMTYPE_FORM const SFD_Forms_Info[11] = {
    FORM_T776, FORM_T1163, FORM_T2042, FORM_COMMISSION_SFD, FORM_T2121, FORM_T2125, FORM_T5013, FORM_T777, FORM_TL2, FORM_T2091, FORM_T1255,
};

ENUMTYPE_FORM const Expired_Forms_Info[17] = {
    FORM_AB479, FORM_SCHEDULE1, FORM_SCHEDULE1A, FORM_WS_SCHEDULE4, FORM_SCHEDULE8_OLD, FORM_T626, FORM_T1139, FORM_T2036, FORM_T2124, FORM_SCHEDULE14, FORM_T1284, FORM_ON_S12, FORM_T1B, FORM_T2039, FORM_T777_COVID, FORM_T1219, FORM_T1DD,
};
int const SFD_Forms_Num = 11;

ENUMTYPE_PROVINCE const NoFarmStabilization_Provs_Info[3] = {PROV_NT, PROV_NS, PROV_QC};
ENUMTYPE_PROVINCE const T1163_Provs_Info[4] = {PROV_PE, PROV_ON, PROV_SK, PROV_AB};

STRUCT_JURISDICTION_FORM_INFO const *QC_Forms_Info = nullptr;
int QC_Forms_Num = 0;

// Pointers only; the counts are filled in at load time below.
STRUCT_PROVINCE_FORMS_INFO Province_Forms_Info[14] = {
    {nullptr, 0},
    {AB_Forms_Info, 0},
    {BC_Forms_Info, 0},
    {MB_Forms_Info, 0},
    {NB_Forms_Info, 0},
    {NL_Forms_Info, 0},
    {NS_Forms_Info, 0},
    {NT_Forms_Info, 0},
    {NU_Forms_Info, 0},
    {ON_Forms_Info, 0},
    {PE_Forms_Info, 0},
    {nullptr, 0},
    {SK_Forms_Info, 0},
    {YT_Forms_Info, 0},
};

namespace {

// Runs when the library is loaded. Quebec's slot is copied like the others,
// so it stays empty unless a Quebec list was linked in before.
struct ProvinceFormsIndexInitializer
{
    ProvinceFormsIndexInitializer()
    {
        Province_Forms_Info[PROV_AB].count = AB_Forms_Num;
        Province_Forms_Info[PROV_BC].count = BC_Forms_Num;
        Province_Forms_Info[PROV_MB].count = MB_Forms_Num;
        Province_Forms_Info[PROV_NB].count = NB_Forms_Num;
        Province_Forms_Info[PROV_NL].count = NL_Forms_Num;
        Province_Forms_Info[PROV_NS].count = NS_Forms_Num;
        Province_Forms_Info[PROV_NT].count = NT_Forms_Num;
        Province_Forms_Info[PROV_NU].count = NU_Forms_Num;
        Province_Forms_Info[PROV_ON].count = ON_Forms_Num;
        Province_Forms_Info[PROV_PE].count = PE_Forms_Num;
        Province_Forms_Info[PROV_QC].forms = QC_Forms_Info;
        Province_Forms_Info[PROV_QC].count = QC_Forms_Num;
        Province_Forms_Info[PROV_SK].count = SK_Forms_Num;
        Province_Forms_Info[PROV_YT].count = YT_Forms_Num;
    }
};

ProvinceFormsIndexInitializer const provinceFormsIndexInitializer;

} // namespace
