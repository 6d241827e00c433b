#include <LibControl/forms/taxformtype.h>

#include <LibControl/common/utilities.h>
#include <LibControl/common/xmlwriter.h>

#include <algorithm>
#include <iterator>

namespace {

// Linear search, first match wins; a null list holds nothing.
STRUCT_JURISDICTION_FORM_INFO const *findInList(
    STRUCT_JURISDICTION_FORM_INFO const *list, int count, ENUMTYPE_FORM form)
{
    if (!list)
        return nullptr;
    for (int i = 0; i < count; ++i) {
        if (list[i].form == form)
            return &list[i];
    }
    return nullptr;
}

STRUCT_JURISDICTION_FORM_INFO const *findInProvince(int province, ENUMTYPE_FORM form)
{
    STRUCT_PROVINCE_FORMS_INFO const &entry = Province_Forms_Info[province];
    return findInList(entry.forms, entry.count, form);
}

template<typename T, std::size_t N> bool contains(T const (&list)[N], T value)
{
    return std::find(std::begin(list), std::end(list), value) != std::end(list);
}

bool isFederalFormMandatory(unsigned char kinds, ENUMTYPE_FORM form)
{
    STRUCT_JURISDICTION_FORM_INFO const *entry = findInList(Federal_Forms_Info, Federal_Forms_Num, form);
    if (!entry || entry->conditional == 0)
        return false;
    return (entry->mandatory & kinds) != 0;
}

} // namespace

bool isCanProvince(int province)
{
    return isCanProv(province);
}

ENUMTYPE_PROVINCE getProvince(char const *code)
{
    if (!code)
        return PROV_NONE;
    for (int p = PROV_AB; p <= PROV_YT; ++p) {
        if (stricmp(Global_Provs_Info[p].code, code) == 0)
            return static_cast<ENUMTYPE_PROVINCE>(p);
    }
    return PROV_NONE;
}

bool IsProvinceSupported(int province)
{
    if (!isCanProv(province))
        return false;
    char const *module = Global_Provs_Info[province].module;
    return module && *module;
}

ENUMTYPE_PROVINCE getFormProv(ENUMTYPE_FORM form)
{
    for (int p = PROV_NONE; p <= PROV_YT; ++p) {
        if (findInProvince(p, form))
            return static_cast<ENUMTYPE_PROVINCE>(p);
    }
    return PROV_NONE;
}

bool IsFormMandatory(unsigned char kinds, ENUMTYPE_PROVINCE province, ENUMTYPE_FORM form)
{
    if (getFormProv(form) == PROV_NONE)
        return isFederalFormMandatory(kinds, form);
    if (!isCanProv(province))
        return false;
    // The province's own list decides, by its mask alone: a provincial form
    // is mandatory for every kind of return filed in that province.
    STRUCT_JURISDICTION_FORM_INFO const *entry = findInProvince(province, form);
    return entry && entry->mandatory != 0;
}

bool IsSFDForm(ENUMTYPE_FORM form)
{
    return contains(SFD_Forms_Info, form);
}

bool IsMultipleForm(ENUMTYPE_FORM form)
{
    return IsSFDForm(form) || form == FORM_T1M || form == FORM_T2209 || form == FORM_T1134_SUPPLEMENT;
}

bool IsFormSharable(ENUMTYPE_FORM form)
{
    return IsSFDForm(form) || form == FORM_SCHEDULE3;
}

bool IsSlipSharable(ENUMTYPE_SLIP slip)
{
    return slip == SLIP_T5 || slip == SLIP_T3 || slip == SLIP_T5013;
}

bool IsFormExpired(ENUMTYPE_FORM form, ENUMTYPE_PROVINCE)
{
    return contains(Expired_Forms_Info, form);
}

ENUMTYPE_FORM GetCAISFormTypeFromProv(ENUMTYPE_PROVINCE province)
{
    if (contains(NoFarmStabilization_Provs_Info, province))
        return FORM_NA;
    if (contains(T1163_Provs_Info, province))
        return FORM_T1163;
    return FORM_T1273;
}

void setProvValueToShortName(int kind, int value, CString &out)
{
    if (kind == 1 && value > PROV_NONE && value <= PROV_DEEMED_RESIDENT)
        out = Global_Provs_Info[value].code;
    else if (kind == 2 && value >= 1 && value <= 59)
        out = Global_USStates_Info[value].code;
}

int getCountryCode(CString &out, int id, int)
{
    if (id < 1 || id > 116)
        return -1;
    for (int row = 1; row <= 116; ++row) {
        if (Global_Countries_Info[row].id == id) {
            out = Global_Countries_Info[row].isoCode3;
            return row;
        }
    }
    return -1;
}

int xmlWriteTagForCountryCode(CString &xml, char const *tag, int id)
{
    CString code;
    int const row = getCountryCode(code, id, 0);
    if (row >= 0)
        writeXMLString(xml, tag, code);
    return row;
}

int xmlWriteTagForProvCode(CString &xml, char const *tag, int kind, int value)
{
    CString code;
    setProvValueToShortName(kind, value, code);
    if (!code.isEmpty())
        writeXMLString(xml, tag, code);
    return kind;
}
