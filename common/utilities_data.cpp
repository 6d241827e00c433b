#include <LibControl/common/utilities.h>

char LowerCaseAlpha[26] = {'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k', 'l', 'm',
                           'n', 'o', 'p', 'q', 'r', 's', 't', 'u', 'v', 'w', 'x', 'y', 'z'};
char UpperCaseAlpha[26] = {'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'I', 'J', 'K', 'L', 'M',
                           'N', 'O', 'P', 'Q', 'R', 'S', 'T', 'U', 'V', 'W', 'X', 'Y', 'Z'};
char OtherAlpahChars[7] = {'-', '_', '+', '$', '%', '<', '>'};

STRUCT_CURRENCY_INFO const Global_Currency_Info[6] = {
    {0, "Canadian Dollar", "CAD"},
    {1, "US Dollar", "USD"},
    {2, "GB Pound Sterling", "GBP"},
    {3, "Australia Dolloar", "AUD"},
    {4, "Euro", "EUR"},
    {5, "Japan Yen", "JPY"},
};
