#include <LibControl/worksheets/dependantinfo.h>

STRUCT_INFIRM_STATUS_INFO const Global_InfirmStatus_Info[3] = {
    {0, "Normal"},
    {1, "Infirm"},
    {2, "Disabled"},
};

STRUCT_RELATIONSHIP_INFO const Global_Relationship_Info[15] = {
    {1, "Son"},
    {1, "Daughter"},
    {1, "Father"},
    {1, "Mother"},
    {1, "Grandfather"},
    {1, "GrandMother"},
    {1, "GrandSon"},
    {1, "GrandDaughter"},
    {1, "Brother"},
    {1, "Sister"},
    {1, "Nephew"},
    {1, "Niece"},
    {1, "Uncle"},
    {1, "Aunt"},
    {0, "Other"},
};
